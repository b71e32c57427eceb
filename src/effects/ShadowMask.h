#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/raster/ColorMath.h"
#include "key/ChannelRoles.h"

namespace tavrin {

/// Where a shadow falls and from where it is cast. Lengths in pixels, angles in radians; whole numbers held as
/// doubles where the sliders allow more than an int.
struct ShadowGeometry {
    int width = 0, height = 0;
    double shiftX = 0.0, shiftY = 0.0;  ///< of the shadow against the subject
    double base = 0.0;                  ///< height of the line the subject stands on, from the bottom
    double scale = 1.0;                 ///< 0: the places that cast it are not finite, and no shadow falls
    double sine = 0.0, cosine = 1.0;    ///< of the floor's angle
    double skew = 0.0;
    bool behind = false;     ///< the shadow falls away from the viewer
    bool room = false;       ///< there is a floor and a wall; otherwise one flat wall
    double floorLeft = 0.0;  ///< row where wall and floor meet at the left edge
    double floorStep = 0.0;  ///< by how much that row changes from column to column
};

/// A position in the foreground, between pixels.
struct SourcePoint {
    double column = 0.0, row = 0.0;
};

/// The geometry with what each column shares.
struct ShadowColumns {
    explicit ShadowColumns(const ShadowGeometry& geometry);

    ShadowGeometry geometry;
    std::vector<double> floorRow;   ///< last row of the wall, may lie outside of the picture
    std::vector<SourcePoint> wall;  ///< with a room: what falls on the wall's last row; without: the column alone
};

/// The rough key of the shadow: what part of the foreground casts one.
struct ShadowKey {
    /// @param screen the screen's colour in roles
    ShadowKey(bool blueLogic, const Rgb& screen, double blackLimit, double greenLimit);

    /// The pixel (red, green, blue bytes) belongs to the subject.
    bool casts(const std::uint8_t* pixel) const;

    ChannelRoles roles;
    double baseGreen, blackLimit, greenLimit;
    double redShare, blueShare;  ///< of the screen's red and blue to its green
    /// The screen's colour made as light or dark as a pixel whose red, green or blue has the index's value.
    std::array<Rgb, 256> byRed, byGreen, byBlue;
};

/// The part of the foreground that may cast a shadow, all ends included.
struct ShadowClip {
    double left = 0.0, top = 0.0, right = 0.0, bottom = 0.0;
};

/// One row of the mask: 1 where the shadow falls, else 0. `foreground` and the mask have the geometry's size.
void shadowMaskRow(const ShadowColumns& columns, const ShadowKey& key, const ShadowClip& clip,
                   const std::uint8_t* foreground, int y, std::uint8_t* row);

}  // namespace tavrin
