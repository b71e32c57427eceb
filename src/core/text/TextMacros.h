#pragma once

#include <string>

class QDateTime;

namespace tavrin {

/// Replaces the macros of a text item: "<<filename>>" by the last part of `sourcePath`, "<<filenumber>>" by the
/// decimal digits of that name, "<<date>>" by the day as dd/MM/yyyy, "<<time>>" by the time as hh:mm AM or PM. All
/// of them, as often as they stand there; anything else in double brackets stays.
std::string expandMacros(const std::string& text, const std::string& sourcePath, const QDateTime& now);

}  // namespace tavrin
