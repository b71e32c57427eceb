#pragma once

#include <string>

#include "core/image/FileKind.h"

namespace tavrin {

/// Looks at what a JPEG, PNG, WebP or HEIF file holds beside its picture, before a decoder sees it: blocks that claim
/// to be longer than the file, blocks of tens of megabytes, and camera data that take for ever to parse.
/// @return "" or why the file is refused, as one plain line
std::string metadataProblem(const std::string& path, FileKind kind);

}  // namespace tavrin
