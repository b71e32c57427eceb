#pragma once

namespace tavrin {

/// Gives the calling thread a low priority for as long as it lives. What such a thread starts would inherit it for
/// good, and others would work with that later; so on it `runRows` and the decoders of pictures use no other thread.
void becomeBackgroundThread();

/// Whether the calling thread is one of these.
bool isBackgroundThread();

}  // namespace tavrin
