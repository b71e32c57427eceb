#pragma once

#include <string>

#include <QString>

namespace tavrin {

/// Why a mail or a sheet did not go, in the language of the window. What is no sentence of the engine's own, such as
/// a server's words or a name, stays as it is.
/// @param english lines, each as `said` makes them
QString reasonText(const std::string& english);

}  // namespace tavrin
