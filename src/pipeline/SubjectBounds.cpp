#include "pipeline/SubjectBounds.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <vector>

#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

constexpr int kHalf = 127;
constexpr double kPartsThatCount = 1.0 / 4.0, kNoSpeck = 1.0 / 16.0;  // of the largest part's weight
constexpr double kSmallestSubject = 0.006;  // of the source's pixels; less is a blot on an empty screen

/// A part of the subject: pixels that hang together.
struct Part {
    double weight = 0.0;
    std::vector<int> pixels;  // y * width + x
    int left = 0, right = 0;

    bool standsWith(const Part& other) const {
        const int shared = std::min(right, other.right) - std::max(left, other.left) + 1;
        return 2 * shared >= std::min(right - left, other.right - other.left) + 1;
    }
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
        part.left = part.right = first % width_;
        const auto take = [&](int x, int y) {
            if (x < 0 || y < 0 || x >= width_ || y >= height_ || !set_[at(x, y)]) return;
            set_[at(x, y)] = false;
            part.pixels.push_back(y * width_ + x);
        };
        take(first % width_, first / width_);
        for (std::size_t i = 0; i < part.pixels.size(); ++i) {
            const int x = part.pixels[i] % width_, y = part.pixels[i] / width_;
            part.weight += 1.0 - std::abs(2.0 * (x + 0.5) / width_ - 1.0);
            part.left = std::min(part.left, x);
            part.right = std::max(part.right, x);
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

/// The columns between which nearly all lies.
Range bulkOf(const std::vector<int>& counts) {
    const int outside = std::accumulate(counts.begin(), counts.end(), 0) / 25;
    Range range{0, static_cast<int>(counts.size()) - 1};
    for (int left = outside; range.first < range.last && left >= counts[static_cast<std::size_t>(range.first)];)
        left -= counts[static_cast<std::size_t>(range.first++)];
    for (int left = outside; range.first < range.last && left >= counts[static_cast<std::size_t>(range.last)];)
        left -= counts[static_cast<std::size_t>(range.last--)];
    return range;
}

std::vector<int> columnsOfHeads(const std::vector<Part>& parts, int w, const Range& rows) {
    std::vector<int> columns(static_cast<std::size_t>(w));
    for (const Part& part : parts) {
        for (const int i : part.pixels) {
            if (i / w >= rows.first && i / w <= rows.last) ++columns[static_cast<std::size_t>(i % w)];
        }
    }
    return columns;
}

/// A side counts as cut when the subject comes this near to it: the key leaves a soft rim there.
bool reaches(int distance, int length) {
    return distance <= std::max(1, length / 150);
}

/// The largest part and those that count beside it; none when there is no subject.
std::vector<Part> partsThatCount(std::vector<Part> parts, double smallest) {
    const auto lighter = [](const Part& a, const Part& b) { return a.weight < b.weight; };
    const auto largest = std::max_element(parts.begin(), parts.end(), lighter);
    if (largest == parts.end() || static_cast<double>(largest->pixels.size()) < smallest) return {};
    std::vector<Part> counted = {std::move(*largest)};
    const double most = counted.front().weight;
    parts.erase(largest);
    std::erase_if(parts, [most](const Part& part) { return part.weight < kNoSpeck * most; });
    for (const Part& part : parts) {
        double weight = 0.0;
        for (const Part& other : parts)
            weight += part.standsWith(other) ? other.weight : 0.0;
        if (weight >= kPartsThatCount * most) counted.push_back(part);
    }
    return counted;
}

}  // namespace

std::optional<SubjectBounds> findSubject(const std::uint8_t* pixels, int width, const QRect& source) {
    if (!pixels || source.isEmpty()) return std::nullopt;
    const int w = source.width(), h = source.height();
    const std::vector<Part> parts = partsThatCount(Mask(pixels, width, source).takeParts(), kSmallestSubject * w * h);
    if (parts.empty()) return std::nullopt;
    std::vector<int> columns(static_cast<std::size_t>(w)), rows(static_cast<std::size_t>(h));
    for (const Part& part : parts) {
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
    const Range heads = bulkOf(columnsOfHeads(parts, w, {down.first, down.first + (down.last - down.first) / 3}));
    found.headLeft = static_cast<double>(heads.first) / w;
    found.headRight = (heads.last + 1.0) / w;
    return found;
}

int percentBelowSubject(const std::uint8_t* pixels, int width, int height) {
    const auto subject = findSubject(pixels, width, QRect(0, 0, width, height));
    return !subject || subject->cutBottom ? 0 : static_cast<int>(std::ceil((1.0 - subject->bottom) * 100.0));
}

}  // namespace tavrin
