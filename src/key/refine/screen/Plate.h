#pragma once

#include <memory>
#include <optional>
#include <vector>

#include "key/refine/grid/CellRows.h"
#include "key/refine/grid/Cells.h"
#include "key/refine/grid/Mask.h"
#include "key/refine/grid/RowLoops.h"
#include "key/refine/grid/Shot.h"

namespace tavrin::refine {

/// Side of a cell of the plate, in pixels of every picture.
inline constexpr int kPlateCell = 4;

/// The empty screen as it must look behind the subject.
struct Plate {
    Mask screen;       ///< pixels that are surely screen
    Mask cloth, dyed;  ///< the inside of cloth near the screen's hue, and what has its hue; may be empty (width 0)
    Cells colors;      ///< in roles, cells of `kPlateCell`
    float difference = 0;  ///< the screen's usual lead of its channel over the larger of the others
    float spread = 0;      ///< how far alpha strays from 0 on the screen, as a deviation
};

/// The pixels that the key made clear and that have over half the screen's usual colour difference, away from others.
/// @return nothing where there is too little screen to go by, or it has hardly any colour
std::optional<Plate> findScreen(const RunContext& context, const Shot& shot);

/// Takes out of the screen what stands apart in small areas and has a colour that the screen has in no light: spots
/// in cloth near its hue.
void dropStrangers(const RunContext& context, const Shot& shot, Mask& screen);

/// Colours of a mask's pixels in roles times their share, and the share, on cells of `size` pixels: 4, 8 or 16.
Cells colorsOn(const RunContext& context, const Shot& shot, const Mask& mask, int size);

/// Makes the colours from the screen's pixels.
/// @param frame what tells nothing of the screen though it is part of it; may be empty
/// @return the pixels that they were made from
Mask paintColors(const RunContext& context, const Shot& shot, const Mask& frame, Plate& plate);
/// The same, and measures `spread` anew.
void paintPlate(const RunContext& context, const Shot& shot, const Mask& frame, Plate& plate);

/// Adds what the screen goes over into where its colour changes little by little, from green to blue for one: cells
/// as smooth as the screen whose colour differs little from that of the one before. Only if that is a large area.
/// @param difference the screen's usual one
void followDrift(const RunContext& context, const Shot& shot, float difference, Mask& screen);

/// The pixels to which the key gave next to nothing, and to all around them: a gap in which the light is another.
Mask clearParts(const RunContext& context, const Shot& shot);

/// What a plate tells of single pixels, whatever the key: asked for where it is wanted, and known from then on.
struct PlateLook {
    Mask near;         ///< the screen's pixels that do not differ from the plate
    Mask asked, soft;  ///< the pixels that were looked at for shadow, and those of them that may be
};

/// The plate's screen without what differs from it (hair that the key took away), and with the smooth shadows that
/// hang together with it.
/// @param look empty, or as it came from here with the same picture and plate
Mask mendedScreen(const RunContext& context, const Shot& shot, const Plate& plate, PlateLook& look);

/// The rows of a strip beside its plate, and the simple alpha: one less the colour difference over the plate's.
class StartRows {
  public:
    StartRows(const Strip& strip, const Plate& plate);

    /// Row `y` of the picture's three channels and of the plate's.
    void load(int y, float* const* planes);
    /// Goes to row `y`: all that follows is of this row.
    void go(int y);
    /// -0.3 to 1.
    void alpha(float* to) const;
    /// The picture's colours and the plate's.
    ChannelRow own() const { return {line(0), line(1), line(2)}; }
    ChannelRow screen() const { return {line(3), line(4), line(5)}; }

  private:
    const float* line(std::size_t i) const { return lines_.get() + i * static_cast<std::size_t>(strip_.width); }
    float* line(std::size_t i) { return lines_.get() + i * static_cast<std::size_t>(strip_.width); }

    Strip strip_;
    float least_;
    CellRows plate_;
    std::unique_ptr<float[]> lines_;
};

}  // namespace tavrin::refine
