#include <filesystem>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <map>
#include <random>

#include "core/state/SettingNames.h"
#include "formats/ImageState.h"
#include "support/Files.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

using test::readFile;
using test::replaced;
using test::writeFile;
using testing::AllOf;
using testing::HasSubstr;
using Values = std::map<std::string, std::string>;

Values valuesOf(const SystemInfo& info) {
    const auto fields = listFields(info);
    return Values(fields.begin(), fields.end());
}

/// Gives every setting a value of its own kind, most likely not its default. What a field takes tells its kind.
void shuffle(SystemInfo& info, unsigned seed, std::size_t items) {
    std::mt19937 random(seed);
    info.oFontObject.resize(items);
    for (const auto& [name, value] : listFields(info)) {
        const std::string number = std::to_string(static_cast<std::int32_t>(random()));
        if (setField(info, name, "\xC3\xA4 \"<&>#\n " + name + number).empty()) continue;
        if (setField(info, name, number + ".015625").empty() || setField(info, name, number).empty()) continue;
        EXPECT_EQ(setField(info, name, random() % 2 ? "1" : "0"), "");
    }
}

class ImageStateTest : public testing::Test {
  protected:
    void SetUp() override {
        info.oFontObject.resize(2);
        ASSERT_EQ(saveImageStateToXML(info, path), "");
        good = readFile(path);
    }
    /// Loads these bytes into a state, which has to stay as it is when they are refused.
    std::string load(const std::string& bytes, int mode = kLoadAll) {
        writeFile(path, bytes);
        return LoadImageStateFromXML(info, path, mode);
    }

    test::TempFolder folder;
    const std::string path = folder.file("a.qlx");
    SystemInfo info;
    std::string good;
};

TEST_F(ImageStateTest, ElementsStandInThisOrder) {
    std::string order;
    for (std::size_t at = good.find("\n    <"); at != std::string::npos; at = good.find("\n    <", at + 1)) {
        const std::string name = good.substr(at + 6, good.find('>', at) - at - 6);
        if (name[0] != '/') order += name + " ";
    }
    EXPECT_EQ(
        order,
        "SystemInfo ForegroundBitmapInfo BackgroundBitmapInfo CombinedBitmapInfo FontLabel0 FontLabel1 FontLabel2 "
        "FontObject FontObject ImageTexture Frame FrameTextureObject FrameOverlay FrameOverlayTextureObject "
        "ReflectionTexture ");
    EXPECT_THAT(good, HasSubstr("<ImageState>\n    <SystemInfo>\n        <bAdvancedHairDetectionON>0</"));
    EXPECT_THAT(good,
                HasSubstr("<iEventPrintCount>0</iEventPrintCount>\n        <iFontObjectCount>2</iFontObjectCount>\n"
                          "        <iSmoothMode>0</iSmoothMode>\n"));
    for (const char* notStored : {"bUseAdaptiveBackgroundGreen", "bEZCombine", "bSmoothBlendOrg", "iFrameThickness",
                                  "bShowSelectedAreas", "iBitmapType"})
        EXPECT_EQ(good.find(notStored), std::string::npos) << notStored;
}

TEST_F(ImageStateTest, EverySettingComesBackButForTheKnownHabits) {
    for (unsigned seed = 1; seed <= 5; ++seed) {
        SystemInfo from;
        shuffle(from, seed, seed * 3);
        from.dOutputImageHeightInInches = 123.0;
        ASSERT_EQ(saveImageStateToXML(from, path), "");
        SystemInfo to;
        const Values fresh = valuesOf(to);
        ASSERT_EQ(LoadImageStateFromXML(to, path, kLoadAll), "");
        Values wanted = valuesOf(from);
        std::swap(wanted["iForegroundOutputMode"], wanted["iBackgroundOutputMode"]);
        for (const char* kept :
             {"dOutputImageHeightInInches", "bUseAdaptiveBackgroundGreen", "bEZCombine", "bSmoothBlendOrg",
              "frame.iFrameThickness", "frameOverlay.iFrameThickness", "foreground.bShowSelectedAreas",
              "background.bShowSelectedAreas", "combined.bShowSelectedAreas"})
            wanted[kept] = fresh.at(kept);
        EXPECT_EQ(valuesOf(to), wanted);
    }
}

TEST_F(ImageStateTest, ModesReadTheirPart) {
    SystemInfo from;
    shuffle(from, 7, 1);
    ASSERT_EQ(saveImageStateToXML(from, path), "");
    const Values fresh = valuesOf(SystemInfo());
    const auto read = [&](int mode) {
        SystemInfo to;
        EXPECT_EQ(LoadImageStateFromXML(to, path, mode), "");
        return to.oFontObject.size() == 1 ? valuesOf(to) : (to.oFontObject.clear(), valuesOf(to));
    };
    Values all = read(kLoadAll), foreground = read(kLoadForForeground), background = read(kLoadBackgroundOnly);
    EXPECT_EQ(foreground, read(9)) << "any other mode is taken as 2";
    for (const auto& [name, value] : all) {
        const bool ofBackground = name.starts_with("background.");
        const bool ofGeometry = name.find('.') == std::string::npos &&
                                (name.starts_with("iOutput") || name == "dOutputImageWidthInInches" ||
                                 name == "sImageSizeName" || name == "iSelecteImageSize");
        if (fresh.contains(name)) {  // a fresh state has no items
            EXPECT_EQ(background[name], ofBackground ? value : fresh.at(name)) << name;
        }
        EXPECT_EQ(foreground[name], ofBackground || ofGeometry ? fresh.at(name) : value) << name;
    }
}

TEST_F(ImageStateTest, SizeNameIsFoundInTheListAndOtherwiseTheIndexCounts) {
    info.oImageSize.resize(4);
    info.oImageSize[1].sName = info.oImageSize[2].sName = "mine";
    const std::string bytes =
        replaced(replaced(good, "5x7 200 Vert", "mine"), "<iSelecteImageSize>-1", "<iSelecteImageSize>77");
    ASSERT_EQ(load(bytes), "");
    EXPECT_EQ(info.iSelecteImageSize, 2) << "the last of a name";
    ASSERT_EQ(load(replaced(bytes, "mine", "elsewhere")), "");
    EXPECT_EQ(info.iSelecteImageSize, 77);
}

TEST_F(ImageStateTest, OldFilesAndMissingLeaves) {
    info.oImageTexture->iTexturePercent = 33;
    info.oFrame->iFrameBlur = 34;
    info.oFrame->oTexture.iTexturePercent = 35;
    info.oReflectionTexture->iTexturePercent = 36;
    std::string old =
        good.substr(0, good.find("    <ImageTexture>")) + "    <ImageTexture></ImageTexture>\n</ImageState>\n";
    old = replaced(old, "        <iBlendEdges>20</iBlendEdges>\n", "");
    ASSERT_EQ(load(replaced(old, "<bAVPShadowRemoval>1", "<bAVPShadowRemoval>-3")), "");
    EXPECT_EQ(info.iBlendEdges, 0) << "not its default";
    EXPECT_TRUE(info.bAVPShadowRemoval);
    EXPECT_EQ(info.oImageTexture->iTexturePercent, 33);
    EXPECT_EQ(info.oFrame->iFrameBlur, 34);
    EXPECT_EQ(info.oFrame->oTexture.iTexturePercent, 35);
    EXPECT_EQ(info.oReflectionTexture->iTexturePercent, 36);
}

TEST_F(ImageStateTest, BadFilesAreRefusedWholeWithTheElementToBlame) {
    shuffle(info, 3, 2);
    const Values before = valuesOf(info);
    const auto refuse = [&](const std::string& bytes, const std::string& blame, int mode = kLoadAll) {
        const std::string problem = load(bytes, mode);
        EXPECT_THAT(problem, AllOf(HasSubstr(path), HasSubstr(blame)));
        EXPECT_EQ(problem.find('\n'), std::string::npos) << problem;
        EXPECT_EQ(valuesOf(info), before) << blame;
    };
    for (const char* name : {"SystemInfo", "ForegroundBitmapInfo", "BackgroundBitmapInfo", "CombinedBitmapInfo",
                             "FontLabel0", "FontLabel1", "FontLabel2"}) {
        const std::string tag = std::string("<") + name + ">", end = std::string("</") + name + ">";
        refuse(replaced(replaced(good, tag, "<Other>"), end, "</Other>"), std::string("ImageState/") + name);
    }
    refuse(replaced(replaced(good, "<BackgroundBitmapInfo>", "<O>"), "</BackgroundBitmapInfo>", "</O>"),
           "BackgroundBitmapInfo", kLoadBackgroundOnly);
    for (const char* count : {"1", "3", "-1", "200", "9999999999", "none"})
        refuse(replaced(good, "<iFontObjectCount>2", std::string("<iFontObjectCount>") + count), "iFontObjectCount");
    refuse(replaced(good, "<iBlendEdges>20", "<iBlendEdges>2147483648"), "ImageState/SystemInfo/iBlendEdges");
    refuse(replaced(good, "<lFontColor>0", "<lFontColor>9223372036854775808"), "ImageState/FontLabel0/lFontColor");
    refuse(replaced(good, "<fScale>1.000000", "<fScale>1e999"), "ImageState/ForegroundBitmapInfo/fScale");
    refuse(replaced(good, "<sFontName>Arial", "<sFontName>" + std::string(10'000, 'x')), "FontLabel0/sFontName");
    refuse(replaced(good, "<ImageState>", "<ImageStates>"), "no XML");
    refuse("not XML at all", "no XML");
    refuse("<QLXSettings></QLXSettings>", "not a state file");
    EXPECT_THAT(LoadImageStateFromXML(info, folder.file("none.qlx"), kLoadAll), HasSubstr("none.qlx"));
}

TEST_F(ImageStateTest, AFileCutAnywhereIsRefused) {
    shuffle(info, 4, 2);
    const Values before = valuesOf(info);
    const std::size_t end = good.find_last_of('>');  // only the closing line feed is left without
    for (std::size_t size = end; size-- > 0;) {
        std::filesystem::resize_file(path, size + 1);
        ASSERT_NE(LoadImageStateFromXML(info, path, size % 3 == 0 ? kLoadBackgroundOnly : kLoadAll), "") << size;
        if (size % 100 == 0) {
            ASSERT_EQ(valuesOf(info), before) << size;
        }
    }
    EXPECT_EQ(valuesOf(info), before);
}

TEST_F(ImageStateTest, HoldsTwoHundredItemsAndNotOneMore) {
    info.oFontObject.resize(201);
    info.oFontObject[199].sText = "last";
    ASSERT_EQ(saveImageStateToXML(info, path), "");
    SystemInfo full;
    ASSERT_EQ(LoadImageStateFromXML(full, path, kLoadAll), "");
    EXPECT_EQ(full.oFontObject[199].sText.load(), "last");

    const std::string more = replaced(replaced(readFile(path), "<iFontObjectCount>200", "<iFontObjectCount>201"),
                                      "    <FontObject>", "    <FontObject></FontObject>\n    <FontObject>");
    EXPECT_THAT(load(more), HasSubstr("FontObject stands 201 times"));
    info.oFontObject.resize(1);
    info.oFontObject[0].sText = std::string(2'500, '\n');
    EXPECT_THAT(saveImageStateToXML(info, path), AllOf(HasSubstr(path), HasSubstr("sText")));
    EXPECT_EQ(readFile(path), more) << "a save that is refused leaves the old file";
}

}  // namespace
}  // namespace tavrin
