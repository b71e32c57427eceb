#pragma once

#include <functional>

namespace tavrin {

/// Gives the calling thread a low priority for as long as it lives. What such a thread starts would inherit it for
/// good, and others would work with that later; so on it `runRows` and the decoders of pictures use no other thread.
void becomeBackgroundThread();

/// Whether the calling thread is one of these.
bool isBackgroundThread();

/// What `runRows` throws where work gives way: it is given up as a whole, whatever was half done.
struct GivenUp {};

/// While it lives, the work of the calling background thread gives way: `runRows` asks before each piece of rows, and
/// throws `GivenUp` as soon as the answer is no. On other threads nothing is asked.
class GivingWay {
  public:
    /// @param goesOn outlives it; null asks nobody
    explicit GivingWay(const std::function<bool()>& goesOn);
    ~GivingWay();
    GivingWay(const GivingWay&) = delete;
    GivingWay& operator=(const GivingWay&) = delete;

    /// For `runRows`, and for stages that go through their pixels one after the other.
    static void ask();

  private:
    const std::function<bool()>* before_;
};

}  // namespace tavrin
