#include "core/raster/BoxBlur.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string>
#include <type_traits>

#include "core/Log.h"
#include "core/raster/Rows.h"
#include "core/state/SystemInfo.h"

namespace tavrin {

namespace {

constexpr int kBlockColumns = 32;  // neighbouring columns that slide together, so that memory is walked by rows

// How a pixel is laid out, and a type that holds the sum of a window exactly.
struct RgbaBytes {
    using Sample = std::uint8_t;
    using Sum = std::int32_t;
    static constexpr int kLanes = 4;
    static constexpr bool kKeepsLast = true;  // alpha stays
};
struct SingleInts {
    using Sample = std::int32_t;
    using Sum = double;
    static constexpr int kLanes = 1;
    static constexpr bool kKeepsLast = false;
};

struct Line {
    int samples;
    int radius;        // 0 to `samples`
    std::size_t step;  // from one sample of the line to the next, in elements
};

Line makeLine(int samples, int radius, std::size_t step) {
    return {samples, std::clamp(radius, 0, samples), step};
}

// Slides the window along `lines` neighbouring lines at once. In the middle the sum is multiplied by the inverse of
// the window, at both edges it is divided by the number of samples in it. The sums are whole numbers, so their
// order does not matter. A line shorter than the window has no middle and takes the mean of what the window meets.
template <class Layout, class Count>
void slide(const typename Layout::Sample* src, typename Layout::Sample* dst, const Line line, Count lines) {
    using Sample = typename Layout::Sample;
    constexpr int kLanes = Layout::kLanes;
    std::array<typename Layout::Sum, kBlockColumns * kLanes> sums{};
    std::array<Sample, kBlockColumns * kLanes> means;
    const auto sample = [&](int at) { return src + static_cast<std::size_t>(at) * line.step; };
    const auto add = [&](const Sample* from) {
        for (int i = 0; i < lines * kLanes; ++i)
            sums[i] += from[i];
    };
    const auto drop = [&](const Sample* from) {
        for (int i = 0; i < lines * kLanes; ++i)
            sums[i] -= from[i];
    };
    const auto write = [&](Sample* to, auto mean) {
        for (int i = 0; i < lines * kLanes; ++i)
            means[i] = static_cast<Sample>(static_cast<std::int32_t>(mean(static_cast<double>(sums[i]))));
        for (int i = kLanes - 1; Layout::kKeepsLast && i < lines * kLanes; i += kLanes)
            means[i] = to[i];
        std::copy_n(means.data(), lines * kLanes, to);
    };
    const int n = line.samples, r = line.radius;
    const double inverse = 1.0 / (2.0 * r + 1.0);
    for (int at = 0; at < r; ++at)
        add(sample(at));
    for (int at = 0; at < n; ++at) {
        if (at < n - r) add(sample(at + r));
        if (at > r) drop(sample(at - r - 1));
        Sample* to = dst + static_cast<std::size_t>(at) * line.step;
        if (at > r && at < n - r) {
            write(to, [&](double sum) { return sum * inverse; });
        } else {
            const double count = std::min(at, r) + std::min(n - 1 - at, r) + 1;
            write(to, [&](double sum) { return sum / count; });
        }
    }
}

using One = std::integral_constant<int, 1>;
using Block = std::integral_constant<int, kBlockColumns>;

template <class Layout>
void blurRows(const RunContext& context, const typename Layout::Sample* src, typename Layout::Sample* dst, int w,
              int h, int r) {
    if (w < 1 || h < 1 || !src || !dst) return;
    const std::size_t stride = static_cast<std::size_t>(w) * Layout::kLanes;
    const Line line = makeLine(w, r, Layout::kLanes);
    runRows(context, h, 8, [&](int y) {
        slide<Layout>(src + static_cast<std::size_t>(y) * stride, dst + static_cast<std::size_t>(y) * stride, line,
                      One());
    });
}

template <class Layout>
void blurColumns(const RunContext& context, const typename Layout::Sample* src, typename Layout::Sample* dst, int w,
                 int h, int r) {
    if (w < 1 || h < 1 || !src || !dst) return;
    const Line line = makeLine(h, r, static_cast<std::size_t>(w) * Layout::kLanes);
    const int blocks = (w - 1) / kBlockColumns + 1;
    runRows(context, blocks, 1, [&](int block) {
        const std::size_t first = static_cast<std::size_t>(block) * kBlockColumns;
        const int columns = std::min(kBlockColumns, w - block * kBlockColumns);
        const std::size_t offset = first * Layout::kLanes;
        if (columns == kBlockColumns) {
            slide<Layout>(src + offset, dst + offset, line, Block());
        } else {
            slide<Layout>(src + offset, dst + offset, line, columns);
        }
    });
}

template <class Layout>
void boxBlur(const RunContext& context, typename Layout::Sample* src, typename Layout::Sample* dst, int w, int h,
             int r) {
    if (w < 1 || h < 1 || !src || !dst || context.isSuperseded()) return;
    const std::size_t elements = static_cast<std::size_t>(w) * static_cast<std::size_t>(h) * Layout::kLanes;
    std::memcpy(dst, src, elements * sizeof(*src));
    blurRows<Layout>(context, dst, src, w, h, r);
    blurColumns<Layout>(context, src, dst, w, h, r);
}

RunContext whileWanted(const SystemInfo* info) {
    return info ? info->rowsWhileWanted() : RunContext();
}

}  // namespace

void boxBlurH_4(const SystemInfo*, const std::uint8_t* src, std::uint8_t* dst, int w, int h, int r) {
    blurRows<RgbaBytes>({}, src, dst, w, h, r);
}

void boxBlurT_4(const SystemInfo*, const std::uint8_t* src, std::uint8_t* dst, int w, int h, int r) {
    blurColumns<RgbaBytes>({}, src, dst, w, h, r);
}

void boxBlur_4(const SystemInfo*, std::uint8_t* src, std::uint8_t* dst, int w, int h, int r) {
    boxBlur<RgbaBytes>({}, src, dst, w, h, r);
}

void gaussBlur_4(const SystemInfo* info, std::uint8_t* src, std::uint8_t* dst, int w, int h, int r) {
    boxBlur_4(info, src, dst, w, h, r);
    boxBlur_4(info, dst, src, w, h, r);
    boxBlur_4(info, src, dst, w, h, r);
}

void boxBlurH_Int(const SystemInfo* info, const std::int32_t* src, std::int32_t* dst, int w, int h, int r) {
    blurRows<SingleInts>(whileWanted(info), src, dst, w, h, r);
}

void boxBlurT_Int(const SystemInfo* info, const std::int32_t* src, std::int32_t* dst, int w, int h, int r) {
    blurColumns<SingleInts>(whileWanted(info), src, dst, w, h, r);
}

void boxBlur_Int(const SystemInfo* info, std::int32_t* src, std::int32_t* dst, int w, int h, int r) {
    boxBlur<SingleInts>(whileWanted(info), src, dst, w, h, r);
}

void gaussBlur_Int(const SystemInfo* info, std::int32_t* src, std::int32_t* dst, int w, int h, int r) {
    logTrace("w=" + std::to_string(w) + " h=" + std::to_string(h) + " r=" + std::to_string(r));
    boxBlur_Int(info, src, dst, w, h, r);
    boxBlur_Int(info, dst, src, w, h, r);
    boxBlur_Int(info, src, dst, w, h, r);
}

}  // namespace tavrin
