#pragma once

#include <atomic>

namespace tavrin {

/// Data that go from thread to thread inside a library, one user at a time, in an order that the library keeps. Each
/// user passes at its begin and at its end, the owner also before the library starts (by making the object) and after
/// it is done. The library's own ordering would do; this one the thread checker sees, so that it can tell a fault of
/// ours from a safe hand-over. It does not lock.
class HandOver {
  public:
    HandOver() { pass(); }
    void pass() {
        turn_.load(std::memory_order_acquire);  // so that the checker sees the object made before it is changed
        turn_.fetch_add(1, std::memory_order_acq_rel);
    }

  private:
    std::atomic<unsigned> turn_ = 0;
};

}  // namespace tavrin
