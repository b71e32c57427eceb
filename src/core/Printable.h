#pragma once

#include <string>
#include <string_view>

namespace tavrin {

/// A text as one line for a terminal or a log. Names of files are what others made them, and a terminal obeys what it
/// is sent: control characters, line ends, bytes that are no UTF-8 and what turns the direction of writing around
/// are shown as \x1b or \u202e.
std::string printable(std::string_view text);

/// JSON in the form that a terminal may be sent. It means the same: its own rules leave DEL, U+0080 to U+009F and the
/// turns of direction as they are, here they are escaped too.
std::string printableJson(std::string_view json);

}  // namespace tavrin
