// How well portraits are framed: makes each picture with the default settings, places the subject, and looks in the
// result where it came to stand. docs/framing.md has the figures.

#include <CLI/CLI.hpp>
#include <chrono>
#include <cmath>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "pipeline/CombineThread.h"
#include "pipeline/SubjectPlace.h"
#include "session/OutputSizes.h"
#include "session/States.h"

namespace {

using namespace tavrin;

struct Framed {
    SubjectBounds source, picture;
    LayerPlace place;
    double milliseconds = 0.0;
    double middle = 0.0;  ///< of the subject's from the picture's, percent of the width

    bool cutsHead() const { return picture.cutTop && !source.cutTop; }
    bool cutsSide() const { return (picture.cutLeft && !source.cutLeft) || (picture.cutRight && !source.cutRight); }
};

std::unique_ptr<SystemInfo> stateFor(const std::string& picture, const std::string& background, ImageSize size,
                                     const std::string& stateFile) {
    auto info = std::make_unique<SystemInfo>();
    if (!stateFile.empty() && !loadState(*info, stateFile).problem.empty()) return nullptr;
    chooseOwnSize(*info, "framing", size.dWidth, size.dHeight, size.dotsPerInch);
    if (!useChosenSize(*info).empty()) return nullptr;
    info->pForegroundBitmapInfo->sSourceImageFullPath = picture;
    info->pBackgroundBitmapInfo->sSourceImageFullPath = background;
    info->bUseBlueLogic = std::filesystem::path(picture).filename().string().find("blue") != std::string::npos;
    return info;
}

/// Whether an edge of the source lies inside the picture and cuts what is seen of the subject there.
bool showsCut(const SystemInfo& info, const BitmapInfo& foreground) {
    const LayerFit low = fitSource(info, foreground, Resolution::preview);
    const QRectF rect = placedRect(placeOf(foreground), low),
                 flipped(rect.left(), low.outputHeight - rect.bottom(), rect.width(), rect.height());
    const QRect seen = flipped.toRect() & QRect(0, 0, low.outputWidth, low.outputHeight);
    const auto subject = findSubject(info.pBackgroundBitmapInfo->pBitmapDataLowRes, low.outputWidth, seen);
    return subject && ((subject->cutLeft && seen.left() > 1) || (subject->cutTop && seen.top() > 1) ||
                       (subject->cutRight && seen.right() < low.outputWidth - 2) ||
                       (subject->cutBottom && seen.bottom() < low.outputHeight - 2));
}

/// @return false when the picture could not be made, or has no subject
bool frame(SystemInfo& info, Framed& framed, bool& edgeShows) {
    wantPlace(info, PlaceRule::subject);
    info.bSkipHiRes = true;
    CombineThread(info).runUntilIdle();
    if (!info.whyNotFinished(Resolution::preview).empty()) return false;
    BitmapInfo& foreground = *info.pForegroundBitmapInfo;
    framed.place = placeOf(foreground);
    const PassGeometry low = info.geometry(Resolution::preview);
    const auto inPicture =
        findSubject(info.pBackgroundBitmapInfo->pBitmapDataLowRes, low.width, QRect(0, 0, low.width, low.height));
    edgeShows = showsCut(info, foreground);
    const auto start = std::chrono::steady_clock::now();
    const auto inSource = measureSubject(info);
    const std::chrono::duration<double, std::milli> taken = std::chrono::steady_clock::now() - start;
    if (!inPicture || !inSource) return false;
    framed.source = *inSource;
    framed.picture = *inPicture;
    framed.milliseconds = taken.count();
    framed.middle = 50.0 * (inPicture->left + inPicture->right) - 50.0;
    return true;
}

std::string sides(const SubjectBounds& s) {
    return std::string(s.cutLeft ? "L" : "-") + (s.cutTop ? "T" : "-") + (s.cutRight ? "R" : "-") +
           (s.cutBottom ? "B" : "-");
}

}  // namespace

int main(int argc, char** argv) {
    CLI::App app{"Frames portraits and tells where they came to stand"};
    std::vector<std::string> pictures;
    std::string background, state;
    ImageSize size;
    size.dWidth = 5.0;
    size.dHeight = 7.0;
    size.dotsPerInch = 200;
    app.add_option("pictures", pictures, "Portraits; those with \"blue\" in their names have a blue screen")
        ->required();
    app.add_option("--background", background, "What to put behind them")->required();
    app.add_option("--state", state, "Settings of the key");
    double width = 5.0, height = 7.0;
    app.add_option("--width", width, "Inches (default 5)");
    app.add_option("--height", height, "Inches (default 7)");
    CLI11_PARSE(app, argc, argv);
    size.dWidth = width;
    size.dHeight = height;

    int made = 0, headsCut = 0, sidesCut = 0, edges = 0, offMiddle = 0;
    double milliseconds = 0.0;
    std::printf("%-36s cut   fScale     x     y  head%%  middle%%    ms\n", "");
    for (const std::string& picture : pictures) {
        const std::string name = std::filesystem::path(picture).filename().string();
        const auto info = stateFor(picture, background, size, state);
        Framed framed;
        bool edgeShows = false;
        if (!info || !frame(*info, framed, edgeShows)) {
            std::printf("%-36s no subject\n", name.c_str());
            continue;
        }
        ++made;
        headsCut += framed.cutsHead();
        sidesCut += framed.cutsSide();
        edges += edgeShows;
        offMiddle += std::abs(framed.middle) > 3.0;
        milliseconds += framed.milliseconds;
        std::printf("%-36s %s %7.4f %5d %5d %6.1f %8.1f %5.0f%s%s%s\n", name.c_str(), sides(framed.source).c_str(),
                    framed.place.scale, framed.place.x, framed.place.y, 100.0 * framed.picture.top, framed.middle,
                    framed.milliseconds, framed.cutsHead() ? "  head cut" : "", framed.cutsSide() ? "  side cut" : "",
                    edgeShows ? "  edge shows" : "");
    }
    std::printf(
        "%d framed; %d heads and %d sides cut that the source does not cut, %d cut edges show, %d off the middle by "
        "more than 3 percent, %.0f ms each for the look\n",
        made, headsCut, sidesCut, edges, offMiddle, made > 0 ? milliseconds / made : 0.0);
    return 0;
}
