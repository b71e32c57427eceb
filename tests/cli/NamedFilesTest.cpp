// Files that settings name and that are gone or broken: the picture is made without them, and that is told once.
#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <set>

#include "core/state/SettingNames.h"
#include "core/state/SettingObjects.h"
#include "pipeline/CombineThread.h"
#include "pipeline/SaveImage.h"
#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/Sanitized.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using Setting = std::pair<std::string, std::string>;
using Settings = std::vector<Setting>;

/// A setting that names a file, what makes the picture use it, and what gives the picture that has to come out
/// without it.
struct NamedFile {
    std::string name;
    Settings on;
    Setting off;
};

const std::vector<NamedFile>& namedFiles() {
    static const std::vector<NamedFile> all = {
        {"sSilhouetteFileName", {{"bOutputSilhouette", "1"}, {"iSilhouetteRed", "90"}}, {"sSilhouetteFileName", ""}},
        {"sFrameOverlay", {{"bHaveFrameOverlay", "1"}}, {"bHaveFrameOverlay", "0"}},
        {"sForegroundOverlay", {{"bHaveForegroundOverlay", "1"}}, {"bHaveForegroundOverlay", "0"}},
        {"sBackgroundOverlay", {{"bHaveBackgroundOverlay", "1"}}, {"bHaveBackgroundOverlay", "0"}},
        {"text0.sText",
         {{"text0.isImage", "1"}, {"text0.imageSizeWidth", "20"}, {"text0.imageSizeHeight", "20"}},
         {"text0.imageSizeWidth", "0"}},
        {"texture.sTextureFileName", {{"texture.bHaveTexture", "1"}}, {"texture.bHaveTexture", "0"}},
        {"reflectionTexture.sTextureFileName",
         {{"bHaveReflection", "1"}, {"reflectionTexture.bHaveTexture", "1"}},
         {"reflectionTexture.bHaveTexture", "0"}},
        {"frame.sFrameImagePath", {{"frame.iFrameType", "1"}, {"frame.iFrameMode", "4"}}, {"frame.iFrameType", "0"}},
        {"frame.texture.sTextureFileName",
         {{"frame.iFrameType", "2"}, {"frame.iFrameMode", "1"}, {"frame.texture.bHaveTexture", "1"}},
         {"frame.iFrameType", "0"}},
        {"frameOverlay.sFrameImagePath",
         {{"frameOverlay.iFrameType", "1"}, {"frameOverlay.iFrameMode", "4"}},
         {"frameOverlay.iFrameType", "0"}},
        {"frameOverlay.texture.sTextureFileName",
         {{"frameOverlay.iFrameType", "1"},
          {"frameOverlay.iFrameMode", "1"},
          {"frameOverlay.texture.bHaveTexture", "1"}},
         {"frameOverlay.iFrameType", "0"}},
    };
    return all;
}

/// For the command line, which starts slowly under a checker.
std::vector<NamedFile> someNamedFiles() {
    std::vector<NamedFile> some;
    for (std::size_t i = 0; i < namedFiles().size(); i += test::kSanitized ? 4 : 1)
        some.push_back(namedFiles()[i]);
    return some;
}

struct Alerts : Interface {
    void showAlert(const std::string& message, const std::string& reason) override {
        all.push_back(message + "|" + reason);
    }
    std::vector<std::string> all;
};

class NamedFilesTest : public testing::Test {
  protected:
    NamedFilesTest() {
        fs::create_directory(folder_.path() / "fg");
        for (const char* name : {"anna", "ben"})
            test::savePng(test::discOnScreen(60, 36), folder_.file("fg/" + std::string(name) + ".png"));
        test::savePng(test::noisePicture(60, 36, 4), folder_.file("sea.png"));
        test::writeFile(folder_.file("broken.png"), "no picture");
    }
    std::unique_ptr<SystemInfo> state(const NamedFile& file, const std::string& path) const {
        auto info = test::stateForOutput(60, 36);
        info->pForegroundBitmapInfo->sSourceImageFullPath = folder_.file("fg/anna.png");
        info->pBackgroundBitmapInfo->sSourceImageFullPath = folder_.file("sea.png");
        for (const auto& [name, value] : file.on)
            EXPECT_EQ(setField(*info, name, value), "");
        EXPECT_EQ(setField(*info, file.name, path), "");
        return info;
    }
    static std::string pixelsOf(const SystemInfo& info) {
        const auto* bytes = reinterpret_cast<const char*>(info.pCombinedBitmapInfo->pBitmapData);
        return {bytes, pixelBytes(info.iOutputPixelWidth, info.iOutputPixelHeight)};
    }
    QString path(const std::string& name) const { return QString::fromStdString(folder_.file(name)); }
    static QStringList sets(const NamedFile& file, const Setting& more) {
        QStringList words;
        Settings all = file.on;
        all.push_back(more);
        for (const auto& [name, value] : all)
            words += {"--set", QString::fromStdString(name + "=" + value)};
        return words;
    }
    test::CliOutcome render(const std::string& out, const QStringList& more) const {
        return test::runCli(QStringList{"render", "--bare", "--foreground", path("fg/anna.png"), "--background",
                                        path("sea.png"), "--inches", "5x3", "--dpi", "12", "--seed", "1", "--out",
                                        path(out)} +
                            more);
    }
    test::CliOutcome batch(const QStringList& more) const {
        return test::runCli(QStringList{"batch", "--bare", "--foregrounds", path("fg"), "--backgrounds",
                                        path("sea.png"), "--out", path("out"), "--type", "png", "--inches", "5x3",
                                        "--dpi", "12"} +
                            more);
    }

    test::TempFolder folder_;
};

TEST_F(NamedFilesTest, EverySettingOfTextIsKnownToNameAFileOrNot) {
    const std::set<std::string> otherText = {
        "sImageSizeName",       "sEventEmail",      "sFontName",      "sLabelSize",
        "sLabelJust",           "sLocation",        "sLevel",         "sFontColor",
        "sFontOutlineColor",    "sFontShadowColor", "sFontGlowColor",
        "sSourceImageFullPath",  // of the layers, without which there is no picture
    };
    SystemInfo info;
    info.oFontObject.resize(1);
    std::set<std::string> named;
    for (const NamedFile& file : namedFiles())
        named.insert(file.name);
    std::size_t found = 0;
    visitObjects(info, [&](const std::string& prefix, const auto&, auto leaves) {
        constexpr std::size_t kText = 4;  // among the types of a leaf
        for (const auto& leaf : leaves) {
            if (leaf.member.index() != kText) continue;
            const std::string name = prefix + leaf.key;
            const bool label = prefix.starts_with("label") && std::string(leaf.key) == "sText";
            found += named.contains(name);
            EXPECT_TRUE(named.contains(name) || otherText.contains(leaf.key) || label)
                << name << " is new: what does the picture do without its file?";
        }
    });
    EXPECT_EQ(found, named.size());
}

TEST_F(NamedFilesTest, ThePictureIsMadeWithoutTheFileAndThatIsToldOnce) {
    for (const NamedFile& file : namedFiles()) {
        const auto without = state(file, "");
        EXPECT_EQ(setField(*without, file.off.first, file.off.second), "");
        CombineThread(*without).runUntilIdle();
        for (const char* name : {"gone.png", "broken.png"}) {
            SCOPED_TRACE(file.name + " " + name);
            const auto info = state(file, folder_.file(name));
            Alerts alerts;
            info->pInterface = &alerts;
            CombineThread loop(*info);
            for (int pass = 0; pass < 3; ++pass) {
                info->pBackgroundBitmapInfo->bScaleChange = true;
                info->StartUpdate();
                loop.runUntilIdle();
            }
            ASSERT_EQ(alerts.all.size(), 1u);
            EXPECT_TRUE(alerts.all[0].starts_with("Cound not load file: " + std::string(name) +
                                                  ", check your file permissions|"));
            EXPECT_EQ(info->whyNotFinished(Resolution::full), "");
            EXPECT_TRUE(pixelsOf(*info) == pixelsOf(*without));
        }
    }
}

TEST_F(NamedFilesTest, AFileThatCameBackAndWentAgainIsToldAgain) {
    const NamedFile& overlay = namedFiles()[1];
    const std::string path = folder_.file("veil.png");
    const auto info = state(overlay, path);
    Alerts alerts;
    info->pInterface = &alerts;
    CombineThread loop(*info);
    const auto alertsAfter = [&](const std::string& named) {
        info->sFrameOverlay = named;
        info->StartUpdate();
        loop.runUntilIdle();
        return alerts.all.size();
    };
    EXPECT_EQ(alertsAfter(path), 1u);
    test::savePng(test::noisePicture(60, 36, 7), path);
    EXPECT_EQ(alertsAfter(path), 1u);
    fs::remove(path);
    EXPECT_EQ(alertsAfter(path), 2u);
    info->bHaveFrameOverlay = false;
    EXPECT_EQ(alertsAfter(""), 2u);
    info->bHaveFrameOverlay = true;
    EXPECT_EQ(alertsAfter(path), 3u) << "chosen once more";
}

TEST_F(NamedFilesTest, RenderWritesThePictureAndFails) {
    for (const NamedFile& file : someNamedFiles()) {
        SCOPED_TRACE(file.name);
        ASSERT_EQ(render("without.png", sets(file, file.off)).code, 0);
        const auto outcome = render("with.png", sets(file, {file.name, folder_.file("gone.png")}));
        EXPECT_EQ(outcome.code, 1);
        EXPECT_EQ(outcome.err.count("gone.png"), 1) << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count('\n'), 1) << outcome.err.toStdString();
        EXPECT_EQ(test::readFile(folder_.file("with.png")), test::readFile(folder_.file("without.png")));
    }
    const NamedFile& silhouette = namedFiles()[0];
    ASSERT_EQ(render("without.png", sets(silhouette, silhouette.off) + QStringList{"--fast"}).code, 0);
    const QStringList gone = sets(silhouette, {silhouette.name, folder_.file("gone.png")});
    EXPECT_EQ(render("with.png", gone + QStringList{"--fast"}).code, 1);
    EXPECT_EQ(test::readFile(folder_.file("with.png")), test::readFile(folder_.file("without.png")));
}

TEST_F(NamedFilesTest, ABatchWritesThePicturesFailsAndMakesThemAgain) {
    for (const NamedFile& file : someNamedFiles()) {
        SCOPED_TRACE(file.name);
        fs::remove_all(folder_.file("out"));
        const auto outcome = batch(sets(file, {file.name, folder_.file("gone.png")}));
        EXPECT_EQ(outcome.code, 1);
        EXPECT_EQ(outcome.out.count("\"status\":\"failed\""), 2) << outcome.out.toStdString();
        EXPECT_EQ(outcome.out.count("Cound not load file: gone.png"), 2) << outcome.out.toStdString();
        EXPECT_TRUE(fs::exists(folder_.file("out/anna_sea.png")) && fs::exists(folder_.file("out/ben_sea.png")));
    }
    const NamedFile& overlay = namedFiles()[1];
    const QStringList veiled = sets(overlay, {overlay.name, folder_.file("veil.png")});
    test::savePng(test::noisePicture(60, 36, 7), folder_.file("veil.png"));
    EXPECT_EQ(batch(veiled).code, 0);
    const std::string whole = test::readFile(folder_.file("out/anna_sea.png"));
    fs::rename(folder_.file("veil.png"), folder_.file("aside.png"));
    for (int i = 0; i < 2; ++i)
        EXPECT_TRUE(batch(veiled).err.contains("0 pictures made, 2 failed"));
    EXPECT_NE(test::readFile(folder_.file("out/anna_sea.png")), whole);
    fs::rename(folder_.file("aside.png"), folder_.file("veil.png"));
    EXPECT_EQ(batch(veiled).code, 0) << "what was noted of the first picture holds no longer";
    EXPECT_EQ(test::readFile(folder_.file("out/anna_sea.png")), whole);
}

TEST_F(NamedFilesTest, NothingIsSavedWithoutASource) {
    for (const bool foreground : {true, false}) {
        const auto info = state(namedFiles()[1], "");
        info->bHaveFrameOverlay = false;
        CombineThread loop(*info);
        loop.runUntilIdle();
        const std::string out = folder_.file("a.png");
        ASSERT_TRUE(saveImageToDisk(*info, out, kPngFile, 1) && saveImageToDisk(*info, out, kPngFile, 0));
        fs::remove(out);
        BitmapInfo& record = foreground ? *info->pForegroundBitmapInfo : *info->pBackgroundBitmapInfo;
        const std::string before = record.sSourceImageFullPath;
        const auto passWith = [&](const std::string& path) {
            record.sSourceImageFullPath = path;
            record.bOrgFileChange = true;
            info->StartUpdate();
            loop.runUntilIdle();
        };
        passWith(folder_.file("gone.png"));
        info->iBlendEdges = 2;  // a pass that reads no file makes it no better
        info->StartUpdate();
        loop.runUntilIdle();
        Alerts alerts;
        info->pInterface = &alerts;
        EXPECT_FALSE(saveImageToDisk(*info, out, kPngFile, 1) || saveImageToDisk(*info, out, kPngFile, 0));
        EXPECT_FALSE(saveMatteToDisk(*info, out, 1) || fs::exists(out));
        ASSERT_EQ(alerts.all.size(), 3u);
        EXPECT_NE(alerts.all[0].find("gone.png: there is no such file"), std::string::npos) << alerts.all[0];
        passWith(before);
        EXPECT_TRUE(saveImageToDisk(*info, out, kPngFile, 1));
        fs::remove(out);
    }
}

}  // namespace
}  // namespace tavrin
