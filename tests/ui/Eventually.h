#pragma once

#include <functional>

#include <QTest>

namespace tavrin::test {

/// How long a test waits for what has to come: much longer than it ever takes, so that a busy machine fails no test.
inline constexpr int kPatienceMs = 60000;

/// Lets the program go on until the condition holds.
/// @return whether it did in time
inline bool eventually(const std::function<bool()>& condition) {
    return QTest::qWaitFor(condition, kPatienceMs);
}

/// Whether the window has the focus of the desktop, after a wait if it must be.
inline bool becomesActive(QWidget* window) {
    return QTest::qWaitForWindowActive(window, kPatienceMs);
}

}  // namespace tavrin::test
