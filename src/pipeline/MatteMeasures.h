#pragma once

#include <array>

#include <QPoint>

#include "key/screen/ScreenLook.h"
#include "pipeline/MatteMap.h"

namespace tavrin {

/// What speaks against a matte. The order is that of the reasons where two weigh alike.
enum class MatteMeasure {
    noScreen,     ///< 1: there is none; 0.5: nobody can tell
    otherScreen,  ///< 1: the portrait's screen is not the one that was keyed
    nothing,      ///< 1: next to nothing is left; see `kNearlyEmpty`
    clothes,      ///< share of the picture of the screen's hue and not its colour, away from edges
    unlike,       ///< share of the picture that was removed and does not look like the screen
    shades,       ///< share of the picture that was removed and is lighter, darker or rougher than a smooth screen
    room,         ///< share of the upper half of one side edge that was kept: what stands beside the screen
    seeds,        ///< share of the subject that was removed within it and looks like the screen
    undecided,    ///< share of the picture that is half solid, far from screen or from subject
    residue,      ///< share of the picture that was kept and looks like the screen
    shadow,       ///< share of the picture that was kept in part and looks like the screen in the shade, beside edges
    specks,       ///< share of what was kept that lies apart from the subject, in parts of less than a tenth of it
    darkPlace,    ///< how much darker than its middle level the darkest part of the screen is, 0 to 1
    darkScreen,   ///< levels of the screen below 255
    overexposed,  ///< share of the screen that has lost its colour
    uneven,       ///< spread of the screen's levels
    previews,     ///< share of the picture that is screen in the preview and subject in the full picture, or reverse
    cut,          ///< sides at which the picture cuts the subject, without the lower one
    exposure      ///< share of the subject that is black or white without any detail
};
inline constexpr std::size_t kMatteMeasures = 19;

/// A picture of which less is left, as a share, is as good as empty.
inline constexpr double kNearlyEmpty = 0.006;

/// The measures, and where each is worst.
struct MatteMeasures {
    std::array<double, kMatteMeasures> values{};
    std::array<QPoint, kMatteMeasures> places{};  ///< samples of the map
    int darkColumn = 0, darkRow = 0;              ///< third of the picture in which the screen is darkest, 0 to 2
    double subject = 0.0;                         ///< share of the picture that was kept

    double& operator[](MatteMeasure measure) { return values[static_cast<std::size_t>(measure)]; }
    double operator[](MatteMeasure measure) const { return values[static_cast<std::size_t>(measure)]; }
    QPoint& place(MatteMeasure measure) { return places[static_cast<std::size_t>(measure)]; }
};

/// Measures a keyed picture, with what was seen of its screen beforehand. For the thread that made it. The same on
/// every machine and for any number of threads.
MatteMeasures measureMatte(const SystemInfo& info, const MatteMap& map, const ScreenLook& look);

}  // namespace tavrin
