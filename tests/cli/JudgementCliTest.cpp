// How sure tavrin-cli says it is of a matte, why not, and the contact sheet of those that need a look.
#include <filesystem>
#include <gtest/gtest.h>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QPainter>

#include "support/Cli.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

constexpr int kWidth = 320, kHeight = 384;
const QColor kGreen(40, 160, 60), kBlue(40, 60, 160);

/// Head and shoulders before an even screen.
QImage portrait(QColor screen = kGreen, QColor shirt = QColor(150, 60, 70)) {
    QImage image(kWidth, kHeight, QImage::Format_RGB32);
    image.fill(screen);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(210, 150, 120));
    painter.drawEllipse(QPoint(kWidth / 2, 140), 55, 70);
    painter.setBrush(shirt);
    painter.drawRoundedRect(60, 195, kWidth - 120, 260, 50, 50);
    return image;
}

/// Light that gets lost towards a corner.
QImage darkened(QImage image, int cornerX, int cornerY) {
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const double distance = std::hypot(x - cornerX, y - cornerY) / kWidth;
            const double light = std::clamp((distance - 0.1) / 0.3, 0.15, 1.0);
            const QColor color(image.pixel(x, y));
            image.setPixel(x, y,
                           qRgb(static_cast<int>(color.red() * light), static_cast<int>(color.green() * light),
                                static_cast<int>(color.blue() * light)));
        }
    }
    return image;
}

QList<QJsonObject> linesOf(const QString& text) {
    QList<QJsonObject> lines;
    for (const QString& line : text.split('\n', Qt::SkipEmptyParts))
        lines.append(QJsonDocument::fromJson(line.toUtf8()).object());
    return lines;
}

class JudgementCliTest : public testing::Test {
  protected:
    QString file(const std::string& name) const { return QString::fromStdString(folder_.file(name)); }
    QJsonObject judged(const QImage& image, const QStringList& more = {}, const QString& dpi = "64") const {
        test::savePng(image, folder_.file("portrait.png"));
        const test::CliOutcome done = test::runCli(
            QStringList{"render", "--foreground", file("portrait.png"), "--background", background_, "--out",
                        file("out.png"), "--inches", "5x6", "--dpi", dpi, "--place", "corner", "--json"} +
            more);
        EXPECT_EQ(done.code, 0) << done.err.toStdString();
        return QJsonDocument::fromJson(done.out.toUtf8()).object();
    }
    static QString firstDoubt(const QJsonObject& line) { return line["doubts"][0]["kind"].toString(); }
    static int confidence(const QJsonObject& line) { return line["confidence"].toInt(-1); }

    /// Four portraits of which `cut` is the worst but one, `empty` the worst.
    QStringList batch(const QStringList& more = {}) const {
        fs::create_directory(folder_.path() / "fg");
        QImage empty(kWidth, kHeight, QImage::Format_RGB32);
        empty.fill(kGreen);
        test::savePng(portrait(), folder_.file("fg/anna.png"));
        test::savePng(darkened(portrait(), 0, 0), folder_.file("fg/ben.png"));
        test::savePng(portrait(QColor(130, 140, 125)), folder_.file("fg/cora.png"));
        test::savePng(empty, folder_.file("fg/dora.png"));
        return QStringList{"batch", "--foregrounds", file("fg"), "--backgrounds", background_,
                           "--out", file("out"),     "--inches", "5x6",           "--dpi",
                           "64",    "--place",       "corner",   "--report",      file("report")} +
               more;
    }
    QList<QJsonObject> report() const {
        return linesOf(QString::fromStdString(test::readFile(folder_.file("report"))));
    }

    test::TempFolder folder_;
    const QString background_ =
        QString::fromStdString(test::savePng(test::noisePicture(kWidth, kHeight, 4), folder_.file("bg.png")));
};

TEST_F(JudgementCliTest, IsSureOfAGoodMatteAndSaysWhyNot) {
    const QJsonObject good = judged(portrait());
    EXPECT_GE(confidence(good), 90) << QJsonDocument(good).toJson().toStdString();
    EXPECT_GE(confidence(judged(portrait(kBlue))), 90);

    QImage empty(kWidth, kHeight, QImage::Format_RGB32);
    empty.fill(kGreen);
    const struct {
        QImage image;
        QStringList options;
        const char* kind;
    } bad[] = {
        {portrait(kBlue), {"--screen", "green"}, "other-screen"},
        {portrait(QColor(130, 130, 125)), {}, "no-screen"},
        {empty, {}, "empty"},
        {portrait(kGreen, QColor(30, 115, 45)), {}, "shades"},
        {portrait(QColor(10, 45, 15)), {}, "dark-screen"},
    };
    for (const auto& picture : bad) {
        const QJsonObject line = judged(picture.image, picture.options);
        EXPECT_LE(confidence(line), 60) << QJsonDocument(line).toJson().toStdString();
        EXPECT_EQ(firstDoubt(line), picture.kind) << QJsonDocument(line).toJson().toStdString();
        // What is a warning is never a sure matte.
        EXPECT_TRUE(line["warnings"].toArray().isEmpty() || confidence(line) <= 75);
    }
    EXPECT_FALSE(judged(portrait(), {"--set", "bShowOrgImage=1"}).contains("confidence")) << "nothing was keyed";
    EXPECT_GE(confidence(judged(portrait(), {"--fast"})), 90);
    EXPECT_GE(confidence(judged(portrait(), {"--preview"})), 90);
}

TEST_F(JudgementCliTest, PointsAtThePlace) {
    const QJsonObject line = judged(darkened(portrait(), 0, kHeight));
    const QJsonArray doubts = line["doubts"].toArray();
    const auto dark = std::find_if(doubts.begin(), doubts.end(), [](const QJsonValue& doubt) {
        return doubt.toObject()["kind"].toString() == "dark-place";
    });
    ASSERT_NE(dark, doubts.end()) << QJsonDocument(line).toJson().toStdString();
    EXPECT_EQ(dark->toObject()["text"].toString(), "the screen is very dark in the lower left corner");

    // A shirt in the screen's hue, seen at four times the size: the place is on it.
    const QJsonObject shirt =
        judged(portrait(kGreen, QColor(30, 115, 45)).scaled(4 * kWidth, 4 * kHeight), {}, "256");
    const QJsonObject place = shirt["place"].toObject();
    const QRect rect(place["x"].toInt(), place["y"].toInt(), place["width"].toInt(), place["height"].toInt());
    EXPECT_EQ(rect.size(), QSize(400, 400));
    EXPECT_TRUE(rect.intersects(QRect(240, 780, 4 * kWidth - 480, 756)))
        << QJsonDocument(shirt).toJson().toStdString();
    EXPECT_GT(rect.center().y(), 2 * kHeight);
}

TEST_F(JudgementCliTest, ABatchRemembersAndReportsTheWorstFirst) {
    const QStringList all = batch();
    const test::CliOutcome done = test::runCli(all);
    ASSERT_EQ(done.code, 0) << done.err.toStdString();
    const QList<QJsonObject> first = report();
    ASSERT_EQ(first.size(), 6);
    for (int i = 1; i < 4; ++i)
        EXPECT_LE(confidence(first[i]), confidence(first[i + 1])) << i;
    EXPECT_EQ(first[4]["out"].toString(), "anna_bg.jpg");
    EXPECT_EQ(linesOf(done.out)[0]["confidence"].toInt(-1), confidence(first[4])) << "in the order of the list";

    // Of pictures that are there already it tells what it thought when it made them.
    ASSERT_EQ(test::runCli(all).code, 0);
    const QList<QJsonObject> again = report();
    for (int i = 1; i < 5; ++i) {
        EXPECT_EQ(again[i]["status"].toString(), "skipped");
        for (const char* key : {"out", "confidence", "doubts", "place"})
            EXPECT_EQ(again[i][key], first[i][key]) << key;
    }

    // A failed one stands before all others, also when reports are joined.
    test::writeFile(folder_.file("fg/zoe.png"), "not a picture");
    EXPECT_EQ(test::runCli(all).code, 1);
    EXPECT_EQ(report()[1]["status"].toString(), "failed");
    test::runCli({"report", "merge", "--out", file("all"), file("report")});
    const QList<QJsonObject> merged = linesOf(QString::fromStdString(test::readFile(folder_.file("all"))));
    EXPECT_EQ(merged[1]["status"].toString(), "failed");
    EXPECT_EQ(merged[2]["out"], first[1]["out"]);
}

TEST_F(JudgementCliTest, DrawsTheWorstOnASheet) {
    ASSERT_EQ(test::runCli(batch()).code, 0);
    const auto sheet = [this](const QStringList& more = {}) {
        return test::runCli(QStringList{"report", "sheet", file("report"), "--out", file("sheet.png")} + more);
    };
    ASSERT_EQ(sheet({"--worst", "2"}).code, 0);
    const QImage two(file("sheet.png"));
    ASSERT_EQ(sheet().code, 0);
    const QImage four(file("sheet.png"));
    EXPECT_GT(four.width(), two.width() + 300);
    // The sure one comes last, one to one: its middle is that of the cell.
    const QImage anna(file("out/anna_bg.jpg"));
    const QColor shown(four.pixel(12 + 3 * 412 + 200, 12 + 200)), made(anna.pixel(kWidth / 2, kHeight / 2));
    EXPECT_NEAR(shown.red(), made.red(), 12);
    EXPECT_NEAR(shown.green(), made.green(), 12);

    fs::remove(folder_.file("out/dora_bg.jpg"));
    const test::CliOutcome gone = sheet();
    EXPECT_EQ(gone.code, 0);
    EXPECT_TRUE(gone.err.contains("1 picture of the sheet cannot be read any more")) << gone.err.toStdString();
    fs::rename(folder_.file("out"), folder_.file("moved"));
    const std::string before = test::readFile(folder_.file("sheet.png"));
    EXPECT_TRUE(sheet().err.contains("None of the pictures is there any more"));
    EXPECT_EQ(test::readFile(folder_.file("sheet.png")), before) << "the old sheet stays";
    EXPECT_EQ(sheet({"--pictures", file("moved")}).code, 0);
}

TEST_F(JudgementCliTest, RefusesReportsThatItCannotUse) {
    ASSERT_EQ(test::runCli(batch()).code, 0);
    const std::string text = test::readFile(folder_.file("report"));
    std::string older;
    for (QJsonObject line : report()) {
        for (const char* key : {"confidence", "doubts", "place", "measures"})
            line.remove(key);
        older += QJsonDocument(line).toJson(QJsonDocument::Compact).toStdString() + "\n";
    }
    test::writeFile(folder_.file("older"), older);
    std::string outside = text;
    outside.replace(outside.find("\"out\":\"anna"), 11, "\"out\":\"../anna");
    test::writeFile(folder_.file("outside"), outside);
    test::writeFile(folder_.file("words"), "no report at all\n");
    std::string torn = text.substr(0, text.find("anna_bg"));
    test::writeFile(folder_.file("torn"), torn);

    const struct {
        const char *report, *out, *told;
    } cases[] = {
        {"none", "sheet.png", "none cannot be read"},
        {"words", "sheet.png", "is no report of a batch"},
        {"outside", "sheet.png", "is damaged"},
        {"older", "sheet.png", "of an older version"},
        {"report", "sheet.pdf", "must end in .jpg"},
        {"report", "out/anna_bg.jpg", "would be written over"},
        {"report", "fg/anna.png", "would be written over"},
    };
    const std::string kept = test::readFile(folder_.file("out/anna_bg.jpg"));
    for (const auto& wrong : cases) {
        const test::CliOutcome outcome =
            test::runCli({"report", "sheet", file(wrong.report), "--out", file(wrong.out)});
        EXPECT_NE(outcome.code, 0) << wrong.report;
        EXPECT_TRUE(outcome.err.contains(wrong.told)) << outcome.err.toStdString();
        EXPECT_EQ(outcome.err.count('\n'), 1);
        EXPECT_FALSE(fs::exists(folder_.file("sheet.png")));
    }
    EXPECT_EQ(test::readFile(folder_.file("out/anna_bg.jpg")), kept);
    EXPECT_EQ(test::runCli({"report", "sheet", file("torn"), "--out", file("sheet.png")}).code, 0)
        << "what is whole counts";
}

}  // namespace
}  // namespace tavrin
