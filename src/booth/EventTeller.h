#pragma once

#include <map>
#include <mutex>
#include <string>

#include "booth/EventWorker.h"

namespace tavrin {

/// What the threads of a booth tell its listener: one call at a time, and of one trouble one alert until it is over.
class EventTeller {
  public:
    explicit EventTeller(EventListener& listener) : listener_(listener) {}

    void counted(int tickets, int photos);
    void finished(const EventResult& result);
    void changed(const EventSigns& signs);
    void ended();

    void alert(const std::string& message, const std::string& reason);
    /// Alerts unless this was the last thing said of the subject. An empty reason says that the trouble is over.
    void trouble(const std::string& subject, const std::string& message, const std::string& reason);

  private:
    EventListener& listener_;
    std::mutex mutex_;
    std::map<std::string, std::string> told_;
};

}  // namespace tavrin
