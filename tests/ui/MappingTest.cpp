// The numbers of the controls against the values that people know from saved states.
#include <gtest/gtest.h>

#include "ui/adjust/AdjustGroups.h"
#include "ui/bind/Binder.h"

namespace tavrin {
namespace {

const Binding& bindingOf(const std::string& control) {
    for (const BindingGroup& group : adjustGroups())
        for (const Binding& binding : group.bindings)
            if (binding.control == control) return binding;
    ADD_FAILURE() << control;
    return adjustGroups().front().bindings.front();
}

std::string settingAt(const std::string& control, double value) {
    const Mapping& mapping = *bindingOf(control).mapping;
    return settingText(mapping, mapping.toSetting(value));
}

TEST(MappingTest, ControlsMeanWhatTheyAlwaysMeant) {
    EXPECT_EQ(settingAt("sliderBrightness", 0), "-100");
    EXPECT_EQ(settingAt("sliderBrightness", 130), "30");
    EXPECT_EQ(settingAt("sliderBrightnessSat", 100), "0");
    EXPECT_EQ(settingAt("sliderContrast", 50), "50");
    EXPECT_EQ(settingAt("sliderGreenDelta", 0), "-200");
    EXPECT_EQ(settingAt("sliderBlueDelta", 400), "200");
    EXPECT_EQ(settingAt("sliderWarming", 17), "17");
    EXPECT_EQ(settingAt("sliderTilt", 0), "-90");
    EXPECT_EQ(settingAt("sliderTilt", 92.5), "2.5");
    EXPECT_EQ(settingAt("sliderScale", 180), "1");
    EXPECT_EQ(settingAt("sliderScale", 260), "2");
    for (const double least : {100.0, 60.0, 100.5})
        EXPECT_EQ(settingAt("sliderScale", least), "0.01");
    EXPECT_EQ(settingAt("sliderWhiteAdjust", 77.9), "77") << "what a setting has no room for is cut off";
    EXPECT_EQ(settingAt("sliderBrightness", 99.5), "0");
}

TEST(MappingTest, DefaultsAreThoseOfTheResets) {
    for (const auto& [control, reset] :
         std::initializer_list<std::pair<const char*, double>>{{"sliderRemoveGreenAreas", 100},
                                                               {"sliderRestoredDarkAreas", 60},
                                                               {"sliderWhiteAdjust", 40},
                                                               {"sliderGreenTintAreas", 100},
                                                               {"sliderTransparentcyAdjustment", 100},
                                                               {"sliderWhiteBalance", 100},
                                                               {"sliderAdjustBaseGreen", 100},
                                                               {"sliderContrast", 50},
                                                               {"sliderBlendEdges", 30},
                                                               {"radioHair", 6},
                                                               {"radioTransparency", 2},
                                                               {"radioShadows", 1},
                                                               {"radioQuality", 1},
                                                               {"sliderScale", 1}})
        EXPECT_EQ(bindingOf(control).reset, reset) << control;
}

}  // namespace
}  // namespace tavrin
