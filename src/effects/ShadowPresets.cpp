#include "effects/ShadowPresets.h"

namespace tavrin {

namespace {

constexpr int kNoShadow = 1, kFloor = 2, kFloorAndWall = 3, kWall = 5;

void start(SystemInfo& info, int kind) {
    info.iHaveShadow = kind;
    info.pBackgroundBitmapInfo->bScaleChange = true;
}

void setRoom(SystemInfo& info, int floorHeight, int transparency) {
    info.iSliderVRoomRight = info.iSliderVRoomLeft = floorHeight;
    info.iSliderVRoomTransparency = transparency;
}

}  // namespace

void setWallShadow(SystemInfo& info) {
    start(info, kWall);
    info.iSliderShadowRightLeft = 550;
    info.iSliderShadowUpDown = 480;
    info.iSliderShadowScale = 520;
    info.iSliderShadowTransparency = 500;
    info.iSliderShadowBlur = 300;
    setRoom(info, 0, 0);
    info.iSliderShadowBlack = 20;
    info.iCheckShadowBehind = 1;
}

void setFloorShadow(SystemInfo& info) {
    start(info, kFloor);
    info.iSliderShadowRightLeft = 500;
    info.iSliderShadowUpDown = 500;
    info.iSliderShadowScale = 300;
    info.iSliderFloorSkew = 525;
    info.iSliderShadowTransparency = 500;
    info.iSliderShadowBlur = 250;
    setRoom(info, 1000, 0);
    info.iSliderShadowBase = 520;
    info.iSliderFloorBaseAngle = 500;
    info.iSliderShadowBlack = 20;
}

void setFloorAndWallShadow(SystemInfo& info) {
    start(info, kFloorAndWall);
    info.iSliderShadowRightLeft = 500;
    info.iSliderShadowUpDown = 500;
    info.iSliderShadowScale = 500;
    info.iSliderFloorSkew = 700;
    info.iSliderShadowTransparency = 500;
    info.iSliderShadowBlur = 250;
    setRoom(info, 300, 800);
    info.iSliderShadowBase = 600;
    info.iSliderFloorBaseAngle = 500;
    info.iSliderShadowBlack = 20;
    info.bCheckShowBaseline = 1;
}

void removeShadow(SystemInfo& info) {
    start(info, kNoShadow);
}

}  // namespace tavrin
