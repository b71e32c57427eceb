#pragma once

#include <chrono>
#include <deque>

#include "farm/BatchRun.h"

class QJsonObject;

namespace tavrin::cli {

/// A batch on the command line: lines of JSON on the standard output, or words for people; failures and what else is
/// worth knowing on the standard error stream, and there a bar with rate and time left when it is a terminal.
class BatchConsole : public BatchObserver {
  public:
    struct Form {
        bool json = false;    ///< a line of JSON a picture, not words
        bool events = false;  ///< and one for whatever else happens
        bool dryRun = false;
    };
    BatchConsole(Form form, std::string outFolder);
    ~BatchConsole() override;

    void finished(const JobResult& result, const BatchCounts& counts) override;
    void note(const std::string& line) override;
    void idle(const BatchCounts& counts) override;

    /// The user has asked the run to stop. On any thread.
    void stopping() const;
    /// The sums, in words.
    void summarize(const BatchCounts& counts, bool watch);

  private:
    void tellPlan(const JobResult& result);
    void tellEvent(const char* event, QJsonObject facts) const;
    void drawBar(const BatchCounts& counts);
    void clearBar();
    double perSecond() const;

    const Form form_;
    const bool isTerminal_;
    const std::string outFolder_;
    const std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
    std::deque<std::chrono::steady_clock::time_point> made_;  ///< when the last pictures came
    bool barShown_ = false, waits_ = false;
};

}  // namespace tavrin::cli
