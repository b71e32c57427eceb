#include "key/refine/RefineKey.h"

#include "core/raster/Pixels.h"
#include "key/refine/OwnColor.h"

namespace tavrin::refine {

namespace {

constexpr int kBlockRows = 64;
constexpr std::int64_t kFewestSure = 100;  // pixels to learn the subject's colours from

bool writeResult(const RunContext& context, const Findings& findings, std::uint8_t* result) {
    const Reach reach = findReach(context, findings);
    const GreenLimits limits = findLimits(context, findings);
    const Shot& shot = findings.shot;
    return runBlocks(context, shot.height, kBlockRows, [&](int first, int last) {
        FinishRows finish(findings, reach);
        ColorRows colors(findings, limits);
        std::vector<float> alpha(static_cast<std::size_t>(shot.width));
        for (int y = first; y < last && !(y != first && context.isSuperseded()); ++y) {
            finish.fill(y, alpha.data());
            colors.write(y, alpha.data(), result + pixelOffset(shot.width, 0, y));
        }
    });
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
    const Separation first = separate(context, shot, *plate, core.sure);
    const Mask sure = surePixels(context, shot, *plate, first, nearer, core.solid);
    if (context.isSuperseded()) return Refined::superseded;
    const Separation separation = separate(context, shot, *plate, sure);
    const AlphaPlane alpha = fitAlpha(context, shot, *plate, separation, nearer);
    if (context.isSuperseded()) return Refined::superseded;
    const Findings findings{shot, *plate, separation, core.solid, alpha, taste, missingDetail(context, shot, alpha)};
    return writeResult(context, findings, result) ? Refined::done : Refined::superseded;
}

}  // namespace tavrin::refine
