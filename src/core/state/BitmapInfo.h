#pragma once

#include <memory>
#include <vector>

#include <QImage>

#include "core/raster/BitmapContext.h"
#include "core/raster/Pixels.h"
#include "core/state/LayerSettings.h"
#include "core/state/Resolution.h"

namespace tavrin {

/// One layer: its source picture, its two buffers, its change flags and its settings. All memory of a record
/// belongs to that record. Buffers are replaced only on the thread that processes the picture.
class BitmapInfo : public LayerSettings {
  public:
    static constexpr int kForeground = 0, kBackground = 1, kCombined = 2;

    explicit BitmapInfo(int type = kForeground) { iBitmapType = type; }
    BitmapInfo(const BitmapInfo&) = delete;
    BitmapInfo& operator=(const BitmapInfo&) = delete;

    /// Puts the defaults back. The source path, the source picture, the type, the buffers, `bHaveBitmap`, the
    /// change flags other than `bOrgFileChange` and `bBlackAndWhite` stay. For a new record only: it forgets the
    /// contexts.
    void BitmapDisplayInfoReset();
    void setSourceImageFullPath(const std::string& path);

    /// Gives both buffers new sizes, with undefined contents and contexts of their own. Where memory is refused the
    /// record has no buffers.
    void allocateBuffers(int fullWidth, int fullHeight, int lowWidth, int lowHeight);
    /// Hands the memory of the full picture over to the caller; the record has none then, until `allocateBuffers`.
    PixelBuffer takeFullPixels();
    /// The buffer of a resolution and the context over it; null where there is none.
    std::uint8_t* bytes(Resolution resolution) const {
        return resolution == Resolution::full ? pBitmapData : pBitmapDataLowRes;
    }
    BitmapContext* context(Resolution resolution) const {
        return (resolution == Resolution::full ? oBitmapRep : oBitmapRepLowRes).get();
    }
    /// Takes a source picture (RGBA, premultiplied, rows packed) as `orgImage` and `orgBitmapData`.
    void setSource(QImage source);

    /// The source after flip and rotation, at its own resolution; input of every rescale. `orgBitmapData` are its
    /// pixels: 4 * iOrgWidth * iOrgHeight bytes. They are never written after the load, so both share memory.
    QImage orgImage;
    const std::uint8_t* orgBitmapData = nullptr;
    std::unique_ptr<BitmapContext> oOrgBitmapRep;                 ///< kept for the record's sake; no stage uses it
    std::unique_ptr<BitmapContext> oBitmapRep, oBitmapRepLowRes;  ///< contexts over the two buffers
    std::uint8_t* pBitmapData = nullptr;                          ///< full resolution
    std::uint8_t* pBitmapDataLowRes = nullptr;                    ///< preview resolution
    std::vector<std::uint8_t> sourceExif;                         ///< camera data of the source, as the file has it

    /// Why the source picture is not that of `sSourceImageFullPath`, with the file's name; empty when it is.
    Field<std::string> sSourceProblem;
    /// What the reader mended in that file, as a plain line without a full stop; empty for one that is whole.
    Field<std::string> sSourceDamage;

    Field<std::int32_t> iBitmapType = kForeground;
    Field<bool> bHaveBitmap = false;

    /// Change flags: a control raises one and then calls `StartUpdate`; the loop clears it.
    Field<bool> bOrgFileChange = false;     ///< load the source again
    Field<bool> bAdjChange = false;         ///< written by the loop's cascades, decides nothing
    Field<bool> bScaleChange = false;       ///< draw the layer into its buffers again
    Field<bool> bHiResScaleChange = false;  ///< redo the stages of the full-resolution background
    Field<bool> bCombineChange = false;     ///< as `bAdjChange`
    Field<bool> bEditChange = false;        ///< as `bAdjChange`
    Field<bool> bHaveBaseGreen = false;     ///< combined record: the screen colour is up to date

    /// Declared with the record; no stage reads them.
    Field<bool> bHaveGrayMap = false, bTextChanged = false, bResetOnLoad = false;
    Field<std::int32_t> iCombinedPercent = 0, iFunction = 0, iMouseCapture = 0;

  private:
    PixelBuffer fullPixels_, lowPixels_;
};

}  // namespace tavrin
