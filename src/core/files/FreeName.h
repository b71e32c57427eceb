#pragma once

#include <string>

namespace tavrin {

/// Moves a file to a name in the same file system that nobody has. The step from "nobody has it" to "this file has
/// it" cannot be split, so of several programs one wins and no file is ever replaced. (Where the file system knows no
/// such step, the look and the move follow each other.)
/// @return 0, EEXIST when the name is taken, or another number of the system; the file is as it was then
int moveToFreeName(const std::string& file, const std::string& name);

/// Brings the names in a folder to the disk, so that a power cut takes none of them back.
void bringNamesToDisk(const std::string& folder);

}  // namespace tavrin
