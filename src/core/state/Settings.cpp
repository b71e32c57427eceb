#include "core/state/SystemInfo.h"

namespace tavrin {

namespace {

template <class... Groups>
Leaves<Settings> joinLeaves() {
    Leaves<Settings> table;
    (appendLeaves(table, Groups::leaves()), ...);
    return table;
}

}  // namespace

std::span<const Leaf<Settings>> Settings::leaves() {
    static const Leaves<Settings> table =
        joinLeaves<GuardSettings, GlobalSmoothingSettings, StarFilterSettings, OutputGeometry, EasySettings,
                   SelectionSettings, BlurSettings, ClipSettings, OutputModeSettings, ShadowSettings, OverlaySettings,
                   CartoonSettings, KeyOutputSettings, EventSettings, SkinSettings, LightingSettings,
                   SilhouetteSettings, ReflectionSettings, RefineSettings>();
    return table;
}

}  // namespace tavrin
