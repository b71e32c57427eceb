#pragma once

#include <vector>

#include "editor/brush/ColorSteps.h"
#include "editor/brush/EditorKey.h"
#include "editor/brush/EditorPixels.h"

namespace tavrin {

/// Whose colours a selection compares, and with what.
struct SelectionSource {
    std::int64_t iSelectionMode = 4;  ///< `ColorSelection::kNone`
    double dSelectTolerance = 0.25;   ///< 0 to 1
    std::uint8_t iSelectRed = 0, iSelectGreen = 0, iSelectBlue = 0;

    bool operator==(const SelectionSource&) const = default;
};

/// Pixels near a colour, which the brushes must leave alone. While they are selected the picture itself shows a
/// checker pattern on them; their records in the snapshot keep what is below it.
struct ColorSelection : SelectionSource {
    static constexpr int kForegroundColor = 0, kCombinedColor = 2, kNone = 4;

    bool bSelected = false;

    /// Protects the pixels within the tolerance, or with `invert` those beyond it.
    /// @return whether it did; not while one stands, nor without a source of colours
    bool SelectColorRange(EditorPixels& pixels, const EditorKey& key, bool invert);
    /// Takes the pattern off and sets all pixels free.
    /// @return whether one stood
    bool DeselectColorRange(EditorPixels& pixels);
    /// Another visit begins, with a new mask and perhaps another foreground.
    void beginVisit();

  private:
    std::vector<ColorSteps> foreground_;  // of every pixel, adjusted; empty until it is asked for
};

}  // namespace tavrin
