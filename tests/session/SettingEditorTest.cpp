#include <gtest/gtest.h>

#include "session/SettingEditor.h"

namespace tavrin {
namespace {

TEST(SettingEditorTest, OneDragIsOneStepAndBringsTheFirstValueBack) {
    SystemInfo info;
    SettingEditor editor(info);
    for (const int target : {40, 90}) {
        editor.beginStep("Light");
        for (int i = 1; i <= target; ++i)
            EXPECT_EQ(editor.set("foreground.iBrightness", std::to_string(i)), "");
        editor.endStep();
    }
    ASSERT_EQ(editor.steps().size(), 2u);
    EXPECT_EQ(editor.steps()[1].label, "Light");
    EXPECT_TRUE(editor.undo());
    EXPECT_EQ(info.pForegroundBitmapInfo->iBrightness, 40);
    EXPECT_TRUE(editor.undo());
    EXPECT_EQ(info.pForegroundBitmapInfo->iBrightness, 0);
    EXPECT_FALSE(editor.undo());
    EXPECT_TRUE(editor.redo());
    EXPECT_TRUE(editor.redo());
    EXPECT_FALSE(editor.redo());
    EXPECT_EQ(info.pForegroundBitmapInfo->iBrightness, 90);
}

TEST(SettingEditorTest, FlagsFollowEachChangeAndItsUndo) {
    SystemInfo info;
    BitmapInfo& portrait = *info.pForegroundBitmapInfo;
    SettingEditor editor(info);
    portrait.bOrgFileChange = portrait.bScaleChange = false;
    editor.set("foreground.fTilt", "12.5");
    EXPECT_TRUE(portrait.bOrgFileChange.exchange(false));
    editor.set("foreground.fScale", "1.5");
    EXPECT_TRUE(portrait.bScaleChange.exchange(false));
    editor.undo();
    EXPECT_TRUE(portrait.bScaleChange.exchange(false));
    EXPECT_FALSE(portrait.bOrgFileChange);
    editor.undo();
    EXPECT_TRUE(portrait.bOrgFileChange);
    EXPECT_EQ(portrait.fTilt, 0.0);
    EXPECT_EQ(portrait.fScale, 1.0);

    portrait.bOrgFileChange = portrait.bScaleChange = false;
    editor.apply({"foreground.bFlipHorz", "foreground.iOrgXoff"}, [&](SystemInfo&) { portrait.iOrgXoff = 30; });
    EXPECT_TRUE(portrait.bScaleChange);
    EXPECT_FALSE(portrait.bOrgFileChange) << "only what changed counts";
}

TEST(SettingEditorTest, WhatChangesNothingLeavesNoStep) {
    SystemInfo info;
    SettingEditor editor(info);
    editor.beginStep("there and back");
    editor.set("iBlendEdges", "55");
    editor.set("iBlendEdges", "20");
    editor.endStep();
    EXPECT_NE(editor.set("iBlendEdges", "much"), "");
    EXPECT_NE(editor.set("iBlendEdgse", "3"), "");
    EXPECT_TRUE(editor.steps().empty());
    EXPECT_EQ(editor.value("iBlendEdges"), "20");

    editor.set("iBlendEdges", "30");
    editor.set("iBlendEdges", "40");
    editor.undo();
    editor.set("iSliderClipTop", "5");  // which ends what could have been done again
    EXPECT_FALSE(editor.redo());
    EXPECT_EQ(editor.stepsDone(), 2u);
    editor.beginStep("under way");
    EXPECT_FALSE(editor.undo());
    editor.endStep();
    editor.forgetSteps();
    EXPECT_FALSE(editor.undo());
}

TEST(SettingEditorTest, AStepCanGiveItsPlaceToAnotherAndNoneReachesIntoAnotherHistory) {
    SystemInfo info;
    SettingEditor editor(info);
    editor.set("iBlendEdges", "30");
    editor.set("iBlendEdges", "40");
    EXPECT_FALSE(editor.dropStep(editor.steps()[0].number)) << "another one rests on it";
    EXPECT_TRUE(editor.dropStep(editor.position()));
    EXPECT_EQ(editor.value("iBlendEdges"), "30");
    EXPECT_FALSE(editor.redo()) << "it is gone for good";
    editor.undo();
    EXPECT_FALSE(editor.dropStep(editor.steps()[0].number)) << "it is not in force";

    editor.beginStep("a drag that goes on while another portrait is opened");
    editor.set("iBlendEdges", "50");
    editor.forgetSteps();
    editor.set("iBlendEdges", "60");
    editor.endStep();
    ASSERT_EQ(editor.steps().size(), 1u);
    EXPECT_EQ(editor.steps()[0].changes[0].before, "50") << "what was before belongs to the other";
}

}  // namespace
}  // namespace tavrin
