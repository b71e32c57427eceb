#pragma once

#include <functional>
#include <string>
#include <vector>

#include "farm/BatchJob.h"
#include "folders/Combinations.h"

namespace tavrin {

/// The files of one slot of a batch: the names that they are listed under, and their paths.
struct SourceFiles {
    std::vector<std::string> names, paths;

    void add(std::string name, std::string path);
};

/// Lists files by fixed rules: sorted without regard to case, those left out that begin with a full stop, which are
/// helpers of other programs.
class SourceLister {
  public:
    /// @param accept which files count; null: all
    explicit SourceLister(const std::function<bool(const std::string& path)>& accept) : accept_(accept) {}

    /// The files of these extensions (in capitals) in a folder; or the one file, whatever its name.
    SourceFiles list(const std::string& place, const std::vector<std::string>& extensions);
    /// The same, but where no place is given there is one file without a name.
    SourceFiles listOrNone(const std::string& place, const std::vector<std::string>& extensions);
    /// Photos in those subfolders that have a background, as "subfolder/name".
    SourceFiles listSubfolders(const std::string& folder, const SubfolderBackgrounds& backgrounds);

    /// Why a folder could not be read, of several the first; one plain line, "" when all could.
    std::string problem;

  private:
    std::vector<std::string> subfoldersOf(const std::string& folder);

    const std::function<bool(const std::string& path)>& accept_;
};

/// Files beside the portraits and the backgrounds of which nothing is made, hidden ones aside.
std::vector<std::string> findPassedOver(const JobSources& sources);

}  // namespace tavrin
