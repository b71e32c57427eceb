#include "pipeline/SubjectBounds.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

constexpr int kHalf = 127;
constexpr double kPartsThatCount = 1.0 / 4.0;
constexpr double kSmallestSubject = 0.006;  // of the source's pixels; less is a blot on an empty screen

/// A part of the subject: pixels that hang together.
struct Part {
    double weight = 0.0;
    std::vector<int> pixels;  // y * width + x
};

/// The pixels of the subject, each taken away as soon as its part is known.
class Mask {
  public:
    Mask(const std::uint8_t* pixels, int stride, const QRect& source)
        : width_(source.width()), height_(source.height()), set_(static_cast<std::size_t>(width_ * height_)) {
        for (int y = 0; y < height_; ++y) {
            const std::uint8_t* alpha = pixels + pixelOffset(stride, source.left(), source.top() + y) + 3;
            for (int x = 0; x < width_; ++x)
                set_[at(x, y)] = alpha[std::ptrdiff_t{kPixelBytes} * x] > kHalf;
        }
    }

    std::vector<Part> takeParts() {
        std::vector<Part> parts;
        for (int i = 0; i < width_ * height_; ++i) {
            if (set_[static_cast<std::size_t>(i)]) parts.push_back(takePart(i));
        }
        return parts;
    }

  private:
    std::size_t at(int x, int y) const { return static_cast<std::size_t>(y * width_ + x); }

    Part takePart(int first) {
        Part part;
        const auto take = [&](int x, int y) {
            if (x < 0 || y < 0 || x >= width_ || y >= height_ || !set_[at(x, y)]) return;
            set_[at(x, y)] = false;
            part.pixels.push_back(y * width_ + x);
        };
        take(first % width_, first / width_);
        for (std::size_t i = 0; i < part.pixels.size(); ++i) {
            const int x = part.pixels[i] % width_, y = part.pixels[i] / width_;
            part.weight += 1.0 - std::abs(2.0 * (x + 0.5) / width_ - 1.0);
            take(x - 1, y);
            take(x + 1, y);
            take(x, y - 1);
            take(x, y + 1);
        }
        return part;
    }

    int width_, height_;
    std::vector<char> set_;
};

struct Range {
    int first = 0, last = 0;  // both belong to it
};

/// The lines that hold enough of the subject: not those with a strand or two.
Range linesOf(const std::vector<int>& counts) {
    const int most = *std::max_element(counts.begin(), counts.end());
    const int enough = std::max(2, most / 50);
    const auto isEnough = [enough](int count) { return count >= enough; };
    const auto first = std::find_if(counts.begin(), counts.end(), isEnough);
    const auto last = std::find_if(counts.rbegin(), counts.rend(), isEnough);
    if (first == counts.end()) return {0, static_cast<int>(counts.size()) - 1};
    return {static_cast<int>(first - counts.begin()), static_cast<int>(counts.rend() - last) - 1};
}

/// A side counts as cut when the subject comes this near to it: the key leaves a soft rim there.
bool reaches(int distance, int length) {
    return distance <= std::max(1, length / 150);
}

}  // namespace

std::optional<SubjectBounds> findSubject(const std::uint8_t* pixels, int width, const QRect& source) {
    if (!pixels || source.isEmpty()) return std::nullopt;
    const int w = source.width(), h = source.height();
    const std::vector<Part> parts = Mask(pixels, width, source).takeParts();
    const auto main = std::max_element(parts.begin(), parts.end(),
                                       [](const Part& a, const Part& b) { return a.weight < b.weight; });
    if (main == parts.end() || static_cast<double>(main->pixels.size()) < kSmallestSubject * w * h)
        return std::nullopt;
    std::vector<int> columns(static_cast<std::size_t>(w)), rows(static_cast<std::size_t>(h));
    for (const Part& part : parts) {
        if (part.weight < kPartsThatCount * main->weight) continue;
        for (const int i : part.pixels) {
            ++columns[static_cast<std::size_t>(i % w)];
            ++rows[static_cast<std::size_t>(i / w)];
        }
    }
    const Range across = linesOf(columns), down = linesOf(rows);
    SubjectBounds found{static_cast<double>(across.first) / w, static_cast<double>(down.first) / h,
                        (across.last + 1.0) / w, (down.last + 1.0) / h};
    found.cutLeft = reaches(across.first, w);
    found.cutTop = reaches(down.first, h);
    found.cutRight = reaches(w - 1 - across.last, w);
    found.cutBottom = reaches(h - 1 - down.last, h);
    return found;
}

int percentBelowSubject(const std::uint8_t* pixels, int width, int height) {
    const auto subject = findSubject(pixels, width, QRect(0, 0, width, height));
    return !subject || subject->cutBottom ? 0 : static_cast<int>(std::ceil((1.0 - subject->bottom) * 100.0));
}

}  // namespace tavrin
