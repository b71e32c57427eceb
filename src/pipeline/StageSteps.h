#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

// What the rows of the tables in Stages.cpp run: each hands the state's fields and buffers to its stage.

void findHair(SystemInfo& info, Resolution resolution);
void measureScreen(SystemInfo& info, Resolution resolution);
void readSilhouette(SystemInfo& info, Resolution resolution);
void combine(SystemInfo& info, Resolution resolution);
void blendEdges(SystemInfo& info, Resolution resolution);
void smoothSkin(SystemInfo& info, Resolution resolution);
void blurBackground(SystemInfo& info, Resolution resolution);
void blurResult(SystemInfo& info, Resolution resolution);
void addShadow(SystemInfo& info, Resolution resolution);
void addTexture(SystemInfo& info, Resolution resolution);
void addFrame(SystemInfo& info, Resolution resolution);
void addSecondFrame(SystemInfo& info, Resolution resolution);
void drawStars(SystemInfo& info, Resolution resolution);
void smoothResult(SystemInfo& info, Resolution resolution);
void smoothForeground(SystemInfo& info, Resolution resolution);
void drawSketch(SystemInfo& info, Resolution resolution);
void reflect(SystemInfo& info, Resolution resolution);
void textBackground(SystemInfo& info, Resolution resolution);
void overlayBackground(SystemInfo& info, Resolution resolution);
void textBackgroundLayer(SystemInfo& info, Resolution resolution);
void textForeground(SystemInfo& info, Resolution resolution);
void overlayForeground(SystemInfo& info, Resolution resolution);
void textForegroundLayer(SystemInfo& info, Resolution resolution);
void overlayFrame(SystemInfo& info, Resolution resolution);
void textFrameLayer(SystemInfo& info, Resolution resolution);

}  // namespace tavrin
