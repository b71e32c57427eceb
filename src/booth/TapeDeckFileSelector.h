#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include <QImage>

namespace tavrin {

/// What became of the picture of a file.
struct DeckPicture {
    enum class State {
        there,
        coming,  ///< somebody reads it; `TapeDeckFileSelector::picturesCame` follows
        broken   ///< cannot be read as it is now; it may still be on its way into the folder
    };
    State state = State::broken;
    QImage pixels;
};

/// A place of the strip, as it is shown.
struct DeckSlot {
    std::string path;     ///< "" for an empty place
    std::string caption;  ///< position and number of all, such as "3/12"
    QImage picture;
    bool isSelected = false;
    bool isServed = false;  ///< this guest has been: the caption is grey
};

/// The film strip of the photo booth: five places over a folder that keeps growing, moved by five buttons like a
/// tape deck's. An old picture keeps its place and a new one goes to the end, so the newest of the camera is last.
/// Knows no window; for one thread.
class TapeDeckFileSelector {
  public:
    static constexpr std::int32_t kSlots = 5;

    /// @param load gives the picture of a file
    /// @param isServed tells whether there is a ticket of a file's stem
    /// @param shown is called whenever the places have changed
    TapeDeckFileSelector(std::function<DeckPicture(const std::string& path)> load,
                         std::function<bool(const std::string& stem)> isServed, std::function<void()> shown);

    /// Another folder; nothing is selected. Its names come by `updateImagesInFolder`.
    void updateFolder(const std::string& path);
    /// The photos that are in the folder now, in the order of people. Only a change of their number is looked at.
    void updateImagesInFolder(const std::vector<std::string>& photos);
    /// Pictures that were coming are there, or are broken.
    void picturesCame();
    /// @param slot 1 to 5
    void imageSelected(std::int32_t slot);
    /// @return the whole path; "" for none
    std::string getSelectedImageName() const;
    /// @param button 1 to start, 2 back a page, 3 next, 4 forward a page, 5 to end
    void tapeDeckButtonPushed(std::int32_t button);
    /// Selects the first file whose name holds the text, in capitals or not.
    /// @return its name, or what is wrong
    std::string tapeDeckSearch(const std::string& text);
    /// Shows the places as they stand.
    void updateUI();

    const std::array<DeckSlot, kSlots>& shown() const { return shown_; }
    const std::string& folder() const { return folder_; }
    /// The names of the folder in the order of the strip.
    const std::vector<std::string>& oOrderedFiles() const { return oOrderedFiles_; }
    std::int32_t iCursor() const { return iCursor_; }
    std::int32_t iCursorBase() const { return iCursorBase_; }

  private:
    bool loadSlots();
    std::string pathAt(std::int32_t index) const;
    void clampToFolder();
    void slideToNew();

    const std::function<DeckPicture(const std::string&)> load_;
    const std::function<bool(const std::string&)> isServed_;
    const std::function<void()> told_;
    std::string folder_;
    std::array<DeckSlot, kSlots> buffers_, shown_;
    std::vector<std::string> oOrderedFiles_;
    std::int32_t iCursor_ = -1;     ///< selected index of `oOrderedFiles_`; -1 for none
    std::int32_t iCursorBase_ = 0;  ///< index in the first place
    std::int32_t iNumberOfImages_ = 0;
    std::int32_t iOldNumberOfImages_ = -1;  ///< at the last look; -1 has the next look do everything anew
};

/// The names of the tickets of a folder, to be asked for a portrait's.
class TicketNames {
  public:
    TicketNames() = default;
    explicit TicketNames(std::vector<std::string> names);
    void add(const std::string& name);
    /// Whether there is a ticket of a portrait's stem: a name that begins with it and "_".
    bool hasStem(const std::string& stem) const;
    bool operator==(const TicketNames&) const = default;

  private:
    std::vector<std::string> names_;  // sorted
};

}  // namespace tavrin
