#pragma once

#include <string>

#include <QPainterPath>
#include <QRectF>

namespace tavrin {

/// A line of text as shapes that fill `room` in height, in its middle, made smaller where it would be too long. y
/// grows upward. Empty without a font.
QPainterPath captionShapes(const std::string& text, const QRectF& room);

/// The words of a caption: the macros of a text item are replaced, for the picture of that name.
std::string captionText(const std::string& caption, const std::string& picture);

}  // namespace tavrin
