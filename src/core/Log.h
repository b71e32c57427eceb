#pragma once

#include <string>

namespace tavrin {

/// Writes a line about the course of the work to the standard error stream, unless traces are off.
void logTrace(const std::string& line);

/// Writes a line about something that went wrong to the standard error stream.
void logError(const std::string& line);

/// Traces are on in the desktop program and off on the command line.
void setTraceLog(bool on);

}  // namespace tavrin
