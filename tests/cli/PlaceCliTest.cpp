// Where tavrin-cli puts the portrait.
#include <filesystem>
#include <gtest/gtest.h>

#include "support/Cli.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

/// A wide picture of a person, as far as the key is concerned, whose middle is at `middle` of its 400 columns.
QImage portrait(int middle) {
    QImage wide(400, 200, QImage::Format_RGB888);
    wide.fill(QColor(40, 160, 60));
    for (int y = 60; y < 200; ++y)
        for (int x = middle - 30; x < middle + 30; ++x)
            wide.setPixelColor(x, y, QColor(200, 60, 50));
    return wide;
}

class PlaceCliTest : public testing::Test {
  protected:
    void SetUp() override {
        std::filesystem::create_directory(folder_.path() / "fg");
        save("a.png", 100);
        QImage plain(150, 210, QImage::Format_RGB888);
        plain.fill(QColor(90, 100, 140));
        test::savePng(plain, folder_.file("bg.png"));
    }
    void save(const std::string& name, int middle) { test::savePng(portrait(middle), folder_.file("fg/" + name)); }
    QString file(const char* name) const { return QString::fromStdString(folder_.file(name)); }
    test::CliOutcome render(const QStringList& more) const {
        return test::runCli(QStringList{"render", "--foreground", file("fg/a.png"), "--background", file("bg.png"),
                                        "--out", file("out.png"), "--alpha", file("matte.png")} +
                            kSize + more);
    }
    /// Middle of what is red, in columns of a picture of 150; -1 where nothing is.
    static int middleOf(const QImage& picture) {
        int left = -1, right = -1;
        for (int x = 0; x < picture.width(); ++x) {
            const QColor color = picture.pixelColor(x, picture.height() - 20);
            if (std::abs(color.red() - 200) > 12 || std::abs(color.green() - 60) > 12) continue;
            if (left < 0) left = x;
            right = x;
        }
        return left < 0 ? -1 : (left + right) / 2;
    }
    int rendered(const QStringList& more) const {
        const test::CliOutcome outcome = render(more);
        EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
        return middleOf(QImage(file("out.png")));
    }

    const QStringList kSize = {"--inches", "2.5x3.5", "--dpi", "60"};
    test::TempFolder folder_;
};

TEST_F(PlaceCliTest, RulesScaleAndMovesPutTheSubject) {
    EXPECT_NEAR(rendered({"--place", "subject"}), 75, 2);
    EXPECT_NEAR(rendered({"--place", "subject", "--move", "-200,0"}), 45, 2);
    EXPECT_NEAR(rendered({"--place", "subject", "--scale", "0.5"}), 75, 2);
    EXPECT_NEAR(rendered({"--place", "corner"}), 105, 3);
    EXPECT_NEAR(rendered({"--place", "corner", "--move", "100,0"}), 120, 3);
    EXPECT_LE(rendered({"--place", "centre"}), 1)
        << "the subject is at the side: its last column is the picture's first";
    EXPECT_NEAR(rendered({"--place", "subject", "--fast"}), 75, 2);
    EXPECT_NEAR(rendered({"--place", "subject", "--set", "foreground.iOrgXoff=500"}), 75, 2);
}

TEST_F(PlaceCliTest, AStateKeepsThePlaceThatWasFound) {
    rendered({"--place", "subject", "--save-state", file("a.qlx")});
    const QImage framed(file("out.png"));
    rendered({"--state", file("a.qlx")});
    EXPECT_EQ(QImage(file("out.png")), framed);
}

TEST_F(PlaceCliTest, ABatchHasAFrameForEachOrOneForAll) {
    save("b.png", 120);
    save("c.png", 300);
    const auto batch = [this](const char* rule) {
        const auto outcome =
            test::runCli(QStringList{"batch", "--foregrounds", file("fg"), "--backgrounds", file("bg.png"), "--out",
                                     file("made"), "--type", "png", "--style", "number", "--place", rule} +
                         kSize);
        EXPECT_EQ(outcome.code, 0) << outcome.err.toStdString();
        EXPECT_TRUE(outcome.err.contains("3 pictures made")) << outcome.err.toStdString();
        std::vector<int> middles;
        for (const char* name : {"made/BatchFile1.png", "made/BatchFile2.png", "made/BatchFile3.png"})
            middles.push_back(middleOf(QImage(file(name))));
        return middles;
    };
    for (const int middle : batch("subject"))
        EXPECT_NEAR(middle, 75, 2);
    // Another rule is another recipe, and the second portrait's frame is the one in the middle.
    const std::vector<int> same = batch("same");
    EXPECT_NEAR(same[1], 75, 2);
    EXPECT_LT(same[0], 65);
    EXPECT_EQ(same[2], -1);
}

TEST_F(PlaceCliTest, WrongPlacesAreToldAndWriteNothing) {
    for (const QStringList& wrong : {QStringList{"--place", "left"}, {"--place", "same"}, {"--scale", "0"}})
        EXPECT_EQ(render(wrong).code, 2) << wrong.join(' ').toStdString();
    for (const char* move : {"5", "5,", "5;6", "5,6x", "99999,0"}) {
        const test::CliOutcome outcome = render({"--place", "subject", "--move", move});
        EXPECT_EQ(outcome.code, 2) << move;
        EXPECT_TRUE(outcome.err.contains("--move")) << outcome.err.toStdString();
    }
    const auto watch = test::runCli({"batch", "--foregrounds", file("fg"), "--backgrounds", file("bg.png"), "--out",
                                     file("made"), "--place", "same", "--watch"});
    EXPECT_EQ(watch.code, 2);
    EXPECT_TRUE(watch.err.contains("--watch")) << watch.err.toStdString();
    EXPECT_FALSE(std::filesystem::exists(folder_.file("out.png")));
    EXPECT_FALSE(std::filesystem::exists(folder_.file("made")));
}

}  // namespace
}  // namespace tavrin
