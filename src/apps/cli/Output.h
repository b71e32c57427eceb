#pragma once

#include <string>

class QJsonDocument;

namespace tavrin::cli {

/// To be called first of all: where the program was started without one of the three standard streams, no file that
/// it opens later may take that one's place.
void keepStandardStreams();

/// Prints one line to the standard output, control characters shown.
void printLine(const std::string& line);
/// Prints a JSON text that ends its own line, or one line of JSON.
void printJson(const QJsonDocument& document, bool oneLine);
void printJsonLine(const std::string& json);

/// Brings what was printed to its reader. What could not be written is told, once.
/// @return false when something was lost, now or earlier
bool flushOutput();

}  // namespace tavrin::cli
