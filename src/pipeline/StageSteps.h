#pragma once

#include "core/state/SystemInfo.h"

namespace tavrin {

// What the rows of the tables in Stages.cpp run: each hands the state's fields and buffers to its stage.

void findHair(SystemInfo& info, int res);
void measureScreen(SystemInfo& info, int res);
void readSilhouette(SystemInfo& info, int res);
void combine(SystemInfo& info, int res);
void blendEdges(SystemInfo& info, int res);
void smoothSkin(SystemInfo& info, int res);
void blurBackground(SystemInfo& info, int res);
void blurResult(SystemInfo& info, int res);
void addShadow(SystemInfo& info, int res);
void addTexture(SystemInfo& info, int res);
void addFrame(SystemInfo& info, int res);
void addSecondFrame(SystemInfo& info, int res);
void drawStars(SystemInfo& info, int res);
void smoothResult(SystemInfo& info, int res);
void smoothForeground(SystemInfo& info, int res);
void drawSketch(SystemInfo& info, int res);
void reflect(SystemInfo& info, int res);
void textBackground(SystemInfo& info, int res);
void overlayBackground(SystemInfo& info, int res);
void textBackgroundLayer(SystemInfo& info, int res);
void textForeground(SystemInfo& info, int res);
void overlayForeground(SystemInfo& info, int res);
void textForegroundLayer(SystemInfo& info, int res);
void overlayFrame(SystemInfo& info, int res);
void textFrameLayer(SystemInfo& info, int res);

}  // namespace tavrin
