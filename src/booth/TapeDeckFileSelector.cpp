#include "booth/TapeDeckFileSelector.h"

#include <algorithm>
#include <unordered_set>

#include <QString>

#include "core/Log.h"
#include "core/files/NameText.h"
#include "folders/NextFileInFolder.h"

namespace tavrin {

TapeDeckFileSelector::TapeDeckFileSelector(std::function<DeckPicture(const std::string& path)> load,
                                           std::function<bool(const std::string& stem)> isServed,
                                           std::function<void()> shown)
    : load_(std::move(load)), isServed_(std::move(isServed)), told_(std::move(shown)) {}

void TapeDeckFileSelector::updateFolder(const std::string& path) {
    folder_ = path;
    iCursor_ = -1;
    iCursorBase_ = 0;
    iOldNumberOfImages_ = -1;
    oOrderedFiles_.clear();
}

void TapeDeckFileSelector::updateImagesInFolder(const std::vector<std::string>& photos) {
    const auto count = static_cast<std::int32_t>(photos.size());
    if (count == iOldNumberOfImages_) return;
    const std::unordered_set<std::string> present(photos.begin(), photos.end());
    std::erase_if(oOrderedFiles_, [&](const std::string& name) { return !present.contains(name); });
    const std::unordered_set<std::string> known(oOrderedFiles_.begin(), oOrderedFiles_.end());
    std::ranges::copy_if(photos, std::back_inserter(oOrderedFiles_),
                         [&](const std::string& name) { return !known.contains(name); });
    iNumberOfImages_ = count;
    clampToFolder();
    if (count > iOldNumberOfImages_) slideToNew();
    iOldNumberOfImages_ = count;
    if (loadSlots()) {
        updateUI();
    } else {
        iOldNumberOfImages_ =
            -1;  // the next look tries again: that is how a picture still being copied is waited for
    }
}

void TapeDeckFileSelector::clampToFolder() {
    if (iCursor_ >= iNumberOfImages_) iCursor_ = iNumberOfImages_ - 1;
    if (iCursorBase_ + kSlots > iNumberOfImages_) iCursorBase_ = std::max(0, iNumberOfImages_ - kSlots);
    if (iCursor_ - iCursorBase_ >= kSlots) iCursor_ = iCursorBase_ + kSlots - 1;
}

/// Whoever watches the end of the strip sees new pictures slide in while the selection stays.
void TapeDeckFileSelector::slideToNew() {
    if (iCursor_ < kSlots - 1 || iCursor_ - iCursorBase_ < 3) return;
    iCursorBase_ = std::min(iCursorBase_ + 1, iNumberOfImages_ - kSlots);
}

std::string TapeDeckFileSelector::pathAt(std::int32_t index) const {
    const bool isThere = index >= 0 && index < static_cast<std::int32_t>(oOrderedFiles_.size());
    return isThere ? folder_ + '/' + oOrderedFiles_[static_cast<std::size_t>(index)] : "";
}

/// @return false when a picture is broken; the places hold what comes before it then
bool TapeDeckFileSelector::loadSlots() {
    buffers_ = {};
    for (std::int32_t slot = 0; slot < kSlots; ++slot) {
        const std::int32_t index = iCursorBase_ + slot;
        const std::string path = pathAt(index);
        if (path.empty()) break;
        DeckPicture picture = load_(path);
        if (picture.state == DeckPicture::State::broken) {
            logTrace("Image is Nil returning");
            return false;
        }
        DeckSlot& place = buffers_[static_cast<std::size_t>(slot)];
        place.path = path;
        place.caption = std::to_string(index + 1) + '/' + std::to_string(iNumberOfImages_);
        place.picture = std::move(picture.pixels);
    }
    return true;
}

void TapeDeckFileSelector::picturesCame() {
    if (iOldNumberOfImages_ < 0) return;  // the next look does it anew
    if (loadSlots()) {
        updateUI();
    } else {
        iOldNumberOfImages_ = -1;
    }
}

void TapeDeckFileSelector::imageSelected(std::int32_t slot) {
    const std::int32_t index = slot + iCursorBase_;
    if (slot < 1 || slot > kSlots || index > iNumberOfImages_) return;
    iCursor_ = index - 1;
    updateUI();
}

std::string TapeDeckFileSelector::getSelectedImageName() const {
    const std::int32_t slot = iCursor_ - iCursorBase_;
    if (iCursor_ < 0 || slot < 0 || slot >= kSlots) return "";
    return buffers_[static_cast<std::size_t>(slot)].path;
}

void TapeDeckFileSelector::tapeDeckButtonPushed(std::int32_t button) {
    const std::int32_t before = iCursorBase_, last = std::max(0, iNumberOfImages_ - kSlots);
    switch (button) {
        case 1:
            iCursorBase_ = iCursor_ = 0;
            break;
        case 2:
            iCursorBase_ -= kSlots;
            iCursor_ -= kSlots;
            break;
        case 3:
            ++iCursor_;
            if (iCursor_ - iCursorBase_ >= kSlots && iCursorBase_ < last) ++iCursorBase_;
            break;
        case 4:
            iCursorBase_ += kSlots;
            iCursor_ += kSlots;
            break;
        case 5:
            iCursorBase_ = last;
            iCursor_ = iNumberOfImages_ - 1;
            break;
        default:
            return;
    }
    iCursorBase_ = std::clamp(iCursorBase_, 0, last);
    iCursor_ = std::min(std::max(iCursor_, 0), iNumberOfImages_ - 1);
    // A picture that cannot be read now is waited for by the looks that follow, not here.
    if (iCursorBase_ != before && !loadSlots()) {
        iOldNumberOfImages_ = -1;
        return;
    }
    updateUI();
}

std::string TapeDeckFileSelector::tapeDeckSearch(const std::string& text) {
    const QString wanted = QString::fromStdString(text);
    const auto found = std::ranges::find_if(oOrderedFiles_, [&](const std::string& name) {
        return textOfName(name).contains(wanted, Qt::CaseInsensitive);
    });
    if (found == oOrderedFiles_.end()) return "File Not Found";
    iCursor_ = iCursorBase_ = static_cast<std::int32_t>(found - oOrderedFiles_.begin());
    if (!loadSlots()) return "Could not load Image";
    updateUI();
    return *found;
}

void TapeDeckFileSelector::updateUI() {
    shown_ = buffers_;
    for (DeckSlot& place : shown_)
        place.isServed = !place.path.empty() && isServed_(stemOf(place.path));
    const std::int32_t slot = iCursor_ - iCursorBase_;
    if (slot >= 0 && slot < kSlots) shown_[static_cast<std::size_t>(slot)].isSelected = true;
    told_();
}

TicketNames::TicketNames(std::vector<std::string> names) : names_(std::move(names)) {
    std::ranges::sort(names_);
}

void TicketNames::add(const std::string& name) {
    const auto place = std::ranges::lower_bound(names_, name);
    if (place == names_.end() || *place != name) names_.insert(place, name);
}

bool TicketNames::hasStem(const std::string& stem) const {
    const std::string beginning = stem + '_';
    const auto first = std::ranges::lower_bound(names_, beginning);
    return first != names_.end() && first->starts_with(beginning);
}

}  // namespace tavrin
