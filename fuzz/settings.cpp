// The settings file.

#include <cstdio>

#include "FuzzFile.h"
#include "formats/SettingsFile.h"

using namespace tavrin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::writeInput(bytes, size);
    QLXInfo settings;
    settings.sPrefix = "as it was";
    if (!LoadQLXFile(settings, fuzz::inputFile()).empty()) {
        fuzz::require(settings.sPrefix.load() == "as it was", "a refused file changes nothing");
        std::remove((fuzz::inputFile() + ".damaged").c_str());
    } else if (SaveQLXFile(settings, fuzz::inputFile()).empty()) {
        fuzz::require(LoadQLXFile(settings, fuzz::inputFile()).empty(), "what was saved loads");
    }
    return 0;
}
