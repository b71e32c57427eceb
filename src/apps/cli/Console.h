#pragma once

#include <cstdio>
#include <string>

#include "core/state/Interface.h"

namespace tavrin::cli {

/// Exit codes of tavrin-cli.
inline constexpr int kDone = 0, kFailed = 1, kUsage = 2;

/// Prints one line to the standard error stream, after the program's name.
void complain(const std::string& line);

/// From here on errors alone are told.
void setQuiet();
bool isQuiet();
/// Prints one such line for what is worth knowing and stops nothing, unless errors alone are told.
void warn(const std::string& line);
/// The same for what was done.
void tell(const std::string& line);

/// The engine's window on the command line: alerts are lines, progress is one line that is written over and over
/// when the standard error stream is a terminal.
class Console : public Interface {
  public:
    Console();
    ~Console() override;

    /// Whether somebody looks at this stream.
    static bool isTerminal(std::FILE* stream = stderr);

    bool wantsPixels() const override { return false; }
    void repaint(const PublishedRows& rows) override;
    void showAlert(const std::string& message, const std::string& reason) override;

    /// Something was shown that is wrong with the picture.
    bool hadAlert() const { return hadAlert_; }
    /// Takes the progress line away.
    void clearProgress();

  private:
    const bool isTerminal_;
    bool lineShown_ = false;
    bool hadAlert_ = false;
};

}  // namespace tavrin::cli
