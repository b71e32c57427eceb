#pragma once

#include <mutex>
#include <string>

#include "core/state/Resolution.h"

namespace tavrin {

/// Which of the two combined pictures is whole. The memory of a buffer may have held anybody's picture before, so
/// nobody trusts it by itself: a pass takes both pictures down as it begins, and puts up each at the end of its last
/// stage. Whoever saves a picture asks here first. Safe on any thread.
class FinishedPictures {
  public:
    /// A pass begins: neither picture stands, and nothing has failed.
    void begin();
    /// The pass under work cannot make the picture of its settings; `reason` is one plain line without a full stop.
    /// The first reason counts, and no picture of this pass will stand.
    void fail(const std::string& reason);
    /// The last stage of a resolution came to its end.
    void finish(Resolution resolution);

    /// Why the last pass failed; empty when it did not.
    std::string failure() const;
    /// Why a picture does not stand; empty when it does.
    std::string whyNot(Resolution resolution) const;

  private:
    mutable std::mutex mutex_;
    bool full_ = false, preview_ = false;
    std::string failure_;
};

}  // namespace tavrin
