#include "key/refine/Steps.h"

#include <cstring>
#include <utility>

#include "core/raster/Pixels.h"
#include "key/refine/finish/OwnColor.h"
#include "key/refine/finish/Specks.h"
#include "key/refine/screen/Frame.h"
#include "key/refine/subject/Haze.h"
#include "key/refine/subject/Marks.h"
#include "key/refine/subject/NearNoise.h"

namespace tavrin::refine {

namespace {

constexpr std::int64_t kFewestSure = 100;  // pixels to learn the subject's colours from
constexpr int kMargin = 3;                 // of what is decided, so that small windows need nothing beyond

// What the last pass goes by besides the findings.
struct Limits {
    Reach reach;
    Cells unrest;
    GreenLimits green;
    Trust trust;
};

void writeArea(const RunContext& context, const Findings& findings, const Limits& limits, const Area& area,
               Traces& traces, std::uint8_t* result) {
    const Shot& shot = findings.shot;
    const Strip wide = area.strip(shot, kColorHalo + FinishRows::halo(findings)),
                strip = area.strip(shot, kColorHalo);
    FinishRows finish(findings, limits.reach, limits.unrest, limits.trust, wide);
    ColorRows colors(findings, limits.green, finish, strip);
    std::vector<float> alpha(static_cast<std::size_t>(wide.width));
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(strip.width));
    std::vector<std::uint8_t> scratch(2 * (static_cast<std::size_t>(area.width()) + 8));
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        finish.fill(y, alpha.data());
        colors.fill(y, alpha.data() + (strip.left - wide.left), pixels.data());
        std::memcpy(result + pixelOffset(shot.width, area.left, y), pixels.data() + (area.left - strip.left),
                    static_cast<std::size_t>(area.width()) * kPixelBytes);
        traces.note(y, area.left, area.width(), pixels.data() + (area.left - strip.left), scratch.data());
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
    const Limits limits{findReach(context, findings), unrestOf(context, findings.plate),
                        findLimits(context, findings), trustInKey(context, findings)};
    clearRows(context, findings.shot, result);
    runAreas(context, findings.solid,
             [&](const Area& area) { writeSolid(findings.shot, findings.plate, limits.green, area, result); });
    Traces traces(findings.solid);
    return runAreas(context, findings.open,
                    [&](const Area& area) { writeArea(context, findings, limits, area, traces, result); }) &&
           clearSpecks(context, findings.shot, traces, result);
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

bool Steps::findPlate(const RunContext& context, const Shot& shot, bool& still) {
    std::optional<Plate> found = findScreen(context, shot);
    if (!found) return false;
    Mask frame = findFrame(shot, found->screen);
    still = still && frame == frame_;
    frame_ = std::move(frame);
    if (!still || found->screen != seeds_.screen || found->difference != seeds_.difference ||
        found->cloth != seeds_.cloth || found->dyed != seeds_.dyed) {
        seeds_ = std::move(*found);
        look_ = {};
        paintPlate(context, shot, frame_, seeds_);
    }
    Mask screen = mendedScreen(context, shot, seeds_, look_);
    still = still && screen == plate_.screen && seeds_.difference == plate_.difference &&
            seeds_.cloth == plate_.cloth && seeds_.dyed == plate_.dyed;
    if (!keeps_) look_ = {};
    if (still || context.isSuperseded()) return still;
    plate_.difference = seeds_.difference;
    plate_.screen = std::move(screen);
    plate_.cloth = seeds_.cloth;
    plate_.dyed = seeds_.dyed;
    if (!keeps_) seeds_ = {};
    paintPlate(context, shot, frame_, plate_);
    return true;
}

void Steps::clearHaze(const RunContext& context, const Shot& shot) {
    const Mask hazy = hazyScreen(context, shot, plate_, core_);
    clean_ = {};
    isHazy_ = hazy.count() > 0;
    if (!isHazy_ || context.isSuperseded()) return;
    clean_.difference = plate_.difference;
    clean_.spread = plate_.spread;
    clean_.cloth = plate_.cloth;
    clean_.dyed = plate_.dyed;
    clean_.screen = plate_.screen;
    clean_.screen &= hazy.inverted();
    paintColors(context, shot, frame_, clean_);
}

bool Steps::findSubject(const RunContext& context, const Shot& shot, bool& still) {
    still = still && isStill(core_, context, shot);
    if (still) return true;
    core_ = findCore(context, shot, plate_);
    if (context.isSuperseded() || core_.sure.count() < kFewestSure) return false;
    clearHaze(context, shot);
    if (context.isSuperseded()) return false;
    open_ = openPixels(context, behind().screen, core_.solid);
    marks_ = findMarks(context, shot, behind(), core_, open_);
    if (frame_.width() > 0) marks_ |= frame_;
    open_ &= marks_.inverted();
    first_ = separate(context, shot, behind(), core_.sure, open_);
    return true;
}

bool Steps::findAlpha(const RunContext& context, const Shot& shot, bool& still) {
    Mask clear = clearParts(context, shot);
    clear &= core_.solid.inverted();
    clear |= behind().screen;
    if (!still || clear != clear_) {
        clear_ = std::move(clear);
        nearer_ = nearerSide(context, core_.solid, clear_);
    }
    Mask sure = surePixels(context, {shot, behind(), first_, nearer_}, core_.solid, open_);
    if (context.isSuperseded()) return false;
    if (!keeps_) first_ = {};
    if (!still || sure != sure_) {
        sure_ = std::move(sure);
        separation_ = separate(context, shot, behind(), sure_, open_);
    }
    alpha_ = fitAlpha(context, {shot, behind(), separation_, nearer_}, core_.solid, open_);
    if (context.isSuperseded()) return false;
    missingDetail_ = missingDetail(context, shot, alpha_, open_);
    nearNoise_ = noiseBesideSubject(context, shot, behind(), separation_, open_);
    return true;
}

Refined Steps::run(const RunContext& context, const Shot& shot, const RefineTaste& taste, std::uint8_t* result) {
    bool still = std::exchange(known_, false);  // also while memory may run out
    if (!findPlate(context, shot, still) || !findSubject(context, shot, still) || !findAlpha(context, shot, still))
        return context.isSuperseded() ? Refined::superseded : Refined::noScreen;
    return runWith(context, shot, taste, result);
}

Refined Steps::runWith(const RunContext& context, const Shot& shot, const RefineTaste& taste, std::uint8_t* result) {
    known_ = false;
    const Findings findings{shot,   behind(), separation_, core_.solid,    open_,
                            marks_, alpha_,   taste,       missingDetail_, nearNoise_};
    known_ = writeResult(context, findings, result);
    return known_ ? Refined::done : Refined::superseded;
}

}  // namespace tavrin::refine
