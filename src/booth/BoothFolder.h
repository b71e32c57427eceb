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

    /// Makes the hidden folder.
    /// @return "" or why nothing can be put into the output folder, as one plain line
    std::string prepare() const;
    /// Whether a photo of this stem lies in the folder, whatever its type.
    bool hasPhoto(const std::string& stem) const;

  private:
    std::string output_;
};

}  // namespace tavrin
