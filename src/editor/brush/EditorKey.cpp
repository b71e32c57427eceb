#include "editor/brush/EditorKey.h"

namespace tavrin {

namespace {

constexpr int kGridSide = 20;

struct CellPlace {
    int cell;
    double fraction;
};

CellPlace placeOnGrid(int position, int length) {
    const double place = clampTo(position * static_cast<double>(kGridSide) / length - 0.5, 0.0, kGridSide - 2.0);
    const int cell = static_cast<int>(place);
    return {cell, place - cell};
}

}  // namespace

EditorKey::EditorKey(const SystemInfo& info)
    : spill(info, SpillLayers::of(info, Resolution::full)),
      bSpilled(spill.constants().whiteBalanceU == 0.0),
      baseGreen(info.baseGreen),
      bOutputTransparency(info.bOutputTransparency),
      bUseBlueLogic(info.bUseBlueLogic),
      adjustsForeground(
          makeColorAdjust(info, ToneLayer::kForeground, {spill.pFOrg, spill.iWidth, spill.iHeight}).active) {
    for (std::size_t i = 0; i < grid_.size(); ++i)
        grid_[i] = {info.iBaseRedArray[i], info.iBaseGreenArray[i], info.iBaseBlueArray[i]};
}

Rgb EditorKey::editBase(int x, int y) const {
    const CellPlace row = placeOnGrid(y, spill.iHeight), column = placeOnGrid(x, spill.iWidth);
    const Rgb* cells = &grid_[static_cast<std::size_t>(row.cell * kGridSide + column.cell)];
    const double fx = column.fraction, fy = row.fraction;
    const auto mix = [&](double Rgb::*channel) {
        const double upper = cells[0].*channel * (1.0 - fx) + cells[1].*channel * fx;
        const double lower = cells[kGridSide].*channel * (1.0 - fx) + cells[kGridSide + 1].*channel * fx;
        return upper * (1.0 - fy) + lower * fy;
    };
    return {mix(&Rgb::r), mix(&Rgb::g), mix(&Rgb::b)};
}

}  // namespace tavrin
