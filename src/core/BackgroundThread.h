#pragma once

#include <functional>

namespace tavrin {

/// Gives the calling thread a low priority for as long as it lives. What such a thread starts would inherit it for
/// good, and others would work with that later; so on it `runRows` and the decoders of pictures use no other thread.
void becomeBackgroundThread();

/// Whether the calling thread is one of these.
bool isBackgroundThread();

/// For a program with windows, on its main thread: from here on all other threads that work on rows of pixels have a
/// somewhat lower priority for good, so that a click and a paint go first where pictures keep every core busy. Does
/// nothing where threads have no priorities of their own.
void putMainThreadFirst();

/// For `runRows`: the calling thread works on pixels.
void noteRowWork();

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
