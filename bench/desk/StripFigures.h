#pragma once

#include <functional>
#include <string>

#include "ui/frame/MainWindow.h"

namespace tavrin::bench {

/// What the desk's benchmark lends: its picture is waited for, and the longest event of the main thread is noted.
struct Desk {
    MainWindow& window;
    SystemInfo& info;
    std::function<void()> waitForPicture;
    std::function<void()> beginEvents;     ///< forgets the events so far
    std::function<double()> longestEvent;  ///< ms of CPU of the main thread since then
};

/// The strip in figures, with a folder of 10,000 portraits of 12 megapixels that is made in `folder`: its list, the
/// small pictures of a page, how many a second, memory, and from a key to the next portrait's preview on the screen.
void measureStrip(const Desk& desk, const std::string& folder);

/// Memory of the window with a portrait of 24 megapixels open, which is made in `folder`.
void measureLargePortrait(const Desk& desk, const std::string& folder);

}  // namespace tavrin::bench
