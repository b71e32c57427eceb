#pragma once

#include <condition_variable>
#include <deque>
#include <functional>
#include <mutex>

#include <QObject>

#include "pipeline/CombineThread.h"

namespace tavrin {

/// Has work done on the main thread while the loop stands still between two passes: for lists of the state that both
/// walk. The main thread never waits for the loop; the loop waits for the main thread.
class HeldLoop : public QObject {
    Q_OBJECT

  public:
    explicit HeldLoop(CombineThread& loop, QObject* parent = nullptr) : QObject(parent), loop_(loop) {}

    /// Does it soon, in the order of the calls.
    void run(std::function<void()> work);
    /// The loop is about to end: it waits for nothing more.
    void letGo();
    /// Does what still waits, now that the loop has ended.
    void finish();

  private:
    void hold();
    void serve();

    CombineThread& loop_;
    std::mutex mutex_;
    std::condition_variable served_;
    std::deque<std::function<void()>> waiting_;  // the main thread's
    int done_ = 0;                               // these two under the lock
    bool letGo_ = false;
};

}  // namespace tavrin
