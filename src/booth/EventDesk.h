#pragma once

#include <string>

#include "session/SettingEditor.h"

namespace tavrin {

/// What the operator of the photo booth chooses on the live picture: the layout, the background with its recipe, the
/// portrait, a line of text. It writes settings and never waits for a picture; the caller asks for that
/// (`StartUpdate`). Call it on the main thread while no pass is under work, since it loads states.
class EventDesk {
  public:
    explicit EventDesk(SystemInfo& info) : info_(info) {}

    /// The event tab is opened: the picture on the screen becomes the recipe of all backgrounds without one of their
    /// own, and the layout follows the output size.
    /// @return "" or why that recipe cannot be kept
    std::string batchButtonClicked();
    /// The words of the layout's button, which name the other layout. The button is the state.
    const char* buttonEventLayout() const;
    /// Turns to the other layout: its backgrounds, and the size of the same name in the other shape. Alerts when
    /// there is none.
    void ChangeEventLayout();
    /// Folder of the backgrounds of the layout that is shown.
    std::string backgroundFolder() const;

    /// Lays a background behind the guest, with the recipe beside it or else that of the tab's opening. The portrait
    /// and the layout stay.
    /// @return "" or why its recipe cannot be read; the settings stay then, and the background is laid all the same
    std::string eventBackgroundSelected(const std::string& path);
    /// Another guest.
    void eventImageSelected(const std::string& path);

    const std::string& sEventLastQLXFile() const { return sEventLastQLXFile_; }
    /// Where the recipe of the tab's opening is kept.
    static std::string defaultRecipe();

  private:
    bool loadRecipe(const std::string& path, std::string& problem);
    void keepLayout();

    SystemInfo& info_;
    bool goesToPortrait_ = false;  ///< what the button says
    std::string sEventLastQLXFile_;
};

/// Name of the selected output size.
std::string selectedSizeName(const SystemInfo& info);

/// The path up to the extension of a picture; all of it where there is none.
std::string baseOfPicture(const std::string& path);

/// A line of text over the picture, as the event panel has its controls.
struct EventText {
    std::string sText, sFontName;
    std::string sLabelSize;  ///< "X-Large", "Large", "Medium" or "Small"; another leaves the size of new items
    bool bDropShadow = false;
    bool isBlack = false;  ///< else white
};

/// Adds it as one item, as one step of undo, and keeps its font, size, colour and shadow with the settings.
/// @return "" when done; otherwise one plain line
std::string buttonAddTextClicked(SettingEditor& editor, const EventText& text);

}  // namespace tavrin
