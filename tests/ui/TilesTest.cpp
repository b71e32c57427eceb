// Looks picked by eye: small pictures of the present portrait, what a click on one does, and how they are reached.
#include <fstream>
#include <future>
#include <set>

#include "formats/Installation.h"
#include "session/SidePictures.h"
#include "ui/WindowTest.h"
#include "ui/tiles/TileRow.h"

namespace tavrin {
namespace {

class TilesTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open({1300, 900});
        window_->panel()->selectMainTab(1);
    }
    TileRow* openRow(const char* name) {
        auto* row = window_->panel()->findChild<TileRow*>(name);
        for (GroupBox* group : window_->panel()->groups())
            if (group->isAncestorOf(row)) group->setFolded(false);
        window_->panel()->reveal(row);
        return row;
    }
    Tile* tile(const char* name) const { return window_->panel()->findChild<Tile*>(name); }
    static bool isMade(const TileRow* row) {
        return std::ranges::none_of(row->tiles(), [](const Tile* tile) { return tile->isStale(); });
    }
    static bool waitFor(const TileRow* row) {
        return test::eventually([&] { return isMade(row); });
    }
    std::string value(const char* setting) { return editor().value(setting); }
    void press(const char* name) { QTest::mouseClick(tile(name), Qt::LeftButton); }
    /// What the engine makes of the present state with the changes of a tile, by another way.
    QImage byTheEngine(const SettingValues& changes) {
        SystemInfo state;
        EXPECT_EQ(useSettings(state, settingsOf(*info_)), "");
        EXPECT_EQ(useSettings(state, changes), "");
        Scene scene = sceneOf(state);
        scene.pictures = *info_;
        std::promise<QImage> made;
        SidePictures pictures([] { return true; },
                              [&](const SidePictures::Made& one) { made.set_value(one.picture); });
        pictures.setScene(std::move(scene), 1);
        pictures.want({{portrait_, "", Tile::kPictureSide, false, false}});
        return made.get_future().get();
    }
};

TEST_F(TilesTest, EachShowsThePresentPortraitWithItsLookAndFollowsTheSettings) {
    TileRow* row = openRow("tilesShadow");
    ASSERT_TRUE(waitFor(row));
    for (const Tile* one : row->tiles()) {
        SCOPED_TRACE(one->objectName().toStdString());
        EXPECT_EQ(one->picture().height(), Tile::kPictureSide);
        EXPECT_TRUE(one->picture() == byTheEngine(one->changes()));
    }
    EXPECT_FALSE(tile("buttonWall")->picture() == tile("removeShadow")->picture());
    const QImage before = tile("buttonWall")->picture();
    editor().set("background.iBrightness", "60");
    info_->StartUpdate();
    ASSERT_TRUE(test::eventually([&] { return tile("buttonWall")->isStale(); }));
    EXPECT_TRUE(tile("buttonWall")->picture() == before) << "it stays until the new one is there";
    ASSERT_TRUE(waitFor(row));
    EXPECT_FALSE(tile("buttonWall")->picture() == before);
}

TEST_F(TilesTest, AClickIsOneStepAndMarksTheTileThatIsInForce) {
    openRow("tilesShadow");
    ASSERT_TRUE(test::eventually([&] { return tile("removeShadow")->isChecked(); }));
    const std::string before = value("iSliderShadowBlur");
    const std::size_t steps = editor().stepsDone();
    press("buttonWall");
    EXPECT_EQ(info_->iHaveShadow, 5);
    EXPECT_TRUE(tile("buttonWall")->isChecked());
    EXPECT_FALSE(tile("removeShadow")->isChecked());
    EXPECT_EQ(editor().stepsDone(), steps + 1);
    EXPECT_EQ(editor().steps().back().label, "Shadow: Wall");
    press("buttonWall");
    EXPECT_TRUE(tile("buttonWall")->isChecked()) << "it is still in force";
    EXPECT_EQ(editor().stepsDone(), steps + 1) << "and nothing has changed";
    // Another value of the same effect is another look.
    editor().set("iSliderShadowBlur", "123");
    window_->binder().UpdateAllUI();
    EXPECT_TRUE(test::eventually([&] { return !tile("buttonWall")->isChecked(); }));
    action("UndoButton")->trigger();
    action("UndoButton")->trigger();
    EXPECT_TRUE(test::eventually([&] { return tile("removeShadow")->isChecked(); }));
    EXPECT_EQ(value("iSliderShadowBlur"), before);
}

TEST_F(TilesTest, EveryTileDoesWhatItsNameSays) {
    struct Case {
        const char *row, *tile, *setting, *value;
    };
    for (const Case& one : {Case{"tilesFrame", "tileFrameHeart", "frame.iFrameType", "3"},
                            Case{"tilesFrame", "tileFrameNone", "frame.iFrameType", "0"},
                            Case{"tilesFrameSecond", "tileFrameHeartSecond", "frameOverlay.iFrameType", "3"},
                            Case{"tilesFrameSecond", "tileFrameNoneSecond", "frameOverlay.iFrameType", "0"},
                            Case{"tilesFrameFillSecond", "tileFillBlurSecond", "frameOverlay.iFrameMode", "2"},
                            Case{"tilesFrameFill", "tileFillBlur", "frame.iFrameMode", "2"},
                            Case{"tilesLighting", "tileLightGlow", "iLightingMode", "4"},
                            Case{"tilesCartoon", "tileCartoonPencil", "iCartoonEffectType", "3"},
                            Case{"tilesTexture", "tileTextureLinen", "texture.bHaveTexture", "1"},
                            Case{"tilesOverlays", "tileOverlaysWinter", "bHaveFrameOverlay", "1"},
                            Case{"tilesHair", "tileHairBlack", "iMacroHairColor", "2"}}) {
        SCOPED_TRACE(one.tile);
        openRow(one.row);
        press(one.tile);
        EXPECT_EQ(value(one.setting), one.value);
        EXPECT_TRUE(tile(one.tile)->isChecked());
    }
    EXPECT_EQ(value("frame.iFrameType"), "1") << "a filling is seen on a frame";
    openRow("tilesFrameSecond");
    press("tileFrameJaggedSecond");
    EXPECT_EQ(value("frame.iFrameType"), "1") << "of the second frame";
    EXPECT_EQ(value("combined.sliderAdjustBaseGreen"), "110") << "as the radio of the quick settings sets it";
    std::set<QString> names;
    for (const Tile* one : window_->panel()->findChildren<Tile*>()) {
        EXPECT_TRUE(names.insert(one->objectName()).second) << one->objectName().toStdString();
        EXPECT_FALSE(one->toolTip().isEmpty() || one->accessibleName().isEmpty());
    }
    EXPECT_GE(names.size(), 40u);
}

TEST_F(TilesTest, KeysGoFromTileToTileAndTakeOne) {
    openRow("tilesShadow");
    tile("removeShadow")->setFocus();
    QTest::keyClick(tile("removeShadow"), Qt::Key_Right);
    EXPECT_TRUE(tile("buttonWall")->hasFocus());
    QTest::keyClick(tile("buttonWall"), Qt::Key_Down);
    EXPECT_TRUE(tile("tileShadowFloorBehind")->hasFocus());
    QTest::keyClick(tile("tileShadowFloorBehind"), Qt::Key_Return);
    EXPECT_EQ(info_->iHaveShadow, 2);
    EXPECT_EQ(info_->iCheckShadowBehind, 1);
    QTest::keyClick(tile("tileShadowFloorBehind"), Qt::Key_Up);
    QTest::keyClick(tile("buttonWall"), Qt::Key_Left);
    QTest::keyClick(tile("removeShadow"), Qt::Key_Left);
    EXPECT_TRUE(tile("removeShadow")->hasFocus()) << "there is none before it";
}

TEST_F(TilesTest, WhatCannotBeSeenIsNotMadeAndWhatComesIntoViewIs) {
    const TileRow* shadows = openRow("tilesShadow");
    ASSERT_TRUE(waitFor(shadows));
    auto* frames = window_->panel()->findChild<TileRow*>("tilesOverlays");
    QTest::qWait(300);
    for (const Tile* one : frames->tiles())
        EXPECT_TRUE(one->isStale() && one->picture().isNull());
    openRow("tilesOverlays");
    EXPECT_TRUE(waitFor(frames));
    for (const Tile* one : frames->tiles())
        EXPECT_FALSE(one->picture().isNull());
}

TEST_F(TilesTest, AnOverlaySetWhoseFilesCannotBeReadSaysSo) {
    const std::string broken = shippedPicture("Overlays/FR_Gold.png");
    std::ofstream(broken, std::ios::trunc) << "no picture";
    TileRow* row = openRow("tilesOverlays");
    ASSERT_TRUE(waitFor(row));
    EXPECT_TRUE(tile("tileOverlaysGold")->missing().contains("FR_Gold.png"));
    EXPECT_TRUE(tile("tileOverlaysGold")->toolTip().contains("FR_Gold.png"));
    EXPECT_EQ(tile("tileOverlaysNone")->missing() + tile("tileOverlaysWinter")->missing(), "");
    EXPECT_FALSE(tile("tileOverlaysGold")->picture().isNull()) << "the rest of it is shown";
}

TEST_F(TilesTest, SetsOfOverlaysThatSomebodyPutBesideTheOthersAreTilesToo) {
    const std::string folder = Places::current().overlaysFolder() + "Club/";
    std::filesystem::create_directories(folder);
    for (const char* name : {"FR_A & B.png", "bg_a & b.png", "FG_Nothing.txt", "FR_.png", "Other.png"})
        std::filesystem::copy_file(shippedPicture("Overlays/FR_Gold.png"), folder + name);
    open({1300, 900});
    window_->panel()->selectMainTab(1);
    TileRow* row = openRow("tilesOverlays");
    ASSERT_TRUE(waitFor(row));
    ASSERT_EQ(row->tiles().size(), 6u) << "one more than those that ship";
    EXPECT_EQ(row->tiles().back()->accessibleName(), "A & B");
    const QString name = row->tiles().back()->objectName();
    press(name.toUtf8());
    EXPECT_EQ(value("sFrameOverlay"), folder + "FR_A & B.png");
    EXPECT_EQ(value("sBackgroundOverlay"), folder + "bg_a & b.png");
    EXPECT_EQ(value("bHaveForegroundOverlay"), "0");
    EXPECT_TRUE(tile(name.toUtf8())->isChecked());
    press("tileOverlaysNone");
    EXPECT_EQ(value("bHaveFrameOverlay"), "0");
    std::filesystem::remove_all(folder);
}

}  // namespace
}  // namespace tavrin
