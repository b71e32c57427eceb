#pragma once

#include <string>

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

}  // namespace tavrin
