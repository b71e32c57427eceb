// Strokes along the mouse's way, their undo and the selection.
#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>

#include "editor/EditScene.h"
#include "support/Files.h"
#include "support/Sanitized.h"
#include "support/SmallDisk.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using test::EditScene;
using test::Pixel;

constexpr Pixel kPlain{100, 100, 100, 9}, kInk{203, 0, 0, 9};

// Paints with one pixel of a red ink.
struct InkScene : EditScene {
    InkScene(int width, int height) : EditScene(width, height) {
        combined.assign(combined.size(), kPlain);
        enter();
        choose('p');
        live({kColorWell, 203, 0, 0});
        EditScene::sliders(50, 0);
    }
    std::string row(int y) {
        std::string text;
        for (int x = 0; x < width; ++x)
            text += out(x, y)[0] == kInk[0] ? '#' : '.';
        return text;
    }
};

TEST(Stroke, LeavesOutTheStampWhoseColumnIsTheRowOfTheLastOne) {
    InkScene scene(20, 20);
    scene.press(3, 10);
    scene.drag(15, 4);
    // From (3, 10) up to the right, two columns a row; in column 8 the row of the stamp before is 8.
    EXPECT_EQ(scene.row(10), "...##...............");
    EXPECT_EQ(scene.row(9), ".....##.............");
    EXPECT_EQ(scene.row(8), ".......#............");
    EXPECT_EQ(scene.row(7), ".........##.........");
    EXPECT_EQ(scene.row(4), "...............#....");
    scene.release();
}

TEST(Stroke, AfterAMoveAlongOneAxisBeginsAtTheOldPlace) {
    InkScene scene(20, 20);
    scene.press(2, 15);
    scene.drag(12, 15);
    scene.drag(14, 3);
    EXPECT_EQ(scene.out(8, 9), kInk);     // on the line from (2, 15)
    EXPECT_EQ(scene.out(13, 9), kPlain);  // not on the one from (12, 15)
    const std::int32_t before = scene.editor.recording.count();
    scene.drag(14, 3);  // not moved: nothing, and nothing recorded
    EXPECT_EQ(scene.editor.recording.count(), before);
}

TEST(Stroke, OutsideOfThePictureOrOfTheEditorChangesNothing) {
    InkScene scene(8, 8);
    const std::vector<Pixel> before = scene.combined;
    scene.click(-5, 3);
    scene.click(3, 9);
    EXPECT_EQ(scene.combined, before);
    EXPECT_EQ(scene.editor.undoFiles.iSaveSnapShot, 0);
    EXPECT_EQ(scene.editor.strokes, 2);
    EXPECT_EQ(scene.editor.strokesInside, 0);
    scene.editor.ExitEditorMode();
    const std::int32_t count = scene.editor.recording.count();
    scene.click(3, 3);
    EXPECT_EQ(scene.combined, before);
    EXPECT_EQ(scene.editor.recording.count(), count);
}

TEST(Undo, FilesHoldTheTouchedRowsAsTheyWere) {
    InkScene scene(3, 4);
    scene.background[7][3] = 77;  // (1, 2)
    scene.editor.ExitEditorMode();
    scene.enter();
    scene.click(1, 2);
    scene.click(0, 2);
    const std::string first = test::readFile(scene.folder.file("Snapshot1.bin"));
    ASSERT_EQ(first.size(), 4u + 5u * 3u);
    std::int32_t row = 0;
    std::memcpy(&row, first.data(), 4);
    EXPECT_EQ(row, 2);
    EXPECT_EQ(first.substr(4), std::string("ddd\xff\0ddd\x4d\xff"
                                           "ddd\xff\0",
                                           15));
    EXPECT_TRUE(fs::exists(scene.folder.file("Snapshot2.bin")));

    const std::vector<Pixel> both = scene.combined;
    scene.live({kUndo});
    EXPECT_EQ(scene.row(2), ".#.");
    EXPECT_EQ(scene.out(1, 2)[3], 255);  // alpha is written without transparency too
    scene.live({kKeyPressed, 0, 0, 'z'});
    EXPECT_EQ(scene.out(1, 2), (Pixel{100, 100, 100, 255}));
    EXPECT_EQ(scene.alpha(1, 2), 77);
    EXPECT_TRUE(fs::exists(scene.folder.file("RestoreSnapshot1.bin")));
    EXPECT_FALSE(scene.editor.undoFiles.canUndo);
    scene.live({kUndo});  // there is nothing more
    scene.live({kRedo});
    scene.live({kRedo});
    EXPECT_EQ(scene.out(0, 2)[0], 203);
    EXPECT_EQ(scene.alpha(1, 2), 255);
    scene.live({kRedo});
    EXPECT_EQ(scene.editor.undoFiles.iSaveSnapShot, 2);

    scene.live({kUndo});
    scene.click(50, 50);  // changes nothing, and yet there is nothing left to redo
    EXPECT_EQ(scene.editor.undoFiles.iSaveSnapShot, 1);
    EXPECT_FALSE(scene.editor.undoFiles.canRedo);
    scene.editor.ExitEditorMode();
    EXPECT_TRUE(fs::is_empty(scene.folder.path()));
}

TEST(Undo, AStepWithoutItsFileStaysAndSaysSo) {
    InkScene scene(4, 1);
    scene.click(0, 0);
    fs::remove_all(scene.folder.path());
    scene.click(1, 0);  // the folder is made again
    EXPECT_TRUE(scene.editor.undoFiles.problem.isEmpty());
    scene.live({kUndo});
    EXPECT_EQ(scene.row(0).substr(1), "...");
    scene.live({kUndo});  // the first step's file went with the folder
    EXPECT_NE(englishText(scene.editor.undoFiles.problem).find("Snapshot1.bin"), std::string::npos);
    EXPECT_EQ(scene.out(0, 0)[0], 203);
    EXPECT_EQ(scene.editor.undoFiles.iSaveSnapShot, 1);

    scene.editor.undoFiles.problem = {};
    fs::remove_all(scene.folder.path());
    test::writeFile(scene.folder.path().string(), "in the way");
    scene.click(2, 0);
    EXPECT_FALSE(scene.editor.undoFiles.problem.isEmpty());
    EXPECT_FALSE(scene.editor.undoFiles.canUndo);
    scene.live({kUndo});
    EXPECT_EQ(scene.out(2, 0)[0], 203);
    fs::remove(scene.folder.path());
    scene.click(3, 0);  // from here on there is a way back, to there
    scene.live({kUndo});
    EXPECT_EQ(scene.out(3, 0)[0], 100);
    EXPECT_EQ(scene.out(2, 0)[0], 203);
}

// Rows that no step touches are written back once only; whatever else happens between must not be missed by that.
TEST(Undo, EveryStepBringsBackThePictureBeforeIt) {
    for (const bool transparent : {false, true}) {
        EditScene scene(40, 90);
        test::fillWithNoise(scene.foreground, 1);
        test::fillWithNoise(scene.combined, 2);
        test::fillWithNoise(scene.background, 3);
        scene.info.bOutputTransparency = transparent;
        scene.enter();
        scene.choose('p');
        scene.sliders(50, 3, 20, 70);
        scene.click(3, 3);
        scene.live({kUndo});  // all of the picture is written here
        std::vector<std::vector<Pixel>> pictures{scene.combined}, alphas{scene.background};
        for (int step = 0; step < 12; ++step) {
            scene.choose("per65"[step % 5]);
            scene.sliders(50, 2 + step % 3, 20, 70);
            if (step == 6) scene.live({kSelectionChanged, 30, 30, ColorSelection::kCombinedColor, 0});
            if (step == 6) scene.editor.DeselectColorRange();
            scene.click(3 * step, 7 * step);
            pictures.push_back(scene.combined);
            alphas.push_back(scene.background);
        }
        for (std::size_t step = 12; step-- > 0;) {
            scene.live({kUndo});
            ASSERT_TRUE(transparent || scene.combined == pictures[step]) << step;  // emptied records stay empty
            ASSERT_EQ(scene.background, alphas[step]) << step;
        }
        for (std::size_t step = 1; step <= 12; ++step) {
            scene.live({kRedo});
            ASSERT_TRUE(transparent || scene.combined == pictures[step]) << step;
        }
        EXPECT_EQ(scene.background, alphas[12]);
    }
}

// As on a full disk, a part of the file can be written.
TEST(Undo, WithoutRoomForItsFileAStrokeStaysAndSaysSo) {
    InkScene scene(60, 40);
    scene.sliders(50, 5);
    scene.click(10, 10);
    const std::vector<Pixel> first = scene.combined;
    {
        const test::SmallDisk limit(1000);  // three rows
        scene.click(40, 20);
        EXPECT_NE(
            englishText(scene.editor.undoFiles.problem).find("This step cannot be undone: the file would be larger"),
            std::string::npos)
            << englishText(scene.editor.undoFiles.problem);
        scene.live({kUndo});
        EXPECT_NE(englishText(scene.editor.undoFiles.problem).find("larger"), std::string::npos);  // the reason stays
    }
    const std::vector<Pixel> second = scene.combined;
    EXPECT_NE(second, first);
    EXPECT_FALSE(fs::exists(scene.folder.file("Snapshot2.bin")));
    EXPECT_FALSE(scene.editor.undoFiles.canUndo);
    scene.click(20, 30);
    EXPECT_TRUE(scene.editor.undoFiles.canUndo);
    {
        const test::SmallDisk limit(1000);
        const std::vector<Pixel> third = scene.combined;
        scene.live({kUndo});  // what is needed to redo it finds no room
        EXPECT_EQ(scene.combined, third);
    }
    scene.live({kUndo});
    for (std::size_t i = 0; i < second.size(); ++i)
        ASSERT_EQ(scene.combined[i][0], second[i][0]);
}

// The lower half of the picture is near the colour that is picked, the upper one far from it.
struct SelectScene : EditScene {
    SelectScene() : EditScene(24, 24) {
        for (int y = 0; y < height; ++y) {
            for (int x = 0; x < width; ++x)
                out(x, y) = y < 12 ? Pixel{220, 30, 30, 9} : Pixel{30, 30, 220, 9};
        }
        enter();
        choose('8');
    }
    void pick(int tolerance) {
        live({kSelectionChanged, tolerance, tolerance, ColorSelection::kCombinedColor, 0});
        editor.armEyeDropper(true);
        press(3, 20);
    }
};

TEST(Selection, ProtectsColoursNearTheOneThatWasPicked) {
    SelectScene scene;
    const std::vector<Pixel> before = scene.combined;
    scene.pick(10);
    EXPECT_EQ(scene.out(3, 3), before[0]);
    EXPECT_EQ(scene.out(3, 12), (Pixel{80, 80, 255, 9}));   // cell (0, 1) is brighter
    EXPECT_EQ(scene.out(13, 12), (Pixel{0, 0, 170, 9}));    // cell (1, 1) is darker
    EXPECT_EQ(scene.out(13, 20), (Pixel{80, 80, 255, 9}));  // and (1, 2) brighter again
    scene.choose('e');
    scene.sliders(50, 10);
    scene.click(12, 12);
    EXPECT_EQ(scene.out(12, 10), (Pixel{90, 110, 70, 9}));
    EXPECT_EQ(scene.out(13, 12), (Pixel{0, 0, 170, 255}));  // it was put back in between, and alpha with it
    scene.live({kUndo});                                    // the selection is worked out anew on what comes back
    EXPECT_EQ(scene.out(12, 10), (Pixel{220, 30, 30, 255}));
    EXPECT_EQ(scene.out(13, 12)[2], 170);
    const EditedRows rows = scene.editor.DeselectColorRange();
    EXPECT_EQ(rows.last - rows.first, 24);
    EXPECT_EQ(scene.out(13, 12), (Pixel{30, 30, 220, 255}));
    EXPECT_EQ(scene.alpha(13, 12), 255);
}

TEST(Selection, TheLimitItselfIsWithinAndInvertTurnsItRound) {
    SelectScene scene;
    // Half the levels of value from one to the other: 90 / 2 - 44 / 2 = 23, of a limit of 0.09 * 255 = 22.95.
    scene.combined.assign(scene.combined.size(), {44, 44, 44, 9});
    scene.editor.ExitEditorMode();
    scene.enter();
    const auto isProtected = [&](int tolerance) {
        scene.live({kSelectionChanged, tolerance, tolerance, ColorSelection::kCombinedColor, 0});
        scene.live({kSelectColorPicked, 90, 90, 90});
        const bool shown = scene.out(0, 0)[0] != 44;
        scene.editor.DeselectColorRange();
        return shown;
    };
    EXPECT_FALSE(isProtected(9));
    EXPECT_TRUE(isProtected(10));
    scene.live({kCheckBox, 1});
    EXPECT_TRUE(isProtected(9));
    EXPECT_FALSE(isProtected(10));
}

// Colours are compared in whole steps, which the selection takes from tables.
TEST(Selection, StepsOfColoursAreTheirHueSaturationAndValueCutOff) {
    const ColorStepTables& tables = ColorStepTables::get();
    int wrong = 0;
    for (int color = 0; color < 1 << 24; color += test::kSanitized ? 997 : 1) {
        const int r = color >> 16, g = color >> 8 & 255, b = color & 255;
        const HsvColor hsv = toHsv(r, g, b);
        const ColorSteps steps =
            tables.of(static_cast<std::uint8_t>(r), static_cast<std::uint8_t>(g), static_cast<std::uint8_t>(b));
        wrong += steps.h != static_cast<int>(hsv.h) || steps.s != static_cast<int>(100.0 * hsv.s) ||
                 steps.v != static_cast<int>(hsv.v / 2.0);
    }
    EXPECT_EQ(wrong, 0);
}

TEST(Selection, WithoutASourceThereIsNone) {
    SelectScene scene;
    const std::vector<Pixel> before = scene.combined;
    scene.sliders(40, 25);  // the tool's slider is the tolerance
    scene.live({kSelectColorPicked, 220, 30, 30});
    EXPECT_FALSE(scene.editor.selection.bSelected);
    EXPECT_EQ(scene.editor.selection.dSelectTolerance, 0.4);
    EXPECT_EQ(scene.combined, before);
    scene.live({kSelectionChanged, 40, 40, ColorSelection::kForegroundColor, 0});  // that is green all over
    EXPECT_TRUE(scene.editor.selection.bSelected);
    EXPECT_EQ(scene.combined, before);
}

}  // namespace
}  // namespace tavrin
