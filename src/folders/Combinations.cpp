#include "folders/Combinations.h"

namespace tavrin {

void eachCombination(const BatchSlots& slots, const TakeCombination& take) {
    for (std::size_t state = 0; state < slots.states.size(); ++state) {
        for (std::size_t background = 0; background < slots.backgrounds.size(); ++background) {
            for (std::size_t foreground = 0; foreground < slots.foregrounds.size(); ++foreground) {
                if (!take({foreground, background, state})) return;
            }
        }
    }
}

SubfolderBackgrounds::SubfolderBackgrounds(std::span<const std::string> backgrounds) {
    for (std::size_t i = 0; i < backgrounds.size(); ++i) {
        const std::string_view name = backgrounds[i];
        places_[name.substr(0, name.find('.'))] = i;
    }
}

const std::size_t* SubfolderBackgrounds::find(std::string_view subfolder) const {
    const auto found = places_.find(subfolder);
    return found == places_.end() ? nullptr : &found->second;
}

void eachInSubfolders(const BatchSlots& slots, const TakeCombination& take,
                      const std::function<void(const std::string& name)>& loose) {
    const SubfolderBackgrounds backgrounds(slots.backgrounds);
    for (std::size_t state = 0; state < slots.states.size(); ++state) {
        for (std::size_t foreground = 0; foreground < slots.foregrounds.size(); ++foreground) {
            const std::string& name = slots.foregrounds[foreground];
            const std::size_t slash = name.find('/');
            if (slash == std::string::npos) {
                loose(name);
                continue;
            }
            const std::size_t* background = backgrounds.find(std::string_view(name).substr(0, slash));
            if (background && !take({foreground, *background, state})) return;
        }
    }
}

}  // namespace tavrin
