// State files, in the three modes.

#include "FuzzFile.h"
#include "core/state/SettingNames.h"
#include "formats/ImageState.h"

using namespace tavrin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::writeInput(bytes, size);
    const int mode = size % 4 == 0 ? kLoadForForeground : size % 4 == 1 ? kLoadBackgroundOnly : kLoadAll;
    SystemInfo info;
    info.iBlendEdges = 77;
    const auto before = listFields(info);
    if (!LoadImageStateFromXML(info, fuzz::inputFile(), mode).empty()) {
        fuzz::require(listFields(info) == before, "a refused file changes nothing");
    } else if (saveImageStateToXML(info, fuzz::inputFile()).empty()) {
        // A text may grow too long for the file by its escapes; everything else that loads can be saved and loaded.
        fuzz::require(LoadImageStateFromXML(info, fuzz::inputFile(), kLoadAll).empty(), "what was saved loads");
    }
    return 0;
}
