#include "core/raster/BoxBlur.h"

#include <algorithm>
#include <memory>
#include <string>

#include "core/Log.h"
#include "core/raster/BoxLanes.h"
#include "core/raster/Pixels.h"

namespace tavrin {

namespace {

constexpr int kRows = 16, kColumns = 128;  // that slide together

// How a pixel is laid out; it fills a word.
struct RgbaBytes {
    using Sample = std::uint8_t;
    static constexpr int kLanes = 4;
    static constexpr std::uint32_t kBlurred = 0x00FFFFFF;  // alpha stays
};
struct SingleInts {
    using Sample = std::int32_t;
    static constexpr int kLanes = 1;
    static constexpr std::uint32_t kBlurred = 0xFFFFFFFF;
};

// The rows from `first` to `last` - 1, turned so that they lie side by side, and turned back. `dst` may be `src`.
template <class Layout>
void blurRowPiece(const typename Layout::Sample* src, typename Layout::Sample* dst, int w, int r, int first,
                  int last) {
    using Sample = typename Layout::Sample;
    const int rows = last - first, lanes = rows * Layout::kLanes;
    const auto words = static_cast<std::size_t>(rows) * static_cast<std::size_t>(w);
    const std::unique_ptr<std::uint32_t[]> lines(new std::uint32_t[words]), means(new std::uint32_t[words]);
    const std::ptrdiff_t offset = static_cast<std::ptrdiff_t>(first) * w * Layout::kLanes;
    turnRows(src + offset, w, w, rows, lines.get());
    boxMeans(BoxLines<Sample>{reinterpret_cast<const Sample*>(lines.get()), lanes, lanes, w,
                              reinterpret_cast<Sample*>(means.get()), lanes},
             std::clamp(r, 0, w));
    turnRowsBack(means.get(), w, rows, Layout::kBlurred, dst + offset, w);
}

template <class Layout>
bool blurRows(const RunContext& context, const typename Layout::Sample* src, typename Layout::Sample* dst, int w,
              int h, int r) {
    if (w < 1 || h < 1 || !src || !dst) return true;
    return runRowRanges(context, h, kRows,
                        [&](int first, int last) { blurRowPiece<Layout>(src, dst, w, r, first, last); });
}

// `kept` has the samples that are not blurred.
template <class Layout>
bool blurColumns(const RunContext& context, const typename Layout::Sample* src, typename Layout::Sample* dst,
                 const typename Layout::Sample* kept, int w, int h, int r) {
    if (w < 1 || h < 1 || !src || !dst) return true;
    const std::ptrdiff_t step = static_cast<std::ptrdiff_t>(w) * Layout::kLanes;
    return runRowRanges(context, w, kColumns, [&](int first, int last) {
        const std::ptrdiff_t left = static_cast<std::ptrdiff_t>(first) * Layout::kLanes;
        const int lanes = (last - first) * Layout::kLanes;
        boxMeans({src + left, step, lanes, h, dst + left, step, Layout::kLanes > 1 ? kept + left : nullptr},
                 std::clamp(r, 0, h));
    });
}

// The rows are blurred in place; what is not blurred goes along with the columns.
template <class Layout>
bool boxBlur(const RunContext& context, typename Layout::Sample* src, typename Layout::Sample* dst, int w, int h,
             int r) {
    return blurRows<Layout>(context, src, src, w, h, r) && blurColumns<Layout>(context, src, dst, src, w, h, r);
}

// New memory is touched row by row: columns would all wait for the same pages, longer than a newer request can.
template <class Sample>
bool touchRows(const RunContext& context, Sample* samples, std::ptrdiff_t step, int h) {
    return runRows(context, h, kRows, [&](int y) { samples[y * step] = 0; });
}

template <class Layout>
bool gaussBlur(const RunContext& context, typename Layout::Sample* src, typename Layout::Sample* dst, int w, int h,
               int r) {
    if (w < 1 || h < 1 || !src || !dst) return true;
    return touchRows(context, dst, std::ptrdiff_t{w} * Layout::kLanes, h) &&
           boxBlur<Layout>(context, src, dst, w, h, r) && boxBlur<Layout>(context, dst, src, w, h, r) &&
           boxBlur<Layout>(context, src, dst, w, h, r);
}

}  // namespace

bool gaussBlur_4(const RunContext& run, std::uint8_t* src, std::uint8_t* dst, int w, int h, int r) {
    return gaussBlur<RgbaBytes>(run, src, dst, w, h, r);
}

bool gaussBlur_Int(const RunContext& run, std::int32_t* src, std::int32_t* dst, int w, int h, int r) {
    logTrace("w=" + std::to_string(w) + " h=" + std::to_string(h) + " r=" + std::to_string(r));
    return gaussBlur<SingleInts>(run, src, dst, w, h, r);
}

bool boxBlur_Int(const RunContext& run, std::int32_t* src, std::int32_t* dst, int w, int h, int r) {
    return boxBlur<SingleInts>(run, src, dst, w, h, r);
}

}  // namespace tavrin
