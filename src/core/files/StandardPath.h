#pragma once

#include <string>

namespace tavrin {

/// Cleans a path up, without asking whether it exists:
/// - a leading "~" or "~/" becomes the user's home folder ("~name" of another user stays as it is);
/// - empty parts, "." parts and a closing slash go away;
/// - in an absolute path ".." goes to the real parent: of the folder that a link leads to where there is one, else of
///   the name before it. In a relative path ".." stays, since nothing tells what it is relative to.
std::string standardizePath(const std::string& path);

/// The last part of a path.
std::string lastPathComponent(const std::string& path);

}  // namespace tavrin
