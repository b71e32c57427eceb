// What tavrin-cli starts from, and what it says of the pictures it sees.
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "key/screen/ScreenLook.h"
#include "session/OutputSizes.h"
#include "session/Recipe.h"
#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"
#include "support/TextPage.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

const QColor kGreen(40, 160, 60), kBlue(40, 60, 160), kRed(200, 60, 50);

class WarningsCliTest : public testing::Test {
  protected:
    QString file(const std::string& name) const { return QString::fromStdString(folder_.file(name)); }
    QString portrait(const std::string& name, QColor screen = kGreen, QColor subject = kRed) const {
        return QString::fromStdString(
            test::savePng(test::discOnScreen(240, 144, screen, subject), folder_.file(name)));
    }
    test::CliOutcome render(const QString& foreground, const QStringList& more = {}) const {
        return test::runCli(QStringList{"render", "--foreground", foreground, "--background", background_, "--out",
                                        file("out.png"), "--inches", "5x3", "--dpi", "48"} +
                            more);
    }
    /// The kinds of the warnings, which stand on the error stream as one line each.
    QStringList warned(const QString& foreground, const QStringList& more = {}) const {
        const test::CliOutcome done = render(foreground, more + QStringList{"--json"});
        EXPECT_EQ(done.code, 0) << done.err.toStdString();
        QStringList kinds;
        for (const auto& warning : QJsonDocument::fromJson(done.out.toUtf8()).object()["warnings"].toArray()) {
            kinds.append(warning.toObject()["kind"].toString());
            EXPECT_TRUE(done.err.contains("tavrin-cli: warning: " + warning.toObject()["text"].toString()));
        }
        EXPECT_EQ(done.err.count('\n'), kinds.size()) << done.err.toStdString();
        return kinds;
    }
    QImage made() const { return QImage(file("out.png")); }

    test::TempFolder folder_;
    const QString background_ =
        QString::fromStdString(test::savePng(test::noisePicture(240, 144, 4), folder_.file("bg.png")));
};

TEST_F(WarningsCliTest, StartsFromTheShippedStateTheDefaultsOrThoseOfTheAccount) {
    const QString anna = portrait("anna.png", QColor(70, 140, 60), QColor(90, 120, 80));
    ASSERT_EQ(render(anna, {"--place", "corner"}).code, 0);  // as a state places it
    const QImage shipped = made();
    ASSERT_EQ(render(anna, {"--state", QString(test::kSourceFolder) + "/data/Default.qlx"}).code, 0);
    EXPECT_EQ(made(), shipped);
    ASSERT_EQ(render(anna, {"--bare", "--save-state", file("bare.qlx")}).code, 0);
    ASSERT_EQ(render(anna, {"--save-state", file("shipped.qlx")}).code, 0);
    const QString differ = test::runCli({"state", "diff", file("bare.qlx"), file("shipped.qlx")}).out;
    EXPECT_TRUE(differ.contains("combined.sliderRemoveGreenAreas: 40 -> 110")) << differ.toStdString();

    const QMap<QString, QString> account = {{"XDG_DATA_HOME", file("data")}};
    const QStringList mine = {"render",       "--foreground", anna,  "--background", background_, "--out",
                              file("my.png"), "--inches",     "5x3", "--dpi",        "48",        "--my-defaults"};
    const test::CliOutcome none = test::runCli(mine, account);
    EXPECT_EQ(none.code, 1);
    EXPECT_TRUE(none.err.contains("this account has no default state")) << none.err.toStdString();
    EXPECT_EQ(test::runCli(mine + QStringList{"--bare"}).code, 2);

    const QStringList batch = {"batch", "--foregrounds", anna,       "--backgrounds", background_,
                               "--out", file("batch"),   "--inches", "5x3",           "--dpi",
                               "48",    "--type",        "png",      "--place",       "corner"};
    ASSERT_EQ(test::runCli(batch).code, 0);
    EXPECT_EQ(QImage(file("batch/anna_bg.png")), shipped);
    const test::CliOutcome again = test::runCli(batch + QStringList{"--bare"});
    EXPECT_TRUE(again.err.contains("1 picture made"))
        << "another start is another picture: " << again.err.toStdString();
}

TEST_F(WarningsCliTest, ARecipeOfTheWindowGivesEverySettingAndTheBackground) {
    const QString anna = portrait("anna.png");
    SystemInfo info;
    chooseOwnSize(info, "card", 5.0, 3.0, 48);
    ASSERT_EQ(useChosenSize(info), "");
    info.pBackgroundBitmapInfo->sSourceImageFullPath = background_.toStdString();
    info.iForegroundOutputMode = 1;  // which a state file would give to the background
    const std::string bytes = bytesOf({settingsOf(info), {}, {}});
    std::ofstream(folder_.file("card.recipe"), std::ios::binary) << bytes;
    const QStringList batch = {"batch",    "--foregrounds",    anna, "--out", file("batch"), "--type", "png",
                               "--recipe", file("card.recipe")};
    const test::CliOutcome done = test::runCli(batch);
    ASSERT_EQ(done.code, 0) << done.err.toStdString();
    const QImage picture(file("batch/anna.png"));
    ASSERT_EQ(picture.size(), QSize(240, 144));
    const QColor subject = picture.pixelColor(120, 72);
    EXPECT_EQ(subject.red(), subject.green()) << "black and white";
    EXPECT_EQ(picture.pixelColor(3, 3), QImage(background_).pixelColor(3, 3)) << "and the background is not";
    std::ofstream(folder_.file("bad.recipe")) << "no recipe";
    const test::CliOutcome bad = render(anna, {"--recipe", file("bad.recipe")});
    EXPECT_EQ(bad.code, 1);
    EXPECT_TRUE(bad.err.contains("bad.recipe is no recipe that can be read.")) << bad.err.toStdString();
    EXPECT_EQ(render(anna, {"--recipe", file("card.recipe"), "--bare"}).code, 2);
}

TEST_F(WarningsCliTest, TakesTheScreenThatIsThereUnlessOneIsGiven) {
    const QString green = portrait("green.png"), blue = portrait("blue.png", kBlue);
    EXPECT_EQ(warned(green), QStringList());
    const QImage keyed = made();
    EXPECT_EQ(warned(blue), QStringList("other-screen"));
    const QImage taken = made();
    EXPECT_EQ(taken.pixel(5, 5), keyed.pixel(5, 5)) << "the background shows in both";
    EXPECT_EQ(warned(blue, {"--blue"}), QStringList());
    EXPECT_EQ(made(), taken);
    EXPECT_EQ(warned(blue, {"--set", "bUseBlueLogic=1"}), QStringList());
    EXPECT_EQ(warned(green, {"--screen", "auto"}), QStringList());
    for (const QStringList& given : {QStringList{"--screen", "green"}, QStringList{"--bare"}}) {
        EXPECT_TRUE(warned(blue, given).contains("other-screen"));
        EXPECT_NE(made(), taken);
    }
    EXPECT_TRUE(render(green, {"--blue"}).err.contains("is green, and it is keyed as blue. --screen"));
}

TEST_F(WarningsCliTest, ABatchTellsAndKeepsItsWarnings) {
    fs::create_directory(folder_.path() / "fg");
    portrait("fg/ben.png", kBlue);
    test::writeFile(folder_.file("fg/notes.txt"), "not a picture");
    const QStringList batch = {"batch",     "--foregrounds", file("fg"), "--backgrounds", background_, "--out",
                               file("out"), "--inches",      "5x3",      "--dpi",         "48"};
    const test::CliOutcome done = test::runCli(batch + QStringList{"--report", file("report"), "--json"});
    EXPECT_EQ(done.code, 0) << done.err.toStdString();
    EXPECT_TRUE(done.err.contains("warning: ben_bg.jpg: The screen of ben.png is blue")) << done.err.toStdString();
    EXPECT_TRUE(done.err.contains("passed over as no pictures by their names: notes.txt"));
    for (const QString& text : {done.out, QString::fromStdString(test::readFile(folder_.file("report")))})
        EXPECT_TRUE(text.contains("\"kind\":\"other-screen\"")) << text.toStdString();
    std::string journal;
    for (const auto& entry : fs::directory_iterator(folder_.path() / "out/.tavrin-batch"))
        journal += test::readFile(entry.path().string());
    EXPECT_NE(journal.find("other-screen"), std::string::npos);
    // What the program chose by itself is not what the user chose.
    EXPECT_TRUE(test::runCli(batch + QStringList{"--screen", "green"}).err.contains("1 picture made"));
    EXPECT_EQ(QJsonDocument::fromJson(done.out.toUtf8().split('\n').last()).object()["event"].toString(), "");
    EXPECT_TRUE(done.out.contains("\"event\":\"end\""));
    EXPECT_TRUE(test::runCli(batch + QStringList{"--quiet", "--again"}).err.isEmpty());
}

TEST_F(WarningsCliTest, SaysWhatIsWrongWithThePicture) {
    EXPECT_EQ(warned(background_), QStringList("no-screen"));
    EXPECT_EQ(warned(portrait("dark.png", QColor(15, 60, 20))), QStringList("dark-screen"));
    EXPECT_EQ(warned(portrait("white.png", QColor(195, 255, 200))), QStringList("overexposed-screen"));
    QImage empty(240, 144, QImage::Format_RGB32);
    empty.fill(kGreen);
    EXPECT_EQ(warned(QString::fromStdString(test::savePng(empty, folder_.file("empty.png")))), QStringList("empty"));
    QImage uneven = test::discOnScreen(240, 144);
    for (int y = 0; y < 144; ++y) {
        for (int x = 0; x < 120; ++x)
            if (qGreen(uneven.pixel(x, y)) == 160) uneven.setPixel(x, y, qRgb(12, 48, 18));
    }
    EXPECT_TRUE(
        warned(QString::fromStdString(test::savePng(uneven, folder_.file("uneven.png")))).contains("uneven-screen"));
    QImage dressed = test::discOnScreen(240, 144);
    for (int y = 52; y < 92; ++y) {
        for (int x = 90; x < 150; ++x)
            dressed.setPixel(x, y, qRgb(150, 230, 40));
    }
    const QString shirt = QString::fromStdString(test::savePng(dressed, folder_.file("shirt.png")));
    EXPECT_EQ(warned(shirt), QStringList("clothes"));
    EXPECT_EQ(warned(shirt, {"--protect-clothes", "inside"}), QStringList());
    QImage shadowed = test::discOnScreen(240, 144);
    for (int y = 60; y < 100; ++y) {
        for (int x = 160; x < 185; ++x)
            if (qGreen(shadowed.pixel(x, y)) == 160) shadowed.setPixel(x, y, qRgb(5, 22, 8));
    }
    EXPECT_EQ(warned(QString::fromStdString(test::savePng(shadowed, folder_.file("shadow.png")))),
              QStringList("shadow"));
    QImage glossy = test::discOnScreen(240, 144);
    for (int y = 0; y < 144; ++y) {
        for (int x = 0; x < 240; x += 1 + (x / 3) % 7)
            if (qGreen(glossy.pixel(x, y)) == 160) glossy.setPixel(x, y, qRgb(60, 230, 90));
    }
    const QString glare = QString::fromStdString(test::savePng(glossy, folder_.file("glare.png")));
    EXPECT_EQ(warned(glare), QStringList("shades"));
    EXPECT_TRUE(render(glare).err.contains("Look at glare.png: removed parts")) << "doubtful, and nothing else told";
    EXPECT_EQ(warned(portrait("small.png"), {"--set", "foreground.fScale=2.5"}), QStringList("small-source"));
    EXPECT_EQ(warned(portrait("anna.png"), {"--set", "iBlendEdges=300"}), QStringList("range"));
    EXPECT_TRUE(render(portrait("anna.png"), {"--set", "background.iContrast=-4"}).err.contains("from 0 to 100"));
}

TEST_F(WarningsCliTest, NamesTheFontThatIsTakenInstead) {
    TAVRIN_NEED_FONTS();
    const QStringList titled = {"--title", "Anna", "--set", "label0.sFontName=No Such Font"};
    EXPECT_EQ(warned(portrait("anna.png"), titled), QStringList("font"));
    EXPECT_EQ(warned(portrait("anna.png"), {"--title", "Anna"}), QStringList());
}

TEST_F(WarningsCliTest, PlainNamesSetWhatTheyMean) {
    const struct {
        QStringList options;
        const char* line;
    } cases[] = {
        {{"--hair", "blond"}, "\niMacroHairColor=3\n"},
        {{"--hair", "auto"}, "\nbAdvancedHairDetectionON=1\n"},
        {{"--hair", "gray"}, "\niMacroHairColor=5\n"},
        {{"--protect-clothes", "shirt"}, "\niGreenProtectMode=2\n"},
        {{"--protect-clothes", "inside"}, "\nbShowGreenProtection=0\n"},
    };
    for (const auto& [options, line] : cases) {
        ASSERT_EQ(render(portrait("anna.png"), options + QStringList{"--bare", "--save-state", file("a.qlx")}).code,
                  0);
        EXPECT_TRUE(("\n" + test::runCli({"state", "show", file("a.qlx")}).out).contains(line)) << line;
    }
}

// Of the real portraits every one has its screen found, and no other picture is taken for one but those of much sky.
TEST(ScreenLook, FindsTheScreensOfRealPortraits) {
    TAVRIN_NEED_DATA(data);
    for (const auto& entry : fs::directory_iterator(data / "greenscreen")) {
        const std::string name = entry.path().filename().string();
        const ReadPicture picture = readPicture(entry.path().string());
        ASSERT_FALSE(picture.pixels.isNull()) << name;
        const ScreenLook look =
            lookAtScreen(picture.pixels.constBits(), picture.pixels.width(), picture.pixels.height());
        const bool blue = name.find("blue") != std::string::npos;
        EXPECT_EQ(look.kind, blue ? ScreenKind::blue : ScreenKind::green) << name;
    }
    for (const char* name : {"subway_train.jpg", "library_shelves.jpg", "street_cafe_evening.jpg",
                             "studio_blue_grey.jpg", "waterfall_portrait_24mp.jpg"}) {
        const ReadPicture picture = readPicture((data / "backgrounds" / name).string());
        EXPECT_EQ(lookAtScreen(picture.pixels.constBits(), picture.pixels.width(), picture.pixels.height()).kind,
                  ScreenKind::none)
            << name;
    }
}

}  // namespace
}  // namespace tavrin
