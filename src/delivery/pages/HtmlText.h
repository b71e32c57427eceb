#pragma once

#include <string>
#include <string_view>

namespace tavrin {

/// A text as a page shows it, between tags and within quotes of an attribute, whatever the page says of its encoding:
/// what means something to a page and what is not plain ASCII becomes a number. Bytes that are no UTF-8 show as the
/// sign for that.
std::string htmlText(std::string_view utf8);

/// A path's bytes for a link of a page: all but letters, digits and "-._~/" as percent and two digits.
std::string linkPath(std::string_view path);

/// Writes a page, whole or not at all. It is made anew whenever it is wanted, so nobody waits for the disk.
/// @return "" or one plain line
std::string writeHtml(const std::string& path, const std::string& html);

}  // namespace tavrin
