#pragma once

#include <vector>

#include "ui/bind/Binding.h"

namespace tavrin {

/// The groups of the Effects page, in the order in which `UpdateAllUI` shows their settings.
const std::vector<BindingGroup>& effectGroups();
/// Their names as they stand on the page, from top to bottom.
const std::vector<const char*>& effectsFromTopToBottom();

/// The groups of `effectGroups`, by subject.
std::vector<BindingGroup> toneGroups();
BindingGroup shadowGroup();
BindingGroup skinGroup();
BindingGroup globalSmoothingGroup();
std::vector<BindingGroup> textureGroups();
std::vector<BindingGroup> frameGroups();
BindingGroup silhouetteGroup();
BindingGroup reflectionGroup();
BindingGroup reflectionTextureGroup();
BindingGroup lightingGroup();
std::vector<BindingGroup> drawingGroups();
BindingGroup guardGroup();

/// A slider of a setting of the state that takes the control's number as it stands.
inline Binding plainSlider(const char* control, const Handler* handler, const char* setting, double maximum,
                           double reset, const char* label, const char* toolTip) {
    return {control, handler, Owner::state, setting, &kPlain, 0, maximum, reset, label, toolTip};
}
inline Binding plainBox(const char* control, const Handler* handler, const char* setting, double reset,
                        const char* label, const char* toolTip) {
    return {control, handler, Owner::state, setting, &kState, 0, 1, reset, label, toolTip};
}
/// Buttons of which one is in force.
inline Binding radio(const char* control, const Handler* handler, const char* setting, double reset,
                     const char* label, const char* toolTip, std::vector<Choice> choices) {
    const double first = choices.front().value, last = choices.back().value;
    return {control, handler, Owner::state, setting, &kPlain, first, last, reset, label, toolTip, std::move(choices)};
}

/// Two names as one, which stays as long as the program.
const char* joined(const char* first, const char* second);

}  // namespace tavrin
