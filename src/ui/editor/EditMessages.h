#pragma once

#include <string>

#include <QString>

namespace tavrin {

/// What the editor, its steps of undo and its files say, in the language of the window. Names of files stay, and so
/// does a line that nobody knows.
QString translatedEditMessage(const std::string& line);

}  // namespace tavrin
