#include "ui/effects/EffectGroups.h"

#include <set>
#include <string>

namespace tavrin {

const char* joined(const char* first, const char* second) {
    static std::set<std::string> names;
    return names.insert(std::string(first) + second).first->c_str();
}

const std::vector<BindingGroup>& effectGroups() {
    static const std::vector<BindingGroup> groups = [] {
        std::vector<BindingGroup> all = toneGroups();
        const auto add = [&all](std::vector<BindingGroup> more) {
            for (BindingGroup& group : more)
                all.push_back(std::move(group));
        };
        add({shadowGroup(), skinGroup()});
        add(textureGroups());
        add(frameGroups());
        add({silhouetteGroup(), reflectionGroup(), reflectionTextureGroup(), lightingGroup()});
        add(drawingGroups());
        add({globalSmoothingGroup(), guardGroup()});
        return all;
    }();
    return groups;
}

const std::vector<const char*>& effectsFromTopToBottom() {
    static const std::vector<const char*> names = {
        "groupShadow",
        "MyEffectsFrame1Panel",
        "MyEffectsTextureFramePanel",
        "MyEffectsFrame2Panel",
        "MyEffectsTextureFrameOverlayPanel",
        "MyEffectsLightingPanel",
        "MyEffectsReflectionsPanel",
        "MyEffectsTextureReflectionPanel",
        "MyEffectsBWPanel",
        "groupBlur",
        "MyEffectsCartoonPanel",
        "MyEffectsTexturePanel",
        "MyEffectsSmoothPanel",
        "myGlobalSmoothingPanel",
        "myStarFilterPanel",
        "MyEffectsSilhouettePanel",
        "myGreenGuardPanel",
    };
    return names;
}

}  // namespace tavrin
