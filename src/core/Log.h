#pragma once

#include <string>

namespace tavrin {

/// Writes a line about the course of the work to the standard error stream, unless traces are off.
void logTrace(const std::string& line);

/// Writes a line about something that went wrong to the standard error stream.
void logError(const std::string& line);

/// Writes a line about something that a person should look at and that stopped nothing to the standard error stream.
void logWarning(const std::string& line);

/// What the lines about errors and warnings begin with on the command line, like "tavrin-cli"; "" for nothing. To be
/// called first of all.
void setLogName(const std::string& program);

/// Leaves warnings out; errors are told all the same.
void setQuietLog(bool on);

/// Whether there are traces; there are none at first.
void setTraceLog(bool on);

}  // namespace tavrin
