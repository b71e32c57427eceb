#include "editor/brush/EditorPixels.h"

#include <algorithm>
#include <utility>

#include "core/raster/Rows.h"

namespace tavrin {

namespace {

constexpr int kGrain = 16;  // rows of a piece of work that only moves bytes

}  // namespace

void EditedRows::add(int from, int to) {
    if (from >= to) return;
    first = isEmpty() ? from : std::min(first, from);
    last = std::max(last, to);
}

bool EditorPixels::enter(const SystemInfo& info) {
    pFOrg = info.pForegroundBitmapInfo->pBitmapData;
    pC = pS = info.pCombinedBitmapInfo->pBitmapData;
    pB = info.pBackgroundBitmapInfo->pBitmapData;
    iWidth = info.iOutputPixelWidth;
    iHeight = info.iOutputPixelHeight;
    if (!pFOrg || !pC || !pB || iWidth < 1 || iHeight < 1) return false;
    bOutputTransparency = info.bOutputTransparency;
    const std::size_t count = index(0, iHeight);
    pMaskSelection.assign(count, 1);
    if (oSnapShot.size() != count) oSnapShot.assign(count, {});
    oSnapShotTouch.assign(static_cast<std::size_t>(iHeight), 1);
    oRowsToPutBack.assign(static_cast<std::size_t>(iHeight), 1);
    return true;
}

void EditorPixels::TakeSnapShot() {
    runRows({}, iHeight, kGrain, [this](int y) {
        std::uint8_t& touched = oSnapShotTouch[static_cast<std::size_t>(y)];
        if (touched == 0) return;
        touched = 0;
        for (std::size_t i = index(0, y), end = index(0, y + 1); i < end; ++i) {
            // A protected pixel shows the pattern of the selection, and its record is what it looked like before.
            if (pMaskSelection[i] != 1) continue;
            const std::uint8_t* p = pC + i * kPixelBytes;
            oSnapShot[i] = {p[0], p[1], p[2], pB[i * kPixelBytes + 3], 0};
        }
    });
}

void EditorPixels::putBack(std::size_t i) {
    const QLXPixel& s = oSnapShot[i];
    std::uint8_t* p = pS + i * kPixelBytes;
    p[0] = s.red;
    p[1] = s.green;
    p[2] = s.blue;
    p[3] = bOutputTransparency ? s.alpha : 255;
    pB[i * kPixelBytes + 3] = s.alpha;
}

EditedRows EditorPixels::putAllBack() {
    EditedRows rows;
    for (int y = 0; y < iHeight; ++y) {
        if (oRowsToPutBack[static_cast<std::size_t>(y)] != 0) rows.add(y, y + 1);
    }
    runRows({}, rows.last - rows.first, kGrain, [&](int row) {
        const int y = rows.first + row;
        if (std::exchange(oRowsToPutBack[static_cast<std::size_t>(y)], std::uint8_t{0}) == 0) return;
        for (std::size_t i = index(0, y), end = index(0, y + 1); i < end; ++i) {
            putBack(i);
            oSnapShot[i].percent = 0;
        }
    });
    return rows;
}

}  // namespace tavrin
