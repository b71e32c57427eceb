#pragma once

#include <cstdint>

#include "core/state/Field.h"

namespace tavrin {

/// How the portrait is put into the picture.
enum class PlaceRule : std::int32_t {
    corner,   ///< as `fScale`, `iOrgXoff` and `iOrgYoff` say; at their defaults the source begins at the lower left
    centre,   ///< the middle of the source in the middle of the picture
    subject,  ///< framed around the person whom the key leaves
};

/// Where a layer's source lies: `fScale`, `iOrgXoff` and `iOrgYoff` of its record.
struct LayerPlace {
    double scale = 1.0;
    std::int32_t x = 0, y = 0;  ///< thousandths of the picture's width and height, to the right and up
    bool operator==(const LayerPlace&) const = default;
};

/// Places that depend on the subject, which the loop works out once it has the source and the size. It writes the
/// portrait's into the foreground's record and the reflection's into `iSliderReflectionSkewBase`, where they are
/// settings like any other, and no wish is left.
struct PlaceState {
    Field<bool> bPlaceForeground = false;  ///< request to the loop
    Field<PlaceRule> placeRule = PlaceRule::corner;
    Field<double> placeScale = 1.0;                        ///< beside the rule: larger by this factor
    Field<std::int32_t> iPlaceXMove = 0, iPlaceYMove = 0;  ///< and moved by thousandths, right and up
    Field<bool> bReflectAtSubject = false;  ///< request to the loop: reflect at the subject's lowest edge
    LayerPlace placedLast;                  ///< what the program wrote last; not a person's, nor a state's
};

}  // namespace tavrin
