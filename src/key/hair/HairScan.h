#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "core/raster/ColorMath.h"
#include "core/raster/Rows.h"
#include "core/state/KeySettings.h"

namespace tavrin {

/// The automatic search for hair colours: lines walk inward from three sides to the first skin, and what lies
/// before it is counted by its red level.
class HairScan {
  public:
    /// @param foreground RGBA picture; @param skin RGBA mask of the same size, a first byte of 128 or more is skin.
    /// Both must outlive the object.
    HairScan(const std::uint8_t* foreground, const std::uint8_t* skin, int width, int height);

    /// Counts. @param base colour of the screen, in roles
    /// @return false when superseded; there is nothing to pick then
    bool run(const RunContext& context, const Rgb& base, bool blueLogic);

    /// Writes up to five of the most frequent colours, in roles, into the list and says whether there are any.
    /// To be called once, after `run`.
    void pick(HairColors& colors);

  private:
    struct Bin {
        std::int64_t red = 0, green = 0, blue = 0, count = 0;
    };
    /// A line of pixels: index of the first one, distance to the next, and how many.
    struct Line {
        std::ptrdiff_t first, step;
        int length;
    };
    enum class Direction { Down, Right, Left };

    bool classify(const RunContext& context, const Rgb& base, bool blueLogic);
    bool scan(const RunContext& context, Direction direction, bool blueLogic);
    int countLine(const Line& line, bool blueLogic);
    void average();
    bool pickOne(HairColors& colors);

    const std::uint8_t* foreground_;
    const std::uint8_t* skin_;
    int width_, height_;
    std::vector<std::uint8_t> kind_;  // what each pixel is to the search
    std::array<Bin, 256> bins_{};
};

}  // namespace tavrin
