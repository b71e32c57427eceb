#pragma once

class QWidget;

namespace tavrin {

/// The user's guide, in a window of its own; a second call brings it to the front.
void showQLXHelp(QWidget* window);

/// What this program is, its version and that of what it runs on.
void ShowAboutBox(QWidget* window);

}  // namespace tavrin
