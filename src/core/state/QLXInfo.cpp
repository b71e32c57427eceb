#include "core/state/QLXInfo.h"

namespace tavrin {

std::span<const Leaf<QLXInfo>> QLXInfo::leaves() {
    using G = QLXInfo;
    static const Leaf<G> table[] = {
        TAVRIN_LEAF(G, sForegroundPath),
        TAVRIN_LEAF(G, sBackgroundPath),
        TAVRIN_LEAF(G, sSavePath),
        TAVRIN_LEAF(G, sVersion),
        TAVRIN_LEAF(G, sQLXPath),
        TAVRIN_LEAF(G, sPicturePath),
        TAVRIN_LEAF(G, sStartupFileForegroundPath),
        TAVRIN_LEAF(G, sStartupFileBackgroundPath),
        TAVRIN_LEAF(G, sImagePath),
        TAVRIN_LEAF(G, sPickDirectory),
        TAVRIN_LEAF(G, sOverlayDir),
        TAVRIN_LEAF(G, sDefaultQLXFilePath),
        TAVRIN_LEAF(G, sPrefix),
        TAVRIN_LEAF(G, sSelectedPrinterTemplate),
        TAVRIN_LEAF(G, sSelectedBatchPrinterName),
        TAVRIN_LEAF(G, sSelectedBatchPrinterTemplate),
        TAVRIN_LEAF(G, sBatchPrintFolder),
        TAVRIN_LEAF(G, sLastBatchForeground),
        TAVRIN_LEAF(G, sLastBatchBackground),
        TAVRIN_LEAF(G, sLastBatchQLX),
        TAVRIN_LEAF(G, sLastBatchOutput),
        TAVRIN_LEAF(G, bLastBatchOutputLowResolution),
        TAVRIN_LEAF(G, bLastBatchCheckForNewFiles),
        TAVRIN_LEAF(G, bLastBatchAutoStart),
        TAVRIN_LEAF(G, bLastBatchHideScreen),
        TAVRIN_LEAF(G, iLastBatchLastOutputFileType),
        TAVRIN_LEAF(G, iLastBatchLastOutputStyle),
        TAVRIN_LEAF(G, bUseBackgroundSubfolders),
        TAVRIN_LEAF(G, bUseBatchXMLFile),
        TAVRIN_LEAF(G, sEventModeForegroundFolder),
        TAVRIN_LEAF(G, sEventModeBackgroundVertFolder),
        TAVRIN_LEAF(G, sEventModeBackgroundHorzFolder),
        TAVRIN_LEAF(G, sEventModeOutputFolder),
        TAVRIN_LEAF(G, sEventModeEmailBody),
        TAVRIN_LEAF(G, sEventModeEmailTitle),
        TAVRIN_LEAF(G, sEventModeSelectedTemplate),
        TAVRIN_LEAF(G, sEventModePrinterName),
        TAVRIN_LEAF(G, sEventFontName),
        TAVRIN_LEAF(G, sEventLabelSize),
        TAVRIN_LEAF(G, sEventFontColor),
        TAVRIN_LEAF(G, bEventDropShadow),
        TAVRIN_LEAF(G, bAutoQLXSave),
        TAVRIN_LEAF(G, bDefaultSMTPServer),
        TAVRIN_LEAF(G, bSMTPTSL),
        TAVRIN_LEAF(G, bSMTPSSL),
        TAVRIN_LEAF(G, sSMTPHost),
        TAVRIN_LEAF(G, sSMTPAccountName),
        TAVRIN_LEAF(G, sSMTPAccoutPassword),
        TAVRIN_LEAF(G, sSMTPort),
    };
    return table;
}

}  // namespace tavrin
