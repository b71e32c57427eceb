// The list of output sizes.

#include "FuzzFile.h"
#include "formats/Lists.h"

using namespace tavrin;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    fuzz::writeInput(bytes, size);
    std::vector<ImageSize> list(3), again;
    if (!loadImageSizes(list, fuzz::inputFile(), true).empty()) {
        fuzz::require(list.size() == 3, "nothing is taken from a refused file");
    } else if (saveImageSizes(list, fuzz::inputFile()).empty()) {
        fuzz::require(loadImageSizes(again, fuzz::inputFile(), true).empty(), "what was saved loads");
        fuzz::require(again.size() == list.size() && list.size() <= kMaxListEntries, "no entry is lost");
    }
    return 0;
}
