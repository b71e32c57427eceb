#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "session/Recipe.h"

namespace tavrin {

/// What a look is made of, for people to choose from.
enum class LookPart { key, hair, tone, skin, effects, texts, place, clip };

/// Those that belong to one picture alone stay out of a look unless somebody wants them.
bool isUsuallyTaken(LookPart part);

/// The part that a setting belongs to; nothing for what is no look: pictures, sizes, views, what the program finds
/// out.
std::optional<LookPart> partOf(const std::string& setting);

/// The look of a state: of all its settings those that have a part.
SettingValues lookOf(const SystemInfo& info);
/// The settings of a look that belong to some parts.
SettingValues partsOf(const SettingValues& look, const std::set<LookPart>& parts);

/// What a look would change.
struct LookChange {
    LookPart part;
    std::string setting, before, after;
};
std::vector<LookChange> changesBy(const SystemInfo& info, const SettingValues& look);

/// Takes settings of a look over, as one step.
void takeLook(SettingEditor& editor, const std::string& label, const SettingValues& look);

/// A look that is pasted on portraits which are not shown. It waits in their recipes, and becomes a step of their
/// history when they are opened.
class PortraitPaste {
  public:
    PortraitPaste(std::vector<std::string> portraits, std::string label, const SettingValues& look);

    /// @param goesOn asked before each portrait, with the number of those before it; false ends the pasting there
    /// @return "" or one line for each portrait that could not take it
    std::string paste(const std::function<bool(std::size_t)>& goesOn = {});
    /// Gives each portrait the recipe that it had, unless somebody has worked on it since: there it is a step to take
    /// back.
    /// @return "" or one line for each portrait for which that failed
    std::string takeBack();
    std::size_t changed() const { return done_.size(); }

  private:
    struct Done {
        std::string file, before, after;  ///< bytes; before "" where there was no recipe
    };
    std::vector<std::string> portraits_;
    std::string label_;
    SettingValues look_;
    std::vector<Done> done_;
};

}  // namespace tavrin
