#include "key/refine/subject/Haze.h"

#include <algorithm>

#include "key/refine/screen/Hues.h"

namespace tavrin::refine {

namespace {

constexpr double kFarReach = 80.0;                        // from all that is no screen, for a plate that no hair dims
constexpr double kLeastFar = 0.02;                        // of the picture
constexpr double kCell = 8.0;                             // about; never less
constexpr double kNearReach = 220.0;                      // of the inside: farther away nothing of it is expected
constexpr float kLeastTint = 1.5f, kTintSpreads = 50.0f;  // levels
constexpr float kLeastLight = 0.6f, kMostLight = 1.15f;   // of the plate's: more is another light, or glare
constexpr float kMostShare = 0.5f;                        // of the subject, where the key has nothing
constexpr float kStraight = 0.8f;                         // cosine between tint and subject

Color at(const Cells& colors, int c, int row) {
    return {colors.row(row, 0)[c], colors.row(row, 1)[c], colors.row(row, 2)[c]};
}

// The mean of the screen's pixels in the cells up to `reach` away.
Color meanAround(const Cells& screen, int reach, int c, int row) {
    Color sum{};
    float weight = 0.0f;
    for (int y = std::max(row - reach, 0); y <= std::min(row + reach, screen.rows() - 1); ++y) {
        for (int x = std::max(c - reach, 0); x <= std::min(c + reach, screen.columns() - 1); ++x) {
            for (int plane = 0; plane < 3; ++plane)
                sum[static_cast<std::size_t>(plane)] += screen.row(y, plane)[x];
            weight += screen.row(y, 3)[x];
        }
    }
    return {sum[0] / weight, sum[1] / weight, sum[2] / weight};
}

// What of a colour lies across the plate's, which light does not change.
Color across(const Color& color, const Color& plate) {
    const float share = dot(color, plate) / std::max(dot(plate, plate), 1.0f);
    return {color[0] - share * plate[0], color[1] - share * plate[1], color[2] - share * plate[2]};
}

// Whether the subject has a share of a colour, besides the plate in some light.
bool isTinted(const Color& own, const Color& plate, const Color& subject, float least) {
    const float light = own[1] / std::max(plate[1], 1.0f);
    if (light < kLeastLight || light > kMostLight) return false;
    if (std::max(own[0] - light * plate[0], own[2] - light * plate[2]) < least) return false;
    const Color tint = across(own, plate), whole = across(subject, plate);
    const float along = dot(tint, whole), most = dot(whole, whole);
    return along > 0.0f && along < kMostShare * most &&
           along * along > kStraight * kStraight * dot(tint, tint) * most;
}

// 8, or 16 in a large picture.
int cellOf(const Shot& shot) {
    int size = 8;
    while (size < 16 && shot.px(kCell) >= 2 * size)
        size *= 2;
    return size;
}

// The cells that lie wholly in a mask.
Cells onlyWhole(const Cells& cells, const Cells& shares) {
    Cells whole(cells.columns(), cells.rows(), cells.planes());
    for (int plane = 0; plane < cells.planes(); ++plane) {
        for (std::size_t i = 0; i < cells.count(); ++i)
            whole.row(0, plane)[i] = shares.row(0, 0)[i] < 1.0f ? 0.0f : cells.row(0, plane)[i];
    }
    return whole;
}

// The cells of the screen that are not far from the subject.
Mask cellsBetween(const RunContext& context, const Shot& shot, const Cells& screen, const Cells& bare,
                  const Mask& solid, int size) {
    const Cells near = sharesOf(context, grown(context, solid, shot.px(kNearReach)), size);
    Mask between(screen.columns(), screen.rows());
    std::vector<std::uint8_t> flags(static_cast<std::size_t>(screen.columns()) + 8);
    for (int row = 0; row < screen.rows(); ++row) {
        for (int c = 0; c < screen.columns(); ++c)
            flags[static_cast<std::size_t>(c)] =
                (screen.row(row, 3)[c] > 0.0f) & (bare.row(row, 3)[c] == 0.0f) & (near.row(row, 0)[c] > 0.5f);
        between.pack(row, flags.data());
    }
    return between;
}

}  // namespace

Mask hazyScreen(const RunContext& context, const Shot& shot, const Plate& plate, const Core& core) {
    const Mask far = shrunk(context, plate.screen, shot.px(kFarReach));
    if (static_cast<double>(far.count()) < kLeastFar * shot.width * shot.height) return Mask(shot.width, shot.height);
    const int size = cellOf(shot);
    const Cells screen = colorsOn(context, shot, plate.screen, size),
                bare = onlyWhole(screen, sharesOf(context, far, size));
    const Mask between = cellsBetween(context, shot, screen, bare, core.solid, size);
    if (context.isSuperseded()) return Mask(shot.width, shot.height);
    const Cells colors = pushPull(context, bare, between),
                subject = pushPull(context, colorsOn(context, shot, core.sure, size), between);
    const int reach = shot.px(kCell) < size ? 0 : 1;
    const float least = kLeastTint + kTintSpreads * plate.spread;
    return maskOf(context, shot.width, shot.height, size, [&](int c, int row) {
        return between.at(c, row) &&
               isTinted(meanAround(screen, reach, c, row), at(colors, c, row), at(subject, c, row), least);
    });
}

}  // namespace tavrin::refine
