#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include <QImage>

#include "core/state/SystemInfo.h"

namespace tavrin::test {

/// A plain screen of one colour with a red disc in the middle, its edge one pixel soft.
QImage discOnScreen(int width, int height, QColor screen = QColor(40, 160, 60), QColor disc = QColor(200, 60, 50));

/// A picture whose every pixel differs from its neighbours, the same each time.
QImage noisePicture(int width, int height, unsigned seed);

/// Saves as PNG, so that the reader gets the same bytes back; returns the path.
std::string savePng(const QImage& image, const std::string& path);

/// Adds a size to the list and selects it.
void addSize(SystemInfo& info, const std::string& name, double widthInches, double heightInches, int dpi);

/// A state with buffers of an output of width x height pixels at 92 dpi, whose preview has the size `lowDpi` gives.
std::unique_ptr<SystemInfo> stateForOutput(int width, int height, int dpi = 92);

}  // namespace tavrin::test
