#include "key/refine/screen/Frame.h"

namespace tavrin::refine {

namespace {

constexpr double kLeastRest = 0.02;  // of the picture

// A line of pixels `step` apart.
struct Line {
    const std::uint32_t* first;
    const std::uint8_t* key;
    std::ptrdiff_t step;
    int count;

    int alike(std::uint32_t color) const {
        int alike = 0;
        for (int i = 0; i < count; ++i)
            alike += first[i * step] == color;
        return alike;
    }
    // All of it screen by the key.
    bool isAll(std::uint32_t color) const {
        for (int i = 0; i < count; ++i) {
            if (first[i * step] != color || key[i * step] != 0) return false;
        }
        return true;
    }
};

// How many lines from a side on have one colour; 0 where the line after them has much of it too: a drawn screen is as
// even as that.
template <class LineAt>
int framed(int count, const LineAt& lineAt) {
    const std::uint32_t color = *lineAt(0).first;
    int lines = 0;
    while (lines < count && lineAt(lines).isAll(color))
        ++lines;
    if (lines == 0 || lines == count) return 0;
    const Line next = lineAt(lines);
    return 4 * next.alike(color) > next.count ? 0 : lines;
}

}  // namespace

Mask findFrame(const Shot& shot, const Mask& screen) {
    const int width = shot.width, height = shot.height;
    const auto row = [&](int y) { return Line{shot.pixelRow(y), shot.keyRow(y), 1, width}; };
    const int top = framed(height, row), bottom = framed(height, [&](int y) { return row(height - 1 - y); });
    const auto inner = [&](int x) {
        return Line{shot.pixelRow(top) + x, shot.keyRow(top) + x, width, height - top - bottom};
    };
    const int left = framed(width, inner), right = framed(width, [&](int x) { return inner(width - 1 - x); });
    if (top + bottom + left + right == 0) return {};
    Mask frame(width, height);
    for (int y = 0; y < height; ++y) {
        const bool whole = y < top || y >= height - bottom;
        frame.set(y, 0, whole ? width : left);
        if (!whole) frame.set(y, width - right, width);
    }
    Mask rest = frame.inverted();
    rest &= screen;
    return static_cast<double>(rest.count()) < kLeastRest * width * height ? Mask() : frame;
}

}  // namespace tavrin::refine
