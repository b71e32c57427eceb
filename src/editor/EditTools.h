#pragma once

#include <cstdint>
#include <optional>

#include "editor/ColorSelection.h"
#include "editor/brush/BrushTable.h"

namespace tavrin {

/// From where "Copy" takes its pixels. Lengths are pixels of the picture, y downward.
struct CopyAnchor {
    double orgX = -1.0, orgY = -1.0;  ///< -1: not set
    double offsetX = 0.0, offsetY = 0.0;
    bool isFresh = false;  ///< the next stamp sets the offset

    bool operator==(const CopyAnchor&) const = default;
};

/// All by which a stroke of the same hand comes out otherwise: how the tools stand.
struct EditTools {
    BrushTable brushes = makeBrushTable();
    int iActiveButton = kEraseForeground;
    std::optional<GUI_BrushInfo> well = {};  ///< the colour well, once somebody has set it
    SelectionSource selection = {};
    CopyAnchor anchor = {};
};

}  // namespace tavrin
