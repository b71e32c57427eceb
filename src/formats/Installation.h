#pragma once

#include <string>

#include "core/files/Places.h"
#include "core/state/QLXInfo.h"

namespace tavrin {

/// Makes a fresh account work: makes the folders of `places` and puts what the program ships into them where it is
/// missing. What the user has is never written over, and programs that start at once do not disturb each other: a
/// file appears whole and only where there is none. The shipped files are part of the program itself, so this works
/// from a build tree as well.
/// @return "" when done; otherwise one line: the first folder or file that could not be made, why, and how many more
[[nodiscard]] std::string installMissingFiles(const Places& places = Places::current());

/// The lists of sizes and pages alone, into a folder that is there.
[[nodiscard]] std::string installMissingLists(const Places& places = Places::current());

/// Bytes of a file that the program ships, by its name in `data/`; empty when it has none of that name.
std::string shippedFile(const std::string& name);

/// What a fresh account starts with: the shipped state and the sample pictures.
QLXInfo firstSettings(const Places& places = Places::current());

/// Path of a picture that the program ships, by its name below the pictures folder ("Texture/Canvas.jpg"). Where the
/// user's copy is missing it is put back; when that fails one line goes to the error stream.
std::string shippedPicture(const std::string& name, const Places& places = Places::current());

}  // namespace tavrin
