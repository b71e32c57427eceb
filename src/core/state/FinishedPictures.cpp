#include "core/state/FinishedPictures.h"

namespace tavrin {

void FinishedPictures::begin() {
    std::lock_guard lock(mutex_);
    full_ = preview_ = false;
    failure_.clear();
}

void FinishedPictures::fail(const std::string& reason) {
    std::lock_guard lock(mutex_);
    full_ = preview_ = false;
    if (failure_.empty()) failure_ = reason;
}

void FinishedPictures::finish(Resolution resolution) {
    std::lock_guard lock(mutex_);
    if (failure_.empty()) (resolution == Resolution::full ? full_ : preview_) = true;
}

std::string FinishedPictures::failure() const {
    std::lock_guard lock(mutex_);
    return failure_;
}

std::string FinishedPictures::whyNot(Resolution resolution) const {
    std::lock_guard lock(mutex_);
    if (resolution == Resolution::full ? full_ : preview_) return "";
    return failure_.empty() ? "the picture is not finished" : failure_;
}

}  // namespace tavrin
