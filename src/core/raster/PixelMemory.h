#pragma once

#include <chrono>
#include <cstddef>

namespace tavrin {

enum class PixelContents { undefined, zeros };

/// Memory for the pixels of pictures; null where it is refused. Large blocks come from the
/// system in huge pages, apart from the heap, which a row of pictures of several sizes would tear to pieces.
void* takePixelMemory(std::size_t bytes, PixelContents contents);
/// Gives back what `takePixelMemory` gave for that many bytes.
void givePixelMemory(void* memory, std::size_t bytes);

/// For programs that make one picture after the other: large blocks that are given back are kept for the next of
/// their size, up to `most` bytes altogether, the latest ones. The system fills each new block with zeros, which for
/// the buffers of a picture takes longer than scaling it.
void keepPixelMemory(std::size_t most);

/// Gives kept blocks that nobody has wanted for so long back to the system, so that a program at rest holds no more
/// than its pictures.
void dropPixelMemory(std::chrono::steady_clock::duration unused);

}  // namespace tavrin
