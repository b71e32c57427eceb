#pragma once

#include <string>

namespace tavrin {

// How texts stand in a mail, and which of them may.

/// Why an address cannot stand in a mail at all, such as for a line break in it, which could bring in lines of its
/// own; "" when it can. Nothing is said of whether anybody has it.
std::string whyUnsafe(const std::string& address);
/// Whether there is something on both sides of one "@".
bool isAddress(const std::string& address);

/// A text as the line of a header takes it: plain ASCII as it stands, anything else as encoded words of UTF-8. What
/// would end the line is a blank.
std::string headerText(const std::string& text);
/// The line that names an attached file.
std::string dispositionLine(const std::string& fileName);
/// The type of a file by its name, as mails tell it.
std::string mailTypeOf(const std::string& fileName);
/// The lines of a text ended as mails want it.
std::string withMailLines(const std::string& text);

}  // namespace tavrin
