#pragma once

#include <atomic>
#include <condition_variable>
#include <mutex>

#include "booth/EventWorker.h"

class QJsonObject;

namespace tavrin::cli {

/// A booth on the command line: lines of JSON on the standard output, or words for people; what went wrong on the
/// standard error stream.
class BoothConsole : public EventListener {
  public:
    struct Form {
        bool json = false;    ///< a line of JSON a picture, not words
        bool events = false;  ///< and one for whatever else happens
    };
    BoothConsole(Form form, std::string outFolder) : form_(form), outFolder_(std::move(outFolder)) {}

    void finished(const EventResult& result) override;
    void changed(const EventSigns& signs) override;
    void alert(const std::string& message, const std::string& reason) override;
    void ended() override;

    /// Until the booth has ended.
    void waitForEnd();
    void summarize(const EventSigns& signs);
    int failed() const { return failed_; }

  private:
    void tellEvent(const char* event, QJsonObject facts) const;

    const Form form_;
    const std::string outFolder_;
    std::string lastSigns_;
    std::atomic<int> done_ = 0, failed_ = 0;
    std::mutex mutex_;
    std::condition_variable news_;
    bool ended_ = false;
};

}  // namespace tavrin::cli
