// What is played in the window at another size, from a file, or while something else begins.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <random>

#include <QCheckBox>
#include <QRadioButton>

#include "editor/PlayEdits.h"
#include "pipeline/CombineThread.h"
#include "session/RecipeStore.h"
#include "support/Cli.h"
#include "support/SmallDisk.h"
#include "ui/EditorScene.h"
#include "ui/editor/EditMessages.h"
#include "ui/frame/Language.h"

namespace tavrin {
namespace {

using test::EditorTest;

const QColor kInk(40, 40, 150);

class EditorPlayTest : public EditorTest {
  protected:
    void chooseSize(const char* name, int width) {
        const int index = window_->sizeBox()->findText(name);
        ASSERT_GE(index, 0);
        window_->sizeBox()->setCurrentIndex(index);
        emit window_->sizeBox()->activated(index);
        ASSERT_TRUE(test::eventually(
            [&] { return view_->fullPicture().width() == width && view_->isFull() && airbrush().isOpen(); }));
    }
    bool isPlayed() {
        return test::eventually([&] { return airbrush().isOpen() && !airbrush().isReplaying() && face().step > 0; });
    }
};

TEST_F(EditorPlayTest, AtAnotherSizeTheRadiusFollowsWhereThatIsWanted) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    for (int i = 0; i < 10; ++i)
        QTest::keyClick(view_, Qt::Key_BracketLeft);
    ASSERT_TRUE(test::eventually([&] { return face().brush.radiusInPixels() == 10; }));
    stroke({60, 100}, {90, 101});
    const QString path = QString::fromStdString(folder_.file("anna.edits"));
    airbrush().saveEdits(path);
    ASSERT_TRUE(test::eventually([&] { return std::filesystem::exists(path.toStdString()); }));
    chooseSize("large", 480);
    find<QCheckBox>("boxScaleRadius")->click();
    find<QToolButton>("buttonReplayEdits")->click();
    ASSERT_TRUE(isPlayed());
    const QImage played = picture();
    EXPECT_EQ(played.pixelColor(150, 200 - 8), kInk);
    EXPECT_NE(played.pixelColor(150, 200 - 22), kInk);

    // As the command line plays it.
    const auto other = test::stateForOutput(480, 600);
    other->pForegroundBitmapInfo->sSourceImageFullPath = portrait_;
    other->pBackgroundBitmapInfo->sSourceImageFullPath = background_;
    CombineThread(*other).runUntilIdle();
    const EditFile file = readEditFile(path.toStdString()).file;
    ASSERT_EQ(playEdits(*other, file, true, folder_.file("undo")).problem, "");
    EXPECT_TRUE(std::equal(played.constBits(), played.constBits() + played.sizeInBytes(),
                           other->pCombinedBitmapInfo->pBitmapData));
    // What a hand does behind it has its own radius, and one step takes the stroke back.
    stroke({300, 400}, {330, 401});
    EXPECT_NE(picture().pixelColor(315, 400 - 14), kInk);
    EXPECT_EQ(face().step, 2);
}

// Of a picture with random numbers, mended with any tools over several visits: what the command line makes of the
// recipe and the file is what stands in the window.
TEST_F(EditorPlayTest, ASavedFileGivesTheSameBytesOnTheCommandLine) {
    for (const unsigned seed : {1u, 2u, 3u}) {
        SCOPED_TRACE(seed);
        std::mt19937 random(seed);
        const auto any = [&](int low, int high) {
            return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
        };
        window_->binder().run("Texture", [&](SettingEditor& editor) {
            editor.set("texture.sTextureFileName", background_);
            editor.set("texture.bHaveTexture", "1");
            editor.set("texture.iTextureOffsetPercent", std::to_string(600 + seed));
        });
        ASSERT_TRUE(waitForPicture());
        for (int visit = 0; visit < 3; ++visit) {
            ASSERT_TRUE(enter());
            for (int i = 0; i < 6; ++i) {
                const int tools[] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 13, 14, 15, 16};
                if (any(0, 4) == 0) {
                    choose(kSelection);
                    QTest::mouseMove(view_, viewAt(any(40, 200), any(40, 260)));
                    view_->setFocus();
                    QTest::keyClick(view_, Qt::Key_C);
                    const char* sources[] = {"radioNoSelect", "radioForegroundSelect", "radioCombineSelect"};
                    find<QRadioButton>(sources[any(0, 2)])->click();
                }
                choose(tools[any(0, 14)]);
                QTest::mouseMove(view_, viewAt(any(40, 200), any(40, 260)));
                view_->setFocus();
                for (int press = any(0, 8); press > 0; --press)
                    QTest::keyClick(view_, Qt::Key_BracketLeft);
                if (any(0, 2) == 0) QTest::keyClick(view_, Qt::Key_A);
                QTest::mousePress(view_, Qt::LeftButton, {}, viewAt(any(40, 200), any(40, 260)));
                for (int move = 0; move < 4; ++move)
                    QTest::mouseMove(view_, viewAt(any(40, 200), any(40, 260)));
                QTest::mouseRelease(view_, Qt::LeftButton, {}, viewAt(any(40, 200), any(40, 260)));
                if (any(0, 5) == 0) QTest::keyClick(view_, Qt::Key_Z);
            }
            turnTo(visit < 2 ? "mainTabAdjust" : "mainTabAirbrush");
            if (visit < 2) {
                ASSERT_TRUE(test::eventually([&] { return !airbrush().isOpen(); }));
            }
        }
        const std::string edits = folder_.file(std::to_string(seed) + ".edits"), recipe = folder_.file("now.recipe");
        const std::string out = folder_.file("cli.png");
        airbrush().saveEdits(QString::fromStdString(edits));
        ASSERT_TRUE(test::eventually([&] { return std::filesystem::exists(edits); }));
        EXPECT_GT(readEditFile(edits).file.seed.value_or(0), 0u);
        choose(kSelection);
        find<QRadioButton>("radioNoSelect")->click();  // its pattern would be in the window's picture alone
        ASSERT_TRUE(test::eventually([&] { return face().iSelectionMode == ColorSelection::kNone; }));
        ASSERT_EQ(writeWhole(recipe, bytesOf(presentRecipe(editor()))), "");
        const auto done = test::runCli({"render", "--recipe", QString::fromStdString(recipe), "--edits",
                                        QString::fromStdString(edits), "--out", QString::fromStdString(out)});
        ASSERT_EQ(done.code, 0) << done.err.toStdString();
        const QImage made = QImage(QString::fromStdString(out)).convertToFormat(QImage::Format_RGBA8888);
        const QImage stands = ofState();
        int others = 0;
        for (int y = 0; y < 300; ++y) {
            for (int x = 0; x < 240; ++x)
                others += made.pixel(x, y) != stands.pixel(x, y);
        }
        ASSERT_EQ(others, 0) << "of the pixels; " << editText(readEditFile(edits).file);
    }
}

TEST_F(EditorPlayTest, ABoxForTheRadiusIsKeptForTheNextStart) {
    ASSERT_TRUE(enter());
    find<QCheckBox>("boxScaleRadius")->click();
    ASSERT_TRUE(test::eventually([&] { return face().scalesRadius; }));
    open({1300, 800});
    EXPECT_TRUE(test::eventually([&] { return find<QCheckBox>("boxScaleRadius")->isChecked(); }));
    EXPECT_TRUE(face().scalesRadius);
}

TEST_F(EditorPlayTest, AFilesSeedMakesThePictureAnewAndLosesNoStroke) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    stroke({60, 40}, {90, 60});
    const QString path = QString::fromStdString(folder_.file("anna.edits"));
    std::ofstream(path.toStdString()) << "tavrin-edits 1\nview 240 300\nseed 77\n10 112\n1 180 60\n2\n";
    airbrush().loadEdits(path);
    ASSERT_TRUE(test::eventually([&] { return info_->randomSeeds.upcoming() == 77 && !airbrush().isOpen(); }));
    ASSERT_TRUE(isPlayed());
    EXPECT_EQ(picture().pixelColor(75, 50), kInk);
    EXPECT_EQ(picture().pixelColor(180, 240), kInk);
    EXPECT_EQ(face().lost, 0);
    EXPECT_TRUE(window_->messages()->question().isEmpty());
}

// Each is said, and what can be played is.
TEST_F(EditorPlayTest, WhatIsWrongWithAFileIsSaidAndLosesNothing) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    stroke({60, 40}, {90, 60});
    const QImage before = picture();
    const QString path = QString::fromStdString(folder_.file("odd.edits"));
    const auto said = [&](const std::string& text, const QString& words) {
        std::ofstream(path.toStdString()) << text;
        airbrush().loadEdits(path);
        EXPECT_TRUE(test::eventually([&] { return window_->messages()->details().contains(words); }))
            << words.toStdString() << " in " << window_->messages()->details().toStdString();
        EXPECT_TRUE(test::eventually([&] { return !airbrush().isReplaying(); }));
    };
    said("tavrin-edits 1\nview 240 300\n1 10\n", "line 3: 1 (mouse down) takes 2 values.");
    said("something else", "a file of edits begins with");
    EXPECT_EQ(picture(), before);
    EXPECT_EQ(face().step, 1);
    // Of another size: by the height. The last press is beside the picture, and the last kind is not known.
    said("tavrin-edits 1\nview 480 600\n10 112\n1 360 120\n2\n1 900 900\n2\n77\n", "places go with its height");
    EXPECT_TRUE(test::eventually([&] { return window_->messages()->details().contains("1 of 2"); }))
        << window_->messages()->details().toStdString();
    ASSERT_TRUE(test::eventually([&] { return face().step == 2; }));
    EXPECT_EQ(picture().pixelColor(180, 240), kInk);
    std::string many = "tavrin-edits 1\nview 240 300\n";
    for (int i = 0; i <= kMostEditItems; ++i)
        many += "203\n";
    said(many, "1 were left out");
    EXPECT_EQ(face().step, 2);
    EXPECT_EQ(picture().pixelColor(75, 50), kInk);
}

// A stroke stays where its step finds no room; the rest can be undone as before.
TEST_F(EditorPlayTest, AFullDiskCostsOnlyTheUndoOfItsStroke) {
    ASSERT_TRUE(enter());
    choose(kPaint);
    {
        const test::SmallDisk disk(2000);
        stroke({60, 40}, {90, 60});
        EXPECT_TRUE(test::eventually([&] { return window_->messages()->details().contains("cannot be undone"); }));
    }
    EXPECT_EQ(picture().pixelColor(75, 50), kInk);
    EXPECT_FALSE(action("UndoButton")->isEnabled());
    stroke({60, 200}, {90, 220});
    const QImage both = picture();
    ASSERT_TRUE(test::eventually([&] { return action("UndoButton")->isEnabled(); }));
    action("UndoButton")->trigger();
    EXPECT_TRUE(test::eventually([&] { return face().step == 1; }));
    EXPECT_EQ(picture().pixelColor(75, 50), kInk);
    EXPECT_NE(picture(), both);
}

TEST_F(EditorPlayTest, FreezingTakesThePictureWithoutThePatternOfASelection) {
    ASSERT_TRUE(enter());
    stroke({100, 120}, {140, 180});
    const QImage edited = picture();
    choose(kSelection);
    find<QRadioButton>("radioCombineSelect")->click();
    find<QCheckBox>("editCheckbox")->click();  // all but black is protected
    ASSERT_TRUE(test::eventually([&] { return picture() != edited; }));
    action("clickedButtonfreezebackground")->trigger();
    ASSERT_TRUE(test::eventually([&] { return info_->bBackgroundFrozen.load(); }));
    ASSERT_TRUE(waitForPicture());
    const std::uint8_t* frozen = info_->pBackgroundBitmapInfo->pBitmapData;
    int others = 0;
    for (int y = 0; y < 300; ++y) {
        for (int x = 0; x < 240; ++x, frozen += 4)
            others += QColor(frozen[0], frozen[1], frozen[2]) != edited.pixelColor(x, y);
    }
    EXPECT_EQ(others, 0);
}

TEST_F(EditorPlayTest, AStrokeThatMeetsAPassLeavesNoPartOfItself) {
    ASSERT_TRUE(enter());
    setBrightness(30);
    ASSERT_TRUE(waitForPicture());
    const QImage bright = picture();
    setBrightness(0);
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(test::eventually([&] { return airbrush().isOpen(); }));
    choose(kPaint);
    QTest::mousePress(view_, Qt::LeftButton, {}, viewAt(60, 40));
    for (int i = 0; i < 30; ++i) {
        QTest::mouseMove(view_, viewAt(60 + 3 * i, 40 + 2 * i));
        if (i == 15) setBrightness(30);
    }
    QTest::mouseRelease(view_, Qt::LeftButton, {}, viewAt(150, 100));
    ASSERT_TRUE(waitForPicture());
    ASSERT_TRUE(test::eventually([&] { return airbrush().isOpen(); }));
    EXPECT_EQ(picture(), bright);
    stroke({60, 40}, {90, 60});  // and the next one is whole
    view_->setFocus();
    QTest::keyClick(view_, Qt::Key_Z);
    EXPECT_TRUE(test::eventually([&] { return picture() == bright; }));
}

TEST_F(EditorPlayTest, WhatTheEditorSaysIsTranslated) {
    useLanguage(QLocale("es"));
    EXPECT_EQ(translatedEditMessage({EditSays::stepNotKept, {{EditSays::mayNotWrite, {verbatim("/a%2")}}}}),
              "Este paso no se puede deshacer: sin permiso para escribir en la carpeta /a%2.");
    EXPECT_EQ(translatedEditMessage(parseEdits("a: b", "tavrin-edits 1\nview 1 1\n1 2 x\n").problem),
              QString("a: b, línea 3: «x» no es un número entero."));
    // Names of items and of their values, too.
    EXPECT_EQ(translatedEditMessage(parseEdits("a", "tavrin-edits 1\nview 1 1\n20 1 101 1 1\n").problem),
              QString("a, línea 3: 20 (controles del pincel) tiene el radio 101, y va de 0 a 100."));
    for (int what = 0; what <= static_cast<int>(EditSays::last); ++what) {
        const char* words = wordsOf(static_cast<EditSays>(what));
        if (*words == '\0' || QString(words).size() < 2) continue;
        EXPECT_EQ(QString(words).count('%'), QCoreApplication::translate("Edits", words).count('%')) << words;
    }
    useLanguage(QLocale::c());
}

}  // namespace
}  // namespace tavrin
