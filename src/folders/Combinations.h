#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>

namespace tavrin {

// Which pictures a batch makes from the files in its three slots. Both batches go by this; what they take the names
// from, and which combinations they leave out, is their own.

/// Names in the order in which they are taken. A slot without files holds one name that stands for that, or nothing
/// is made.
struct BatchSlots {
    std::span<const std::string> foregrounds, backgrounds, states;
};

/// Places of three names in their slots.
struct Combination {
    std::size_t foreground = 0, background = 0, state = 0;
};

/// @return false to end the walk
using TakeCombination = std::function<bool(const Combination&)>;

/// Walks all combinations: states outermost, backgrounds in the middle, foregrounds innermost.
void eachCombination(const BatchSlots& slots, const TakeCombination& take);

/// The background of each subfolder of portraits: that one whose name up to its first full stop is the subfolder's,
/// the last of several.
class SubfolderBackgrounds {
  public:
    explicit SubfolderBackgrounds(std::span<const std::string> backgrounds);
    /// Place of the background in the list; null when the subfolder has none.
    const std::size_t* find(std::string_view subfolder) const;

  private:
    std::unordered_map<std::string_view, std::size_t> places_;
};

/// Walks portraits that are listed as "subfolder/name", each with the background of its subfolder; those of a
/// subfolder without one are left out. States are outermost.
/// @param loose told of each portrait that lies in no subfolder, as the walk comes by
void eachInSubfolders(const BatchSlots& slots, const TakeCombination& take,
                      const std::function<void(const std::string& name)>& loose);

}  // namespace tavrin
