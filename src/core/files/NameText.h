#pragma once

#include <string>

#include <QString>

namespace tavrin {

/// The name of a file as text, for whatever can hold text only. File names are bytes: what is UTF-8 stands as it is,
/// and every other byte (and each of a byte order mark's) is the lone surrogate U+DC00 + byte, which no UTF-8 can
/// hold (in JSON "\udcf6" for the byte F6). So two names never become one text.
QString textOfName(const std::string& name);

/// The name that a text of `textOfName` stands for. Plain text stands for its UTF-8.
std::string nameOfText(const QString& text);

}  // namespace tavrin
