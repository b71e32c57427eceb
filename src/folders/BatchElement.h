#pragma once

#include <cstdint>
#include <string>

namespace tavrin {

/// The empty slot: what the program now holds is kept. Stands in name lists, last names and history keys.
inline constexpr const char* kUseCurrent = "UseCurrent";

/// One job of a batch list.
struct BatchElement {
    std::string sQLXFile;                  ///< state file, relative to the state folder
    std::string sForegroundFile;           ///< full path
    std::string sBackgroundFile;           ///< full path
    std::string sOutputFile;               ///< full path without extension
    std::string sOutputFolder;             ///< as the list has it
    std::int32_t iOutputFileType = 0;      ///< 1 JPEG, 2 PNG, 3 TIFF
    bool OutputTransparency = false;       ///< for `bOutputTransparency`
    bool NoGreenScreenProcessing = false;  ///< for `bShowOrgImage`
    bool BlueScreenProcessing = false;     ///< for `bUseBlueLogic`

    /// Copies the first four texts only, and compares them only: a job is what it reads and where it goes.
    void CopyElement(const BatchElement& other);
    bool Equals(const BatchElement& other) const;
};

}  // namespace tavrin
