#pragma once

#include <functional>

#include <QSocketNotifier>

/// Turns SIGTERM, SIGINT and SIGHUP into a call on the main thread, so that the program ends in order. One exists at
/// most.
class EndSignals {
  public:
    explicit EndSignals(std::function<void()> end);
    ~EndSignals();

  private:
    QSocketNotifier notifier_;
};
