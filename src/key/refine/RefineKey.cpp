#include "key/refine/RefineKey.h"

#include <cstring>

#include "core/raster/Pixels.h"
#include "key/refine/OwnColor.h"

namespace tavrin::refine {

namespace {

constexpr std::int64_t kFewestSure = 100;  // pixels to learn the subject's colours from
constexpr int kMargin = 3;                 // of what is decided, so that small windows need nothing beyond

// What the last pass goes by besides the findings.
struct Limits {
    Reach reach;
    GreenLimits green;
    Cells trust;
};

void writeArea(const RunContext& context, const Findings& findings, const Limits& limits, const Area& area,
               std::uint8_t* result) {
    const Shot& shot = findings.shot;
    const Strip wide = area.strip(shot, kColorHalo + FinishRows::halo(findings)),
                strip = area.strip(shot, kColorHalo);
    FinishRows finish(findings, limits.reach, limits.trust, wide);
    ColorRows colors(findings, limits.green, strip);
    std::vector<float> alpha(static_cast<std::size_t>(wide.width));
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(strip.width));
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        finish.fill(y, alpha.data());
        colors.fill(y, alpha.data() + (strip.left - wide.left), pixels.data());
        std::memcpy(result + pixelOffset(shot.width, area.left, y), pixels.data() + (area.left - strip.left),
                    static_cast<std::size_t>(area.width()) * kPixelBytes);
    }
}

// Nothing but screen, as far as no area covers it.
void clearRows(const RunContext& context, const Shot& shot, std::uint8_t* result) {
    runRowRanges(context, shot.height, 16, [&](int first, int last) {
        std::memset(result + pixelOffset(shot.width, 0, first), 0,
                    static_cast<std::size_t>(last - first) * static_cast<std::size_t>(shot.width) * kPixelBytes);
    });
}

bool writeResult(const RunContext& context, const Findings& findings, std::uint8_t* result) {
    const Limits limits{findReach(context, findings), findLimits(context, findings), trustInKey(findings)};
    clearRows(context, findings.shot, result);
    runAreas(context, findings.solid,
             [&](const Area& area) { writeSolid(findings.shot, findings.plate, limits.green, area, result); });
    return runAreas(context, findings.open,
                    [&](const Area& area) { writeArea(context, findings, limits, area, result); });
}

// What is neither well inside nor well on the screen.
Mask openPixels(const RunContext& context, const Mask& screen, const Mask& solid) {
    Mask bare = screen;
    bare &= solid.inverted();
    Mask decided = shrunk(context, bare, kMargin);
    decided |= shrunk(context, solid, kMargin);
    return decided.inverted();
}

}  // namespace

Refined refineKey(const RunContext& context, const Shot& shot, const RefineTaste& taste, std::uint8_t* result) {
    const auto gaveUp = [&context] { return context.isSuperseded() ? Refined::superseded : Refined::noScreen; };
    std::optional<Plate> plate = findScreen(context, shot);
    if (!plate) return gaveUp();
    paintPlate(context, shot, *plate);
    mendScreen(context, shot, *plate);
    if (context.isSuperseded()) return Refined::superseded;
    paintPlate(context, shot, *plate);

    const Core core = findCore(context, shot, *plate);
    if (context.isSuperseded() || core.sure.count() < kFewestSure) return gaveUp();
    const Cells nearer = nearerSide(context, core.solid, plate->screen);
    const Mask open = openPixels(context, plate->screen, core.solid);
    const Separation first = separate(context, shot, *plate, core.sure, open);
    const Mask sure = surePixels(context, {shot, *plate, first, nearer}, core.solid, open);
    if (context.isSuperseded()) return Refined::superseded;
    const Separation separation = separate(context, shot, *plate, sure, open);
    const AlphaPlane alpha = fitAlpha(context, {shot, *plate, separation, nearer}, core.solid, open);
    if (context.isSuperseded()) return Refined::superseded;
    const float missing = missingDetail(context, shot, alpha, open);
    const Findings findings{shot, *plate, separation, core.solid, open, alpha, taste, missing};
    return writeResult(context, findings, result) ? Refined::done : Refined::superseded;
}

}  // namespace tavrin::refine
