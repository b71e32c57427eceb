#include "delivery/print/PlainJpeg.h"

#include <cstdint>
#include <fstream>
#include <iterator>

#include "core/image/ImageReader.h"

namespace tavrin {

namespace {

enum Marker : std::uint8_t { kStart = 0xD8, kEnd = 0xD9, kScan = 0xDA, kJfif = 0xE0, kAdobe = 0xEE, kRemark = 0xFE };

/// Whole names, since there are relatives that begin alike and are linear or perceptual.
bool isSrgbByName(const std::string& profile) {
    return profile == "sRGB" || profile == "sRGB IEC61966-2.1" || profile == "sRGB IEC61966-2-1" ||
           profile == "sRGB built-in";
}

bool isShownAsItStands(const PictureFacts& facts) {
    return facts.error.empty() && facts.format == "JPEG" && facts.orientation == 1 && facts.channels == 3 &&
           facts.bitsPerChannel == 8 && facts.colourSpace == "RGB" && !facts.hasAlpha &&
           (!facts.hasProfile || isSrgbByName(facts.profileName));
}

/// A walk over the segments of a JPEG file that copies those which belong to its picture.
class Segments {
  public:
    explicit Segments(const std::string& bytes) : bytes_(bytes) {}

    /// "" where the file is not built as it should be.
    std::string picture() {
        if (at(0) != 0xFF || at(1) != kStart) return "";
        kept_ = bytes_.substr(0, 2);
        here_ = 2;
        while (here_ + 4 <= bytes_.size() && at(here_) == 0xFF) {
            const std::uint8_t marker = at(here_ + 1);
            if (marker == kEnd) return kept_ + "\xFF\xD9";
            if (!takeSegment(marker)) return "";
        }
        return bytes_.size() == here_ + 2 && at(here_) == 0xFF && at(here_ + 1) == kEnd ? kept_ + "\xFF\xD9" : "";
    }

  private:
    std::uint8_t at(std::size_t place) const {
        return place < bytes_.size() ? static_cast<std::uint8_t>(bytes_[place]) : 0;
    }

    bool takeSegment(std::uint8_t marker) {
        if (marker == 0xFF) {  // filling
            ++here_;
            return true;
        }
        const std::size_t length = 2 + (std::size_t{at(here_ + 2)} << 8U | at(here_ + 3));
        if (length < 4 || here_ + length > bytes_.size()) return false;
        const bool isFrame = marker >= 0xC0 && marker <= 0xC2;
        // Channels that are called so are red, green and blue, which not every reader knows.
        if (isFrame && at(here_ + 10) == 'R') return false;
        const bool isExtra = (marker > kJfif && marker <= 0xEF && marker != kAdobe) || marker == kRemark;
        const std::size_t end = marker == kScan ? endOfScan(here_ + length) : here_ + length;
        if (!isExtra) kept_.append(bytes_, here_, end - here_);
        here_ = end;
        return true;
    }

    std::size_t endOfScan(std::size_t place) const {
        const auto goesOn = [](std::uint8_t next) { return next == 0 || (next >= 0xD0 && next <= 0xD7); };
        for (; place + 1 < bytes_.size(); ++place) {
            if (at(place) == 0xFF && !goesOn(at(place + 1)) && at(place + 1) != 0xFF) return place;
        }
        return bytes_.size();
    }

    const std::string& bytes_;
    std::string kept_;
    std::size_t here_ = 0;
};

}  // namespace

std::string plainJpeg(const std::string& path) {
    if (!isShownAsItStands(readPictureFacts(path))) return "";
    std::ifstream file(path, std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    return Segments(bytes).picture();
}

}  // namespace tavrin
