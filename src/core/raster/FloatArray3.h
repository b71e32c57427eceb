#pragma once

namespace tavrin {

/// A three-level array, indexed [row][column][component], over one block of rows * columns * depth + 10 floats
/// (ten spare ones at the end, for kernels that read a little past it). Element (i, j) starts at float
/// (i * columns + j) * depth of the block. The contents are undefined.
/// @return null when memory was refused or a size is below 1
float*** memAllocFloat3(int rows, int columns, int depth);

/// Frees what `memAllocFloat3` gave; null is accepted.
void memFreeFloat3(float*** array);

}  // namespace tavrin
