#pragma once

#include <array>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "core/state/BitmapInfo.h"
#include "core/state/FinishedPictures.h"
#include "core/state/ImageFrame.h"
#include "core/state/ItemList.h"
#include "core/state/PageLists.h"

namespace tavrin {

/// Which panel and layer the interface edits, and what the main view shows. What nothing reads yet is for the
/// panels of adjustments and effects and for the views, but for `bActiveBitmapChanged` and `iViewMode`, which stay as
/// the start sets them.
struct ViewState {
    Field<std::int32_t> iSelectedAdjustment = 0, iSelectedEffect = 0;
    Field<std::int32_t> iActiveBitmap = 0;  ///< layer that the panels edit: 0 foreground, otherwise background
    Field<bool> bActiveBitmapChanged = true;
    Field<std::int32_t> iViewMode = 2;
    Field<bool> bShowLowRes = false;  ///< the view must show the preview; false when the full picture is ready
    Field<bool> bShowAlpha = false;
    Field<bool> bTextPanelOpen = false;
    Field<std::int32_t> iEventMouseMode = 0;
    Field<bool> bWaitForTextupdate = false;  ///< nobody waits: text is laid out where it is drawn
};

/// Print template page and the lists of sizes and pages. The print sheet will fill in the template's size.
struct PageState {
    Field<std::int32_t> iTemplateImageDPI = 0, iTemplatePixelWidth = 0, iTemplatePixelHeight = 0;
    Field<double> dTemplateImageWidthInInches = 0.0, dTemplateImageHeightInInches = 0.0;
    std::unique_ptr<BitmapContext> oBitmapTemplateRep;
    PixelBuffer templatePixels;
    std::uint8_t* pBitmapTemplateData = nullptr;
    Field<std::int32_t> iCurrentTemplateIndex = -1;  ///< template whose page buffer is current
    Field<bool> bChangeImageSize = false;            ///< request to the loop: run `ChangeImageSize`
    Field<bool> bNewOutputSize = true;               ///< request to the loop: size the main window
    std::vector<PrinterPage> oPrinterPages;          ///< at most kMaxListEntries
    std::vector<ImageSize> oImageSize;               ///< at most kMaxListEntries

    std::int32_t iPrinterPageCount() const { return static_cast<std::int32_t>(oPrinterPages.size()); }
    std::int32_t iImageSizeCount() const { return static_cast<std::int32_t>(oImageSize.size()); }
};

/// Labels and the list of text and picture items.
struct TextState {
    static constexpr std::size_t kMaxFontObjects = ItemList::kMost;

    std::array<FontObject, 3> oFontLabelObject;
    ItemList oFontObject;

    std::int32_t iFontObjectCount() const { return static_cast<std::int32_t>(oFontObject.size()); }
};

/// The skin colour of the subject on the 0 to 255 scale, in real channels. Before a measurement, and where none is
/// wanted, the defaults stand.
struct SkinColor {
    static constexpr int kMatrixSide = 100;

    double dFaceRed = 240.0, dFaceGreen = 180.0, dFaceBlue = 160.0;
    double dFaceInt = 210.0;  ///< level of the largest channel
    double dFaceSat = 33.33;  ///< saturation, percent
    double dFaceHue = 63.75;  ///< where green lies between blue and red, percent; not degrees
    /// Pixels counted by hue and saturation in percent: entry hue * kMatrixSide + saturation; and the largest entry.
    std::array<double, kMatrixSide * kMatrixSide> dFaceColorMatrix{};
    double dFaceColorMatrixMaxColor = 0.0;
};

/// Results of stages that live for a pass, and flags of stages. The change flags of shadow and
/// reflection belong to the state, and nothing reads them: the stages look at the layers' own.
struct StageState : SkinColor {
    PixelBuffer hairDetectPixels;
    std::uint8_t* pHairDetectBitmap = nullptr;  ///< fine-detail map, preview size
    std::vector<std::int32_t> oLightingMap;     ///< gain a pixel in thousandths; empty when there is no light
    Field<bool> bLightingForceCompute = false;  ///< finish the light even when superseded
    Field<bool> bHiResShadowChange = false, bLowResShadowChange = false;
    Field<bool> bHiResReflectionChange = false, bLowResReflectionChange = false;
    Field<bool> bBackgroundFrozen = false;  ///< the background holds a frozen picture and is not rebuilt
    QImage silhouettePicture;               ///< what fills the silhouette, RGBA; null: its plain colour
    std::set<std::string> missingPictures;  ///< told to be missing (NamedPictures.h)
    FinishedPictures pictures;
};

/// A picture that is loaded once at start-up: RGBA, `stride` bytes a row. Empty where the file could not be read.
struct LoadedPicture {
    QImage Image;
    const std::uint8_t* rawData = nullptr;  ///< bytes of `Image`
    int stride = 0, iWidth = 0, iHeight = 0;
};

/// Icons of the text tools, and what the sketch draws with.
struct StartUpPictures {
    LoadedPicture TextEditIcon, TextDeleteIcon;
    LoadedPicture PencilCross2, PencilCross, LightParchment;
    Field<std::int32_t> iTextIconWidth = 0, iTextIconHeight = 0;  ///< size of the edit icon
};

/// Generation counters and the switches of the processing loop. The stop flags beside `bStop` and the counts of runs
/// belong to the state, and nothing reads them: the loop is stopped by its thread's own token.
struct LoopState {
    /// Number of the picture under work, and of the newest wanted one. Equal: a pass is due; current above new:
    /// idle; current below new: the loop catches up.
    Field<std::int32_t> iCurrentThreadCount = 1, iNewThreadCount = 2;
    Field<bool> bStop = false;
    Field<bool> bStopProcessingBitmap = false, bIsStopped = false;
    Field<bool> bSkipHiRes = false;  ///< leave out the full-resolution half
    Field<std::int32_t> iLowResUpdateCount = 0, iLowResLastRun = 0, iHiResUpdateCount = 0, iHiResLastRun = 0;
};

/// Editor replay: two blocks of 200,000 bytes, which the editor's recorder will fill.
struct ReplayState {
    static constexpr std::size_t kReplayBytes = 200'000;
    std::vector<std::uint8_t> pReplayBuffer = std::vector<std::uint8_t>(kReplayBytes);
    std::vector<std::uint8_t> pReplaySavedBuffer = std::vector<std::uint8_t>(kReplayBytes);
    Field<std::int32_t> iReplayBufferCount = 0, iReplayBufferSavedCount = 0;
};

/// State of the long-running modes: the two galleries, the event booth, the review pages and the host application,
/// in this order. Each waits for its mode, but for `myFileNames` and `bLightroomActive`.
struct ModeState {
    std::vector<std::string> myGalleryNames, myFileNames;
    Field<bool> bProcessingGallery = false, bHaveGallery = false;
    Field<bool> bProcessingAdjGallery = false, bHaveAdjGallery = false;
    Field<std::int32_t> iNextGalleryItem = 0, iNextAdjGalleryItem = -1, iAdjGalleryCount = 12;
    Field<std::int32_t> iAdjGalleryCounter = 0, iBackgroundGalleryCounter = 0;
    Field<std::string> sHtml, sOrgGalleryBackground, sGalleryToViewPath;
    Field<bool> bEventModeAcvtive = false, bEventModeShowing = false;
    Field<bool> bBatchReviewActive = false;
    Field<std::string> sBatchReviewFileSavePath;
    Field<std::int32_t> iLastScrollHtmlFileChooser = 0, iLastReviewPage = 0;
    Field<bool> bLightroomActive = false;
    Field<std::string> sLightroomSender;
};

}  // namespace tavrin
