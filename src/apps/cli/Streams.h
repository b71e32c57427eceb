#pragma once

#include <string>

namespace tavrin::cli {

/// The name that stands for the standard input or output.
inline constexpr const char* kStream = "-";

/// Where a path is "-", keeps what comes from the standard input in a file of this process and puts that file's path
/// in its place. The input is read once, whoever asks first.
/// @return "" or one plain line
std::string takeInput(std::string& path);

/// Where a path is "-", puts the path of a file of this process in its place, with this extension.
/// @return whether it was
bool takeOutput(std::string& path, const std::string& extension);

/// Prints a file, bytes as they are. What could not be read is told.
bool sendFile(const std::string& path);

}  // namespace tavrin::cli
