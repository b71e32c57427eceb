#pragma once

#include "core/state/Leaf.h"

namespace tavrin {

/// What belongs to the installation and not to one picture: folders, start-up files, the last batch and event
/// settings, printers and the mail server.
struct QLXInfo {
    Field<std::string> sForegroundPath;
    Field<std::string> sBackgroundPath;
    Field<std::string> sSavePath;
    Field<std::string> sVersion;
    Field<std::string> sQLXPath;
    Field<std::string> sPicturePath;
    Field<std::string> sStartupFileForegroundPath;
    Field<std::string> sStartupFileBackgroundPath;
    Field<std::string> sImagePath;
    Field<std::string> sPickDirectory;
    Field<std::string> sOverlayDir;
    Field<std::string> sDefaultQLXFilePath;
    Field<std::string> sPrefix;
    Field<std::string> sSelectedPrinterTemplate;
    Field<std::string> sSelectedBatchPrinterName;
    Field<std::string> sSelectedBatchPrinterTemplate;
    Field<std::string> sBatchPrintFolder;
    Field<std::string> sLastBatchForeground;
    Field<std::string> sLastBatchBackground;
    Field<std::string> sLastBatchQLX;
    Field<std::string> sLastBatchOutput;
    Field<bool> bLastBatchOutputLowResolution = false;
    Field<bool> bLastBatchCheckForNewFiles = true;
    Field<bool> bLastBatchAutoStart = false;
    Field<bool> bLastBatchHideScreen = false;
    Field<std::int32_t> iLastBatchLastOutputFileType = 0;
    Field<std::int32_t> iLastBatchLastOutputStyle = 0;
    Field<bool> bUseBackgroundSubfolders = false;
    Field<bool> bUseBatchXMLFile = false;
    Field<std::string> sEventModeForegroundFolder;
    Field<std::string> sEventModeBackgroundVertFolder;
    Field<std::string> sEventModeBackgroundHorzFolder;
    Field<std::string> sEventModeOutputFolder;
    Field<std::string> sEventModeEmailBody;
    Field<std::string> sEventModeEmailTitle;
    Field<std::string> sEventModeSelectedTemplate;
    Field<std::string> sEventModePrinterName;
    Field<std::string> sEventFontName;
    Field<std::string> sEventLabelSize;
    Field<std::string> sEventFontColor;
    Field<bool> bEventDropShadow = false;
    Field<bool> bAutoQLXSave = false;
    Field<bool> bDefaultSMTPServer = false;
    Field<bool> bSMTPTSL = false;
    Field<bool> bSMTPSSL = false;
    Field<std::string> sSMTPHost;
    Field<std::string> sSMTPAccountName;
    Field<std::string> sSMTPAccoutPassword;
    Field<std::string> sSMTPort;
    /// Positions found again from the names above; not in the file.
    Field<std::int32_t> iSelectedPrinterTemplate = 0, iSelectedBatchPrinterTemplate = 0;
    Field<std::int32_t> iEventModeSelectedTemplate = 0, iEventModePrinterName = 0;
    Field<bool> bWatchPrintFolder = true;

    /// Puts every field back to its default.
    void ResetQLXInfo() { *this = QLXInfo(); }

    static std::span<const Leaf<QLXInfo>> leaves();
};

}  // namespace tavrin
