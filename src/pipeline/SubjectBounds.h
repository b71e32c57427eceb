#pragma once

#include <cstdint>
#include <optional>

#include <QRect>

namespace tavrin {

/// Where the subject lies in its source, and on which sides the source cuts it. Fractions of the source's size, from
/// its top left corner.
struct SubjectBounds {
    double left = 0.0, top = 0.0, right = 1.0, bottom = 1.0;
    bool cutLeft = false, cutTop = false, cutRight = false, cutBottom = false;
    double headLeft = 0.5, headRight = 0.5;  ///< where nearly all of its upper third lies: heads and raised hands
};

/// Finds the subject in a keyed picture by the alpha bytes of its pixels: what is above a half and hangs together.
/// The largest such part counts, the more the nearer it is to the middle of the width, and every other with at least
/// a quarter of its weight: specks, stands and the end of the cloth do not. Parts that stand above one another are
/// weighed together, since clothes of the screen's hue part a person. Single strands that reach beyond the subject's
/// body do not move its bounds either.
/// @param pixels RGBA, rows packed, `width` pixels each
/// @param source where the whole source lies in it; pixels outside are not looked at
/// @return nothing when no subject is there
std::optional<SubjectBounds> findSubject(const std::uint8_t* pixels, int width, const QRect& source);

/// Percent of the picture's height from its lower edge up to the subject's; 0 when the subject reaches below the
/// picture, or there is none.
int percentBelowSubject(const std::uint8_t* pixels, int width, int height);

}  // namespace tavrin
