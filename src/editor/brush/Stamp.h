#pragma once

#include <cstdint>
#include <optional>
#include <tuple>
#include <vector>

#include "editor/brush/BrushTable.h"
#include "editor/brush/EditorKey.h"
#include "editor/brush/EditorPixels.h"
#include "editor/brush/KeptColors.h"

namespace tavrin {

/// One touch of a tool, at a place of the picture.
struct Stamp {
    Stamp(int brush, const GUI_BrushInfo& settings, bool blueLogic);

    int brush;
    GUI_BrushInfo settings;
    std::int32_t iRadius = 0;                           ///< pixels of the picture
    std::int32_t iXCursor = 0, iYCursor = 0;            ///< its centre, inside the picture
    double dAnchorOffsetX = 0.0, dAnchorOffsetY = 0.0;  ///< from a pixel to the one that "Copy" takes
    bool anchored = false;                              ///< "Copy" knows from where
    bool swaps;                                         ///< the tool compares with a blue screen, as if it were green
    Rgb color;                                          ///< the tool's, with green and blue exchanged where it swaps
    HsvColor in;                                        ///< of `color`

    /// Rows above and below the centre at a column `dx` beside it, and columns beside it at such a row.
    int halfHeight(int dx) const;
    /// What the stroke takes on so many whole pixels from the centre: strength times fall-off.
    double strength(int distance) const;
};

/// Puts a stamp into the picture. Each pixel is made from the snapshot, and only where this stamp is at least as
/// strong as all of the stroke before it, so going over a place twice does not add up.
class StampPainter {
  public:
    StampPainter(EditorPixels& pixels, EditorKey& key);

    /// From here on every pixel is made anew, also where a stamp is as strong as the last one: to be called before
    /// whatever is not one more stamp of the same tool with the same settings on the same snapshot.
    void beginStroke();

    /// @return the rows that were changed
    EditedRows paint(const Stamp& stamp);

    /// Some pixel of the stamp is neither protected nor had by a stronger one of this stroke.
    bool reachesAny(const Stamp& stamp) const;

  private:
    struct Sums {
        std::int32_t red, green, blue, largest, count;
    };
    struct Adjusted {
        std::uint8_t red, green, blue;
        bool isGreen;  ///< more than a little above its red and its blue
    };

    /// Strength at a whole distance from the centre.
    struct Level {
        double strength;
        int touch;
        bool alone;  ///< no other strength of the stamp has this touch value
    };

    /// What the colours of a pixel that are kept go by, beside the snapshot.
    using Maker = std::tuple<int, double, bool, std::uint8_t, std::uint8_t, std::uint8_t>;

    bool takesOrder(const Stamp& stamp) const;
    void layOutLevels(const Stamp& stamp);
    bool keepsColors(const Stamp& stamp, const KeptColors::Box& box);
    void paintRow(const Stamp& stamp, const KeptColors::Box& box, int y);
    bool isPassedOver(std::size_t pixel, const Level& level) const;
    void paintPixel(const Stamp& stamp, int x, int y, int distance);
    void writeBack(QLXPixel& s, std::size_t pixel, double t, const OutColor& out);
    std::optional<OutColor> outColor(const Stamp& stamp, const QLXPixel& s, int x, int y);
    std::optional<OutColor> makeColor(const Stamp& stamp, const QLXPixel& s, int x, int y);
    SpilledPixel spill(int x, int y);

    void prepareNeighbours(const Stamp& stamp);
    bool isKept(const QLXPixel& s, int x, int y);
    void sumRow(int y, int from, int to);
    Sums around(const QLXPixel& s, int x, int y) const;
    bool counts(const QLXPixel& p) const { return !(p.alpha <= 199 && key_.bOutputTransparency); }
    std::optional<Rgb> averaged(const Stamp& stamp, const QLXPixel& s, int x, int y) const;
    Rgb blendEdge(const Rgb& average, const QLXPixel& s, int x, int y, int count) const;

    EditorPixels& pixels_;
    EditorKey& key_;
    bool inOrder_ = false, keeps_ = false;
    KeptColors kept_;
    Maker maker_;
    std::vector<Level> levels_;         // by the distance from the centre
    std::vector<std::uint8_t> doneBy_;  // for each pixel the stroke that has made it, where again would be the same
    std::uint8_t stroke_ = 1;
    int half_ = 0;                          // of the neighbourhood's square
    int left_ = 0, top_ = 0, columns_ = 0;  // what the two below cover
    std::vector<Sums> sums_;                // for each row of the stamp, sums up to a column
    std::vector<Adjusted> adjusted_;        // foreground in reach of "Blend Edge"
};

/// 1 where a pixel looks like the screen: from its distance to it, beside that of the tool's colour.
double likenessToScreen(const HsvColor& base, const HsvColor& pixel, const HsvColor& tool);

}  // namespace tavrin
