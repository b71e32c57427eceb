#include <chrono>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include "core/files/Places.h"
#include "core/state/SettingNames.h"
#include "formats/ImageState.h"
#include "session/Looks.h"
#include "session/NamedLooks.h"
#include "session/RecipeKeeper.h"
#include "session/RecipeStore.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

class LooksTest : public testing::Test {
  protected:
    LooksTest() {
        Places::current().setSharedFolder(folder_.file("shared/"));
        Places::current().setPicturesFolder(folder_.file("pictures/"));
    }
    ~LooksTest() override {
        Places::current().setSharedFolder(shared_);
        Places::current().setPicturesFolder(pictures_);
    }
    std::string portrait(const std::string& name) {
        std::ofstream(folder_.file(name)) << name;
        return folder_.file(name);
    }

    const std::string shared_ = Places::current().sharedFolder(), pictures_ = Places::current().picturesFolder();
    test::TempFolder folder_;
};

TEST_F(LooksTest, ARecipeComesBackFromItsBytesOddNamesIncluded) {
    SystemInfo info;
    SettingEditor editor(info);
    info.pForegroundBitmapInfo->sSourceImageFullPath = std::string("/odd \xf6 \"name\".jpg");
    for (int i = 0; i < 11; ++i)
        setField(info, "text" + std::to_string(i) + ".sText", "line " + std::to_string(i));
    editor.beginStep("Gr\xc3\xbcn");
    editor.set("combined.sliderRemoveGreenAreas", "120");
    editor.endStep();
    editor.markSaved(editor.position());
    editor.set("foreground.fTilt", "1.25");
    editor.undo();

    const std::optional<Recipe> recipe = recipeOf(bytesOf(presentRecipe(editor)));
    ASSERT_TRUE(recipe);
    EXPECT_EQ(recipe->portrait(), "/odd \xf6 \"name\".jpg");
    SystemInfo other;
    setField(other, "text0.sText", "an item that goes");
    EXPECT_EQ(useSettings(other, recipe->settings), "");
    EXPECT_EQ(listFields(other), listFields(info));
    SettingEditor again(other);
    again.setHistory(recipe->history);
    EXPECT_FALSE(again.isUnsaved());
    ASSERT_EQ(again.steps().size(), 2u);
    EXPECT_EQ(again.steps()[0].label, "Gr\xc3\xbcn");
    EXPECT_TRUE(again.redo());
    EXPECT_EQ(other.pForegroundBitmapInfo->fTilt, 1.25);
    EXPECT_TRUE(again.isUnsaved());

    EXPECT_EQ(useSettings(other, {{"iFontObjectCount", "0"}}), "");
    EXPECT_TRUE(other.oFontObject.empty());
    for (const char* broken : {"", "{", "[]", "{\"settings\": 3}"})
        EXPECT_FALSE(recipeOf(broken)) << broken;
}

TEST_F(LooksTest, ARecipeBelongsToThePictureThatWasThere) {
    const std::string file = portrait("anna.jpg");
    SystemInfo info;
    SettingEditor editor(info);
    editor.set("iBlendEdges", "55");
    ASSERT_EQ(saveRecipe(file, presentRecipe(editor)), "");
    EXPECT_TRUE(loadRecipe(file));
    std::ofstream(file) << "another picture under the name";
    EXPECT_FALSE(loadRecipe(file));
    EXPECT_NE(saveRecipe(folder_.file("missing.jpg"), Recipe()), "");

    ASSERT_EQ(saveRecipe(file, presentRecipe(editor)), "");
    std::ofstream(recipeFile(file)) << "damaged";
    EXPECT_FALSE(loadRecipe(file));
    EXPECT_TRUE(std::filesystem::exists(recipeFile(file) + ".damaged")) << "kept for whoever wants to mend it";
}

TEST_F(LooksTest, TheKeepersOfTwoProgramsDoNotTakeEachOthers) {
    SystemInfo info;
    SettingEditor editor(info);
    auto one = std::make_unique<RecipeKeeper>();
    RecipeKeeper other;
    one->keep(presentRecipe(editor));
    other.keep(presentRecipe(editor));
    one->wait();
    other.wait();
    EXPECT_TRUE(leftRecipes().empty()) << "both run";
    one.reset();
    {
        const std::vector<LeftRecipe> left = leftRecipes();
        ASSERT_EQ(left.size(), 1u);
        EXPECT_TRUE(leftRecipes().empty()) << "somebody is being asked about it";
    }
    std::vector<LeftRecipe> left = leftRecipes();
    ASSERT_EQ(left.size(), 1u) << "nobody answered";
    other.keep(presentRecipe(editor), left[0]);
    other.wait();
    left.clear();
    other.forget();
    EXPECT_TRUE(leftRecipes().empty());
}

TEST_F(LooksTest, ALookChangesItsPartsAloneAndIsOneStep) {
    SystemInfo from, to;
    for (const auto& [name, value] : SettingValues{{"combined.sliderRemoveGreenAreas", "140"},
                                                   {"foreground.iBrightness", "25"},
                                                   {"iHaveShadow", "2"},
                                                   {"foreground.fScale", "1.5"},
                                                   {"iSliderClipLeft", "10"},
                                                   {"foreground.sSourceImageFullPath", "/from.jpg"},
                                                   {"iOutputPixelWidth", "77"}})
        ASSERT_EQ(setField(from, name, value), "");
    to.pForegroundBitmapInfo->sSourceImageFullPath = "/to.jpg";
    const auto before = listFields(to);
    SettingEditor editor(to);
    const SettingValues look = lookOf(from);
    takeLook(editor, "Paste", partsOf(look, {LookPart::key, LookPart::tone, LookPart::effects}));
    EXPECT_EQ(to.pCombinedBitmapInfo->sliderRemoveGreenAreas, 140);
    EXPECT_EQ(to.pForegroundBitmapInfo->iBrightness, 25);
    EXPECT_EQ(to.iHaveShadow, 2);
    EXPECT_TRUE(to.pBackgroundBitmapInfo->bScaleChange) << "the flags follow";
    EXPECT_EQ(to.pForegroundBitmapInfo->fScale, 1.0);
    EXPECT_EQ(to.iSliderClipLeft, 0);
    EXPECT_EQ(to.pForegroundBitmapInfo->sSourceImageFullPath.load(), "/to.jpg");
    EXPECT_NE(to.iOutputPixelWidth, 77);
    ASSERT_EQ(editor.steps().size(), 1u);
    editor.undo();
    EXPECT_EQ(listFields(to), before);

    std::set<LookPart> parts;
    for (const LookChange& change : changesBy(to, look))
        parts.insert(change.part);
    EXPECT_EQ(parts, (std::set<LookPart>{LookPart::key, LookPart::tone, LookPart::effects, LookPart::place,
                                         LookPart::clip}));
}

TEST_F(LooksTest, TextsOfALookComeWithTheirListAndGoWithTheStep) {
    SystemInfo from, to;
    setField(from, "text0.sText", "School");
    SettingEditor editor(to);
    takeLook(editor, "Paste", lookOf(from));
    ASSERT_EQ(to.oFontObject.size(), 1u);
    EXPECT_EQ(to.oFontObject[0].sText.load(), "School");
    EXPECT_FALSE(editor.isUnsaved() && editor.steps().empty());
    editor.undo();
    EXPECT_TRUE(to.oFontObject.empty());
    editor.redo();
    EXPECT_EQ(to.oFontObject.size(), 1u);
}

TEST_F(LooksTest, APasteOnPortraitsWaitsInTheirRecipesAndIsTakenBackAsOne) {
    const std::string fresh = portrait("fresh.jpg"), known = portrait("known.jpg");
    SystemInfo info;
    SettingEditor editor(info);
    editor.set("foreground.iBrightness", "5");
    ASSERT_EQ(saveRecipe(known, presentRecipe(editor)), "");
    const SettingValues look = {{"foreground.iContrast", "70"}, {"iFontObjectCount", "1"}, {"text0.sText", "2026"}};
    PortraitPaste paste({fresh, known, folder_.file("gone.jpg")}, "Paste", look);
    EXPECT_NE(paste.paste().find("gone.jpg"), std::string::npos);
    EXPECT_EQ(paste.changed(), 2u);
    for (const std::string& file : {fresh, known}) {
        ASSERT_EQ(loadRecipe(file)->pasted.size(), 1u);
        EXPECT_EQ(loadRecipe(file)->pasted[0].second, look);
    }
    EXPECT_EQ(loadRecipe(known)->history.steps.size(), 1u);
    EXPECT_EQ(paste.takeBack(), "");
    EXPECT_FALSE(loadRecipe(fresh));
    EXPECT_TRUE(loadRecipe(known)->pasted.empty());

    EXPECT_EQ(paste.paste([](std::size_t before) { return before < 1; }), "") << "stopped after the first";
    EXPECT_EQ(paste.changed(), 1u);
    EXPECT_TRUE(loadRecipe(known)->pasted.empty());
    EXPECT_EQ(paste.takeBack(), "");

    paste.paste();
    ASSERT_EQ(saveRecipe(known, presentRecipe(editor)), "");  // opened and worked on
    EXPECT_EQ(paste.takeBack(), "");
    EXPECT_TRUE(loadRecipe(known)) << "that work stays";
}

TEST_F(LooksTest, ALookByNameIsAStateThatKeepsThePicturesAndItsOutputModes) {
    SystemInfo info;
    info.iForegroundOutputMode = 2;
    info.iBackgroundOutputMode = 1;
    info.pForegroundBitmapInfo->iBrightness = 12;
    info.pForegroundBitmapInfo->sSourceImageFullPath = "/anna.jpg";
    info.pBackgroundBitmapInfo->iContrast = 77;
    ASSERT_EQ(saveLook(settingsOf(info), "School"), "");
    SettingValues look;
    SystemInfo other;
    other.pBackgroundBitmapInfo->iContrast = 61;
    ASSERT_EQ(readLook(other, lookFile("School"), look), "");
    SettingEditor editor(other);
    takeLook(editor, "School", look);
    EXPECT_EQ(other.iForegroundOutputMode, 2);
    EXPECT_EQ(other.iBackgroundOutputMode, 1);
    EXPECT_EQ(other.pForegroundBitmapInfo->iBrightness, 12);
    EXPECT_EQ(other.pBackgroundBitmapInfo->iContrast, 61);
    EXPECT_NE(other.pForegroundBitmapInfo->sSourceImageFullPath.load(), "/anna.jpg");

    EXPECT_NE(saveLook(settingsOf(info), "../out"), "");
    EXPECT_NE(saveLook(settingsOf(info), ""), "");
    ASSERT_EQ(saveLook(settingsOf(info), "Fair"), "");
    EXPECT_NE(renameLook("School", "Fair"), "") << "never over another";
    EXPECT_EQ(renameLook("School", "Autumn"), "");
    EXPECT_EQ(lookNames(), (std::vector<std::string>{"Autumn", "Fair"}));
    EXPECT_EQ(deleteLook("Fair"), "");
    EXPECT_EQ(lookNames(), (std::vector<std::string>{"Autumn"}));
    EXPECT_EQ(restoreLook("Fair"), "");
    EXPECT_EQ(exportLook("Fair", folder_.file("Autumn.qlx")), "");
    EXPECT_EQ(freeLookName("Autumn"), "Autumn 2");
    const std::string endless(300, 'x');  // longer than the name of any file
    EXPECT_EQ(freeLookName(endless), endless);
    EXPECT_NE(renameLook("Autumn", endless), "");
    EXPECT_EQ(importLook(info, folder_.file("Autumn.qlx"), "Autumn 2"), "");
    EXPECT_EQ(lookNames(), (std::vector<std::string>{"Autumn", "Autumn 2", "Fair"}));
    EXPECT_NE(importLook(info, portrait("no look.qlx"), "Fair"), "");
    EXPECT_EQ(readLook(other, lookFile("Fair"), look), "") << "the old one is still there";
}

}  // namespace
}  // namespace tavrin
