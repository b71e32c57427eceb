#pragma once

#include <cstdint>
#include <vector>

#include "core/raster/ColorMath.h"
#include "core/state/SystemInfo.h"
#include "key/guard/FloodFill.h"

namespace tavrin {

/// What a byte of the guard's bitmap means.
namespace guard {
inline constexpr std::uint8_t kScreen = 70;        ///< screen, connected to the picture's border
inline constexpr std::uint8_t kScreenColor = 150;  ///< screen coloured, not connected to the border
inline constexpr std::uint8_t kShirt = 180;        ///< shirt colour, protected
inline constexpr std::uint8_t kBand = 200;         ///< in the band along the subject's edge
inline constexpr std::uint8_t kEdge = 240;         ///< next to the screen, on the subject's side
inline constexpr std::uint8_t kSubject = 255;      ///< not screen coloured
inline constexpr int kCaptionRows = 100;           ///< top rows of the guard's picture that show one colour
}  // namespace guard

/// Whether the guard makes a pixel opaque, with the foreground's own bytes. A clip margin still wins over it.
/// @param mode `iGreenProtectMode`; @param removeInside `bRemoveInsideBaseGreen`
inline bool guardMakesOpaque(std::uint8_t byte, int mode, bool removeInside) {
    if (mode == 2) return byte == guard::kShirt;
    return mode == 1 && (byte == guard::kSubject || (byte == guard::kScreenColor && !removeInside));
}

/// Colour of a bitmap byte in the guard's picture, channels as the pixel loop holds them.
Rgb guardPictureColor(std::uint8_t byte);
/// Colour of a pixel of the guard's picture: the top rows show `caption`, which is the shirt colour in mode 2 and
/// the mean hair colour otherwise.
inline Rgb guardPicture(std::uint8_t byte, int y, const Rgb& caption) {
    return y < guard::kCaptionRows ? caption : guardPictureColor(byte);
}

/// Separates the screen from green on the subject: screen is what is connected to the picture's border. Made anew
/// for each run of the key; the memory is kept between runs of one size. Not reentrant.
class GreenGuard {
  public:
    /// Builds the bitmap from a foreground, which must stay until the fills are done. When the run is superseded the
    /// fills stop at once; the other steps of a full-resolution run stop within a row.
    /// @return false when such a run was superseded, so that its pixel loop must not start, or when there is no
    /// picture, so that the guard is to be left out
    bool build(const SystemInfo& info, ConstPixelView foreground, Resolution resolution);

    /// One byte a pixel.
    const std::vector<std::uint8_t>& bitmap() const { return pGreenProtectionBitmap; }
    /// Mean colour of the shirt in roles; black when there is none or the mode is not 2.
    Rgb shirtColor() const { return {dRedShirt, dGreenShirt, dBlueShirt}; }

    /// Fills from (x, y) what is connected and has `oldValue`. Stops when the run is superseded.
    void floodFillScanline(const SystemInfo& info, int x, int y, int newValue, int oldValue);
    /// Fills from (x, y) what is connected and has the shirt's colour. A very large fill stops early.
    void floodFillScanlineShirtColor(const SystemInfo& info, int x, int y, int newValue);
    /// Whether the shirt's fill may enter a pixel; it is tighter in the band along the edge.
    bool isShirtColor(int x, int y) const;

  private:
    enum Nearness : std::uint8_t { kFar, kWide, kSeed, kTight };  // to the shirt colour

    std::size_t index(int x, int y) const {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(iFloodWidth) + static_cast<std::size_t>(x);
    }
    bool isInside(int x, int y) const { return x >= 0 && y >= 0 && x < iFloodWidth && y < iFloodHeight; }
    void allocate(std::vector<std::uint8_t>& bytes);
    bool classify(const SystemInfo& info);
    void fillFromBorder(const SystemInfo& info);
    bool findEdge();
    bool drawBand(const SystemInfo& info);
    void drawDisc(int x, int y, std::int64_t radius);
    bool protectShirt(const SystemInfo& info);
    void gatherShirt(const SystemInfo& info);
    bool measureShirtDistance(const SystemInfo& info);

    RunContext context_;  // of the steps other than the fills
    std::vector<std::uint8_t> pGreenProtectionBitmap;
    std::vector<std::uint8_t> nearness_;  // mode 2: of each pixel
    SeedStack seeds_;
    int iFloodWidth = 0, iFloodHeight = 0;
    const std::uint8_t* pFloodFillForegroundBitmap = nullptr;
    bool removeInside_ = false;
    double HGreenShirt = 0.0, SGreenShirt = 0.0, VGreenShirt = 0.0;
    double dRedShirt = 0.0, dGreenShirt = 0.0, dBlueShirt = 0.0;
};

}  // namespace tavrin
