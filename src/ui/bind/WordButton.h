#pragma once

class QString;
class QToolButton;

namespace tavrin {

/// A button with words, as wide as its place.
/// @param handler the operation behind it
QToolButton* makeButton(const char* name, const char* handler, const QString& text, const QString& toolTip);

}  // namespace tavrin
