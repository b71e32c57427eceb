#pragma once

#include <string>
#include <vector>

namespace tavrin {

/// The overlays of one set, by the layers they lie over; "" where the set has none.
struct OverlaySet {
    std::string frame, foreground, background;
};

/// What the files of a set have in common: the name of one of them in capitals, without its first three letters, such
/// as "WINTER.PNG" for "FR_Winter.png".
std::string automaticNameOf(const std::string& file);

/// Looks through a folder and those in it for files whose path ends with `automaticName`, capitals or not, and whose
/// names begin with "FR_", "FG_" or "BG_". Of several the last one by name counts. A folder that cannot be read has
/// none.
OverlaySet searchFolder(const std::string& folder, const std::string& automaticName);

struct NamedOverlaySet {
    std::string
        name;  ///< what its files are called behind "FR_", "FG_" or "BG_", without extension, as it is written
    OverlaySet files;
};

/// All sets of pictures that lie in a folder and those in it, in the order of their files. Capitals make no
/// difference; of several pictures for one layer the first one by name counts.
std::vector<NamedOverlaySet> overlaySetsIn(const std::string& folder);

}  // namespace tavrin
