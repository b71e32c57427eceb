#pragma once

#include <atomic>
#include <mutex>
#include <vector>

#include <QObject>

#include "core/state/Interface.h"

namespace tavrin {

class EditorDoor;

/// Carries what the engine asks of the window over to the main thread. Nothing here makes the processing thread
/// wait, but for `performAndWait`. Previews that come faster than the window paints replace each other.
class WindowBridge : public QObject, public Interface {
    Q_OBJECT

  public:
    explicit WindowBridge(QObject* parent = nullptr);

    void repaint(const PublishedRows& rows) override;
    void enableControls(bool enabled, bool hostApplication) override;
    void sizeWindow(int outputWidth, int outputHeight) override;
    void updateScaleUI() override;
    void startSmoothProgress() override { emit smoothProgress(0.0); }
    void updateSmoothProgress(double percent) override { emit smoothProgress(percent); }
    void endSmoothProgress() override { emit smoothProgress(-1.0); }
    void showAlert(const std::string& message, const std::string& reason) override;
    void performAndWait(const std::function<void()>& job) override;
    bool mouseDown() const override { return mouseDown_.load(std::memory_order_relaxed); }
    int eventMouseMode() const override { return mouseMode_.load(std::memory_order_relaxed); }

    bool editorIsOpen() const override;
    void exitEditorMode() override;

    /// The window's editor, which every pass closes; before the loop starts.
    void setEditor(EditorDoor* door) { editor_ = door; }
    /// From the view: a layer is held with the mouse, and which (1 is the foreground).
    void setMouse(bool down, int mode);
    /// Takes what has been published since the last call; for the slot behind `published`.
    std::vector<PublishedRows> takePublished();

  signals:
    void published();
    void controlsEnabled(bool enabled, bool hostApplication);
    void outputSized(int width, int height);
    void stateOpened(const QString& path);
    void stateSaved(const QString& path);
    /// A job of saving came to its end; when it is not done, an alert told why.
    void saveEnded(const QString& path, bool done);
    void alerted(const QString& message, const QString& reason);
    /// Something was not done; no alert of the system's, but a message in the window.
    void failed(const QString& message, const QString& reason);
    /// Skin is being smoothed, so far in percent; below 0 it is done.
    void smoothProgress(double percent);
    /// The loop worked out where a layer lies.
    void placed();

  private:
    EditorDoor* editor_ = nullptr;
    std::mutex mutex_;
    std::vector<PublishedRows> pending_;
    std::atomic<bool> mouseDown_ = false;
    std::atomic<int> mouseMode_ = 0;
};

}  // namespace tavrin
