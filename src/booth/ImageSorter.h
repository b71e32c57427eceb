#pragma once

#include <atomic>
#include <functional>
#include <string>
#include <vector>

#include "folders/NextFileInFolder.h"

namespace tavrin {

/// What came of sorting a folder.
struct SortedImages {
    int landscape = 0, portrait = 0;
    int copied = 0, alreadyThere = 0;   ///< what is there already from an earlier sort is left as it is
    std::vector<std::string> failures;  ///< one plain line for each photo that was not copied
    std::string problem;                ///< why nothing could be sorted, as one plain line; else ""
    bool stopped = false;
};

/// Splits the photos of a folder into its subfolders "Portrait" and "Landscape", for the two folders of backgrounds
/// of an event. Photos are copied, the originals stay, and nothing is written over. For one thread at a time.
class ImageSorter {
  public:
    /// Looks into a folder.
    /// @return how many photos it holds
    int selectImagerSortFolder(const std::string& folder);

    /// Counts so far, after each photo.
    using Progress = std::function<void(int landscape, int portrait)>;
    /// Sorts the photos of the last look. A photo goes to "Landscape" when it is stored wider than high and the
    /// camera was held upright; one that was turned by a quarter is a portrait in any case, and so is one that cannot
    /// be read.
    /// @param stop is set when nobody wants the rest
    SortedImages sortImagesInFolder(const Progress& progress = {}, const std::atomic<bool>* stop = nullptr);

    NextFileInFolder nextItemToSort;

  private:
    bool isLandscape(const std::string& photo, SortedImages& sorted) const;
};

}  // namespace tavrin
