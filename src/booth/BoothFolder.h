#pragma once

#include <string>

namespace tavrin {

/// What the booths of an output folder keep there besides tickets and photos, in a hidden folder of it: nothing of it
/// counts as one of these. A ticket is known by its stem, that is its name without the extension.
class BoothFolder {
  public:
    explicit BoothFolder(std::string output);

    const std::string& output() const { return output_; }  ///< ends with a slash
    std::string ticket(const std::string& stem) const { return output_ + stem + ".qlx"; }
    std::string photo(const std::string& stem) const { return output_ + stem + ".jpg"; }
    std::string hidden() const { return output_ + ".tavrin-booth/"; }
    std::string madePhoto(const std::string& stem) const { return hidden() + stem + ".jpg"; }
    std::string claim(const std::string& stem) const { return hidden() + stem + ".own"; }
    std::string note(const std::string& stem) const { return hidden() + stem + ".job"; }
    std::string broken() const { return output_ + "Broken/"; }

    /// Sees to the hidden folder. Where this process has used the output folder, and now another one without it lies
    /// in its place, that is where a disk is connected that is not there at present; nothing may get in there.
    /// @return "" or why nothing can be put into the output folder, as one plain line
    std::string prepare() const;
    /// The same for whatever lies there now: a person has just chosen it.
    std::string adopt() const;
    /// Removes what killed programs left in the hidden folder: tickets that were never named, pictures and claims of
    /// tickets that are gone.
    void removeLeftovers() const;
    /// Whether a photo of this stem lies in the folder, whatever its type.
    bool hasPhoto(const std::string& stem) const;

  private:
    std::string output_;
};

}  // namespace tavrin
