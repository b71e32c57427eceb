#pragma once

#include <functional>
#include <string>

#include <QImage>

#include "core/state/Resolution.h"

namespace tavrin {

/// A part of the picture for the view. The pixels are the receiver's own copy: the engine goes on writing to its
/// buffers while the view paints.
struct PublishedRows {
    QImage pixels;                   ///< the rows, RGBA, alpha as the buffer holds it
    int firstRow = 0, rowCount = 0;  ///< where they belong
    int height = 0;                  ///< height of the whole picture; its width is that of `pixels`
    Resolution resolution = Resolution::full;
    bool edited = false;  ///< no pass made them: they change rows of the picture that stands

    bool isPreview() const { return resolution == Resolution::preview; }
};

/// All that the engine asks of a window. Every operation may be called from the processing thread and must not
/// wait for the main thread, but for `performAndWait`. The default does nothing, so that the whole engine runs
/// without a window.
class Interface {
  public:
    virtual ~Interface() = default;

    /// False: `repaint` tells the rows only and leaves their pixels out, which saves the copy.
    virtual bool wantsPixels() const { return true; }
    /// New rows to show; a preview that a pass made is always whole.
    virtual void repaint(const PublishedRows&) {}
    /// A pass begins (false) or a full picture stands (true): save, print, sizes and freeze go with it. The save
    /// control is called "Return To Lightroom" when the program serves a host application, else "Save".
    virtual void enableControls(bool /*enabled*/, bool /*hostApplication*/) {}
    /// The output has a new shape: size the window to it and show the whole picture.
    virtual void sizeWindow(int /*outputWidth*/, int /*outputHeight*/) {}
    /// The fit of a layer was worked out anew.
    virtual void updateScaleUI() {}
    /// Smoothing of skin takes its time: it begins, is so far (0 to 100), and ends, also where it was given up.
    virtual void startSmoothProgress() {}
    virtual void updateSmoothProgress(double /*percent*/) {}
    virtual void endSmoothProgress() {}
    /// Shows a message with the one button "OK". The reason, in plain words, also belongs on the standard error
    /// stream.
    virtual void showAlert(const std::string& /*message*/, const std::string& /*reason*/) {}
    /// Runs a job on the main thread and returns when it is done.
    virtual void performAndWait(const std::function<void()>& job) { job(); }

    /// The airbrush editor is open, and how to close it.
    virtual bool editorIsOpen() const { return false; }
    virtual void exitEditorMode() {}
    /// The mouse is held in the main view, and what it does there (1 and 2 move the foreground).
    virtual bool mouseDown() const { return false; }
    virtual int eventMouseMode() const { return 0; }
};

}  // namespace tavrin
