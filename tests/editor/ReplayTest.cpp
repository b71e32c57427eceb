// Recording, replay and files of edits.
#include <gtest/gtest.h>
#include <random>

#include "core/raster/Rows.h"
#include "editor/EditFile.h"
#include "editor/EditScene.h"
#include "editor/EditVisit.h"
#include "editor/PlayEdits.h"
#include "support/Files.h"

namespace tavrin {
namespace {

using test::EditScene;
using test::Pixel;

// Any edits that a file may hold: every tool, every kind, strokes within and beside the picture.
std::vector<EditItem> anyEdits(unsigned seed, int count, int width, int height) {
    std::mt19937 random(seed);
    const auto any = [&](int low, int high) {
        return low + static_cast<int>(random() % static_cast<unsigned>(high - low + 1));
    };
    const std::string keys = "bper67s3w2f45ch8";
    std::vector<EditItem> items;
    while (static_cast<int>(items.size()) < count) {
        const int x = any(-5, width + 5), y = any(-5, height + 5);
        switch (any(0, 13)) {
            case 0:
                items.push_back({kBrushChosen, keys[static_cast<std::size_t>(any(0, 15))]});
                break;
            case 1:
                items.push_back({kBrushSliders, any(0, 100), any(0, 8), any(0, 100), any(0, 100)});
                break;
            case 2:
                items.push_back({kColorWell, any(0, 255), any(0, 255), any(0, 255)});
                break;
            case 3:
                items.push_back({kSelectColorPicked, any(0, 255), any(0, 255), any(0, 255)});
                break;
            case 4:
                items.push_back({any(0, 1) ? kCheckBox : kSelectCheckBox, any(0, 1)});
                break;
            case 5:
                items.push_back({kSelectionChanged, any(0, 100), any(0, 60), any(0, 4), any(0, 1)});
                break;
            case 6:
                items.push_back({kKeyPressed, x, y, "acfsvz"[any(0, 5)]});
                break;
            case 7:
                items.push_back({any(kRedo, kZoomHome)});
                break;
            case 8:
                items.push_back({any(4, 99)});
                break;  // most of them nobody knows
            default:
                items.push_back({kMouseDown, x, y});
                for (int i = any(0, 3); i > 0; --i)
                    items.push_back({kMouseDragged, any(0, width), any(0, height)});
                if (any(0, 9) > 0) items.push_back({kMouseUp});
        }
    }
    return items;
}

struct NoiseScene : EditScene {
    explicit NoiseScene(bool transparent = false) : EditScene(48, 36) {
        test::fillWithNoise(foreground, 1);
        test::fillWithNoise(background, 2);
        test::fillWithNoise(combined, 3);
        info.bOutputTransparency = transparent;
        info.pCombinedBitmapInfo->sliderWhiteBalance = 140;
        info.pForegroundBitmapInfo->iBrightness = 10;
        info.pForegroundBitmapInfo->bHaveColorChange = true;
    }
    void replay() {
        EditedRows rows;
        editor.startReplay();
        while (editor.OnReplayTimer(rows)) {
        }
    }
};

void expectSamePicture(const EditScene& one, const EditScene& other) {
    EXPECT_EQ(one.combined, other.combined);
    EXPECT_EQ(one.background, other.background);
}

TEST(Replay, GivesTheBytesOfTheLiveEdit) {
    for (unsigned seed = 1; seed <= 10; ++seed) {
        SCOPED_TRACE(seed);
        NoiseScene live(seed % 2 == 0), replayed(seed % 2 == 0), alone(seed % 2 == 0);
        live.enter();
        for (const EditItem& item : anyEdits(seed, 120, 48, 36))
            live.live(item);
        ASSERT_NE(live.combined, replayed.combined);
        EditFile file{"edits", 48, 36, 1.0, {}, {}, 0, 0};
        for (std::int32_t i = 0; i < live.editor.recording.count(); ++i)
            file.items.push_back(live.editor.recording.item(i));
        const ReadEdits read = parseEdits("edits", editText(file));
        ASSERT_EQ(englishText(read.problem), "");
        ASSERT_EQ(read.file.items, file.items);

        replayed.enter();
        replayed.editor.recording.setSaved(read.file.items, makeBrushTable(), kEraseForeground);
        replayed.replay();
        expectSamePicture(live, replayed);
        EXPECT_EQ(replayed.editor.recording.count(), live.editor.recording.count());  // a replay is recorded again

        // Played as a file on one thread: the selection that may stand goes.
        const ThreadLimit one(1);
        live.editor.DeselectColorRange();
        EXPECT_EQ(playEdits(alone.info, read.file, false, alone.folder.path()).problem, "");
        expectSamePicture(live, alone);
    }
}

// The editor is left in the midst of strokes and selections, and what a tool had before goes on with the next
// picture.
TEST(Replay, AFileOfSeveralVisitsGivesTheirBytes) {
    for (unsigned seed = 1; seed <= 12; ++seed) {
        SCOPED_TRACE(seed);
        NoiseScene live(seed % 2 == 0), alone(seed % 2 == 0);
        std::vector<EditVisit> visits;
        for (unsigned visit = 0; visit < 4; ++visit) {
            if (visit == 1) {  // the first one was on the picture before
                alone.combined = live.combined;
                alone.background = live.background;
                visits.clear();
            }
            live.editor.setScreenZoom(1.0);
            live.enter();
            visits.push_back({live.editor.tools(), {}, 36});
            for (const EditItem& item : anyEdits(10 * seed + visit, 40, 48, 36))
                live.live(item);
            for (std::int32_t i = 0; i < live.editor.recording.count(); ++i)
                visits.back().items.push_back(live.editor.recording.item(i));
            if (visit < 3) live.editor.ExitEditorMode();
        }
        const ReadEdits read = parseEdits("edits", editText(fileOf(visits, 48, 36, 1.0)));
        ASSERT_EQ(englishText(read.problem), "");
        live.editor.DeselectColorRange();
        EXPECT_EQ(playEdits(alone.info, read.file, false, alone.folder.path()).problem, "");
        expectSamePicture(live, alone);
    }
}

// Presses along a line are made anew one by one; a drag leaves out what would come out the same.
TEST(Replay, ADragGivesTheBytesOfItsStampsOneByOne) {
    for (const char key : std::string("bper67s3w2f45ch")) {
        for (const bool transparent : {false, true}) {
            SCOPED_TRACE(std::string(1, key) + (transparent ? " transparent" : ""));
            NoiseScene dragged(transparent), pressed(transparent);
            for (NoiseScene* scene : {&dragged, &pressed}) {
                for (std::size_t i = 0; i < scene->background.size(); i += 3)
                    scene->background[i][3] = static_cast<std::uint8_t>(i % 8);  // nothing, or next to it
                scene->enter();
                scene->choose(key);
                scene->live({kCheckBox, key == 'p'});
                scene->live({kKeyPressed, 3, 3, 'a'});
                scene->sliders(40, 4, 30, 60);
                scene->press(12, 26);
            }
            dragged.drag(24, 26);
            for (int x = 12; x <= 24; ++x)
                pressed.press(x, 26);
            dragged.release();
            pressed.release();
            expectSamePicture(dragged, pressed);
        }
    }
}

TEST(Replay, KeepsTheBrushesOfTheFirstItemAndFiveThousandItems) {
    EditScene scene(4, 4);
    scene.enter();
    scene.choose('p');
    EXPECT_EQ(scene.editor.recording.iReplayiActiveButton, kEraseForeground);
    scene.sliders(50, 0);
    for (int i = 0; i < 6000; ++i)
        scene.live({kColorWell, i % 256, 0, 0});
    EXPECT_EQ(scene.editor.recording.count(), kMostEditItems);
    EXPECT_EQ(scene.editor.recording.item(kMostEditItems - 1).V1, (kMostEditItems - 3) % 256);
    scene.click(1, 1);  // the edit itself goes on
    EXPECT_EQ(scene.out(1, 1)[0], 5999 % 256);

    scene.editor.ExitEditorMode();
    scene.enter();  // moves the recording aside
    EXPECT_EQ(scene.editor.recording.count(), 0);
    scene.enter();  // and does nothing a second time
    EXPECT_EQ(scene.editor.recording.savedCount(), kMostEditItems);
    scene.choose('e');
    EditedRows rows;
    scene.editor.startReplay();
    EXPECT_TRUE(scene.editor.OnReplayTimer(rows));
    EXPECT_EQ(scene.editor.recording.count(), 1 + Editor::kItemsPerTick);
}

TEST(Replay, PlacesStrokesByTheHeightOfThePicture) {
    EditScene scene(8, 8);
    const ReadEdits read =
        parseEdits("e", "tavrin-edits 1\nview 4 4\n10 112 # paint\n20 50 1 100 100\n1 1 1\n2\n1 70 70\n2\n");
    ASSERT_EQ(englishText(read.problem), "");
    PlayedEdits played = playEdits(scene.info, read.file, false, scene.folder.path());
    ASSERT_EQ(played.warnings.size(), 1u);
    EXPECT_EQ(played.warnings[0], "e: 1 stroke of 2 did not meet the picture.");
    EXPECT_EQ(scene.out(2, 6)[2], 150);
    EXPECT_EQ(scene.out(4, 6)[2], 150);
    EXPECT_EQ(scene.out(5, 6)[2], 3);  // the radius stays in pixels
    playEdits(scene.info, read.file, true, scene.folder.path());
    EXPECT_EQ(scene.out(6, 6)[2], 150);
    EXPECT_EQ(scene.out(7, 6)[2], 3);
}

// What a replay at another size has recorded, played at a third one.
TEST(Replay, AnItemScalesTheRadiusUpToTheNextOne) {
    EditScene scene(16, 16);
    const std::string text =
        "tavrin-edits 1\nview 8 8\n10 112\n20 50 1 100 100\n300 3 2\n1 1 1\n2\n300 1 1\n1 6 1\n2\n";
    ReadEdits read = parseEdits("e", text);
    ASSERT_EQ(englishText(read.problem), "");
    EXPECT_EQ(read.file.unknown, 0u);
    ASSERT_EQ(playEdits(scene.info, read.file, false, scene.folder.path()).warnings.size(), 0u);
    EXPECT_EQ(scene.out(5, 14)[2], 150);  // 3 pixels
    EXPECT_EQ(scene.out(6, 14)[2], 3);
    EXPECT_EQ(scene.out(14, 14)[2], 150);  // 2 pixels
    EXPECT_EQ(scene.out(15, 14)[2], 3);
    playEdits(scene.info, read.file, true, scene.folder.path());
    EXPECT_EQ(scene.out(8, 14)[2], 150);  // 6, and 4
    EXPECT_EQ(scene.out(12, 9)[2], 3);
    EXPECT_EQ(scene.out(12, 10)[2], 150);
    EXPECT_EQ(withScale({{kRadiusScale, 3, 2}, {kMouseDown, 3, 2}}, 4, 3),
              (std::vector<EditItem>{{kRadiusScale, 2, 1}, {kMouseDown, 3, 2}}));
    EXPECT_FALSE(parseEdits("e", "tavrin-edits 1\nview 8 8\n300 0 1\n").problem.isEmpty());
}

TEST(Replay, WithoutTheSilhouettesPictureNothingIsEdited) {
    EditScene scene(4, 4);
    scene.info.bOutputSilhouette = true;
    scene.info.sSilhouetteFileName = std::string("gone.png");
    const std::vector<Pixel> before = scene.combined;
    EXPECT_FALSE(scene.editor.EnterEditorMode().isEmpty());
    EXPECT_TRUE(scene.editor.bShowCursor);
    scene.click(1, 1);
    EXPECT_EQ(scene.combined, before);
}

TEST(EditFile, FaultsAreToldWithTheirLine) {
    const std::string head = "tavrin-edits 1\nview 10 20\n";
    const std::pair<std::string, std::string> faults[] = {
        {"", "f: it does not begin with \"tavrin-edits 1\"."},
        {"tavrin-edits 2\n", "f, line 1: only version 1 of files of edits is known here."},
        {"\n# my edits\nP6\n", "f, line 3: a file of edits begins with \"tavrin-edits 1\"."},
        {"tavrin-edits 1\n1 2 3\n", "f, line 2: the line \"view WIDTH HEIGHT\" comes before the items."},
        {"tavrin-edits 1\nview 10\n", "f, line 2: view takes width and height in pixels, each 1 to 100000."},
        {"tavrin-edits 1\n", "f: it has no line \"view WIDTH HEIGHT\"."},
        {head + "1 2\n", "f, line 3: 1 (mouse down) takes 2 values."},
        {head + "10\n", "f, line 3: 10 (brush) takes 1 value."},
        {head + "1 2 3 4 5 6\n", "f, line 3: an item is a kind and up to four values."},
        {head + "1 2 x\n", "f, line 3: \"x\" is no whole number."},
        {head + "1 2 99999999999999999999\n", "f, line 3: \"99999999999999999999\" is no whole number."},
        {head + "20 50 101 0 0\n",
         "f, line 3: 20 (sliders of the brush) has the radius 101, and it goes from 0 to 100."},
        {head + "zoom 0\n", "f, line 3: zoom takes the pixels of a point of the view, 0.001 to 1000."},
        {head + "2\nzoom 2\n", "f, line 4: zoom stands before the first item."},
        {head + "seed -1\n", "f, line 3: seed takes a whole number from 0 on."},
    };
    for (const auto& [text, problem] : faults)
        EXPECT_EQ(englishText(parseEdits("f", text).problem), problem) << text;
}

TEST(EditFile, KeepsWhatItSaysAndPassesOverWhatIsUnknown) {
    std::string text = "tavrin-edits 1\r\nview 10 20\r\nzoom 1.3\nseed 7\n77 1\n";
    for (int i = 0; i < 5001; ++i)
        text += "2 0 0 0 0\n";
    const ReadEdits read = parseEdits("f", text);
    ASSERT_EQ(englishText(read.problem), "");
    EXPECT_EQ(read.file.zoom, 1.3);
    EXPECT_EQ(read.file.seed, 7u);
    EXPECT_EQ(read.file.items.size(), 5000u);
    EXPECT_EQ(read.file.dropped, 2u);
    EXPECT_EQ(read.file.unknown, 1u);
    EXPECT_EQ(parseEdits("f", editText(read.file)).file.zoom, 1.3);
    EXPECT_FALSE(read.file.undoes());
    EXPECT_TRUE(parseEdits("f", "tavrin-edits 1\nview 1 1\n100 0 0 122\n").file.undoes());
}

}  // namespace
}  // namespace tavrin
