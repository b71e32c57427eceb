#pragma once

#include <cstdint>
#include <vector>

#include "core/state/SystemInfo.h"
#include "key/spill/SpillKey.h"

namespace tavrin {

static_assert(sizeof(QLXPixel) == 5, "snapshot rows go to undo files as they are");

/// Rows [first, last) of the picture; equal ends are none.
struct EditedRows {
    int first = 0, last = 0;

    bool isEmpty() const { return first >= last; }
    /// Widens the rows so that these are among them.
    void add(int from, int to);
};

/// What the editor works on: the full pictures of a state, in place, with the mask of what strokes may change and
/// the snapshot of the picture before the running stroke. The state's buffers must not be replaced while it is used.
struct EditorPixels {
    const std::uint8_t* pFOrg = nullptr;  ///< the foreground, not keyed; only read
    std::uint8_t* pC = nullptr;           ///< the combined picture, read for picking colours and for snapshots
    std::uint8_t* pS = nullptr;           ///< the same one, written by strokes
    std::uint8_t* pB = nullptr;           ///< the background, whose alpha bytes are the foreground's alpha map
    int iWidth = 0, iHeight = 0;
    bool bOutputTransparency = false;

    std::vector<std::uint8_t> pMaskSelection;  ///< one byte a pixel: 1 free to be painted, 0 protected
    std::vector<QLXPixel> oSnapShot;           ///< one a pixel, rows packed
    std::vector<std::uint8_t> oSnapShotTouch;  ///< one byte a row: 1 where it differs from the last snapshot
    std::vector<std::uint8_t> oRowsToPutBack;  ///< one byte a row: 0 where `putAllBack` would change nothing

    /// Takes the buffers of a state, clears the mask's protection and marks every row as touched.
    /// @return false when the state has no full pictures
    bool enter(const SystemInfo& info);

    bool isInside(int x, int y) const { return x >= 0 && y >= 0 && x < iWidth && y < iHeight; }
    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(iWidth) + static_cast<std::size_t>(x);
    }
    QLXPixel& snapShot(int x, int y) { return oSnapShot[index(x, y)]; }
    const QLXPixel& snapShot(int x, int y) const { return oSnapShot[index(x, y)]; }
    /// A record of transparent output whose colours go when it is painted on.
    bool isEmptied(const QLXPixel& s) const { return bOutputTransparency && s.alpha <= 4; }
    bool isFree(int x, int y) const { return pMaskSelection[index(x, y)] == 1; }

    /// Copies the touched rows of the picture into the snapshot, but for protected pixels, and ends the stroke there.
    void TakeSnapShot();
    /// Writes one pixel of the snapshot back to the picture.
    void putBack(std::size_t pixel);
    /// The same with the whole snapshot; every `percent` becomes 0.
    /// @return the rows that may have changed
    EditedRows putAllBack();
};

}  // namespace tavrin
