#pragma once

#include <cstdint>

namespace tavrin {

// Rows of the sketch, with the vectors of this machine.

/// The types of a sketch; any other from 2 up is an unfinished grey one, any below 1 a cartoon.
inline constexpr int kCartoon = 1, kGreySketch = 2, kPencilSketch = 3, kParchmentSketch = 4;

/// Writes `sketchGrey` of `width` RGBA pixels.
void sketchGreyRow(const std::uint8_t* rgba, int width, int effectType, std::uint8_t* grey);

/// What a row of a sketch is drawn from, one value a pixel.
struct SketchRow {
    const std::uint8_t* grey = nullptr;
    const std::uint8_t* flat = nullptr;       ///< the grey after it was flattened
    const std::uint16_t* negative = nullptr;  ///< blurred, 0 to 65025
    /// RGBA words, red in the lowest byte; null for types that don't need them.
    const std::int32_t *pencil = nullptr, *crossedPencil = nullptr, *parchment = nullptr;
};

/// Draws `width` RGBA pixels over the picture's own; alpha stays.
void drawSketchRow(const SketchRow& row, int width, int effectType, std::uint8_t* rgba);

}  // namespace tavrin
