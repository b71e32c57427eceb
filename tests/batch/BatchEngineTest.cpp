#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>

#include "batch/BatchScene.h"
#include "folders/HistoryFile.h"
#include "formats/ImageState.h"
#include "formats/SettingsFile.h"
#include "session/OutputSizes.h"
#include "support/Files.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using test::Names;
using BatchEngineTest = test::BatchScene;

TEST_F(BatchEngineTest, EveryCombinationIsMadeOnceWithItsMaskAndItsNames) {
    portrait("fg/anna.png");
    portrait("fg/ben.png", QColor(150, 40, 160));
    background("bg/sea.png", QColor(20, 60, 200));
    background("bg/wood.png", QColor(120, 90, 40));
    settings_.bAutoQLXSave = true;
    run();
    EXPECT_EQ(made(), (Names{"annasea.png", "annasea.qlx", "annawood.png", "annawood.qlx", "bensea.png", "bensea.qlx",
                             "benwood.png", "benwood.qlx"}));
    EXPECT_EQ(corner("out/bensea.png"), QColor(20, 60, 200));
    EXPECT_EQ(corner("out/annawood.png"), QColor(120, 90, 40));
    EXPECT_GT(middle("out/bensea.png").blue(), middle("out/annasea.png").blue() + 60);
    EXPECT_EQ(made("out/Thumbs"),
              (Names{"TQTQannasea.png", "TQTQannawood.png", "TQTQbensea.png", "TQTQbenwood.png"}));
    const QImage mask(QString::fromStdString(folder_.file("out/Thumbs/TQTQannasea.png")));
    EXPECT_EQ(mask.size(), QSize(info_->iOutputPixelLowResWidth, info_->iOutputPixelLowResHeight));
    EXPECT_EQ(mask.pixelColor(0, 0), QColor(255, 255, 255));
    EXPECT_EQ(mask.pixelColor(mask.width() / 2, mask.height() / 2), QColor(0, 0, 0));
    EXPECT_EQ(readHistory(folder_.file("out/ForegroundHistory.dat")),
              (Names{"anna.pngsea.pngUseCurrent", "ben.pngsea.pngUseCurrent", "anna.pngwood.pngUseCurrent",
                     "ben.pngwood.pngUseCurrent"}));
    EXPECT_EQ(panel_.counts, "4/4");
    EXPECT_TRUE(panel_.start && !panel_.stop);
    EXPECT_EQ(looks_, 8);  // two at each new foreground, a second apart

    fs::remove(folder_.path() / "out" / "bensea.png");
    run();  // all of it is in the history
    EXPECT_EQ(made().size(), 7u);
    engine().clickedButtonClearBatchHistory();
    EXPECT_EQ(panel_.counts, "4/0");
    run();
    EXPECT_EQ(made().size(), 8u);
}

TEST_F(BatchEngineTest, EmptySlotsKeepWhatTheProgramHoldsAndOneCombinationIsNone) {
    portrait("current.png");
    info_->pForegroundBitmapInfo->sSourceImageFullPath = folder_.file("current.png");
    background("bg/sea.png", QColor(20, 60, 200));
    run();
    EXPECT_TRUE(made().empty());
    EXPECT_EQ(panel_.counts, "0/0");
    background("bg/wood.png", QColor(120, 90, 40));
    run();
    EXPECT_EQ(made(), (Names{"sea.png", "wood.png"}));
    EXPECT_EQ(corner("out/wood.png"), QColor(120, 90, 40));
    EXPECT_GT(middle("out/sea.png").red(), 150);
}

TEST_F(BatchEngineTest, StylesNameTheOutput) {
    portrait("fg/anna.png");
    portrait("fg/ben.png");
    background("bg/sea.png", QColor(20, 60, 200));
    ASSERT_EQ(saveImageStateToXML(*info_, folder_.file("qlx/soft.qlx")), "");
    settings_.iLastBatchLastOutputStyle = kSplitIntoFolders;
    settings_.iLastBatchLastOutputFileType = 1;
    run();
    EXPECT_EQ(made("out/sea/soft"), (Names{"anna.jpg", "ben.jpg"}));
    engine().clickedButtonClearBatchHistory();
    settings_.iLastBatchLastOutputStyle = kNumberFiles;
    run();
    EXPECT_EQ(made(), (Names{"BatchFile1.jpg", "BatchFile2.jpg"}));
    engine().clickedButtonClearBatchHistory();
    settings_.iLastBatchLastOutputStyle = kCombineNames;
    settings_.iLastBatchLastOutputFileType = 3;
    run();
    EXPECT_EQ(made(), (Names{"BatchFile1.jpg", "BatchFile2.jpg", "annaseasoft.tif", "benseasoft.tif"}));
}

TEST_F(BatchEngineTest, NumbersGoOnBehindThePicturesOfEarlierRuns) {
    portrait("fg/anna.png");
    portrait("fg/ben.png");
    background("bg/sea.png", QColor(20, 60, 200));
    settings_.iLastBatchLastOutputStyle = kNumberFiles;
    test::writeFile(folder_.file("out/BatchFile2.png"), "of another day");
    run();
    EXPECT_EQ(made(), (Names{"BatchFile1.png", "BatchFile2.png", "BatchFile3.png"}));
    engine().clickedButtonClearBatchHistory();
    run();
    EXPECT_EQ(made().size(), 5u);
    EXPECT_EQ(test::readFile(folder_.file("out/BatchFile2.png")), "of another day");
    // A list gets its numbers when it is read.
    settings_.bUseBatchXMLFile = true;
    test::writeFile(folder_.file("fg/jobs.xml"),
                    "<image>\n</image>\n<image>\n<outputfiletype>outputtif</outputfiletype>\n</image>\n");
    engine().clickedButtonStartBatch();
    engine().ComputeNumberOfFilesInBatchUsingXMLFile();
    EXPECT_EQ(engine().myBatchElements[0].sOutputFile, folder_.file("out/BatchFile6"));
    EXPECT_EQ(engine().myBatchElements[1].sOutputFile, folder_.file("out/BatchFile7"));
}

TEST_F(BatchEngineTest, ARunNeverWritesOverWhatItReads) {
    fs::create_directory(folder_.path() / "fg" / "sea");
    portrait("fg/sea/anna.png");
    portrait("fg/sea/ben.png");
    background("bg/sea.png", QColor(20, 60, 200));
    settings_.sLastBatchForeground = folder_.file("fg/sea");
    settings_.sLastBatchOutput = folder_.file("fg");
    settings_.iLastBatchLastOutputStyle = kSplitIntoFolders;
    const std::string before = test::readFile(folder_.file("fg/sea/anna.png"));
    run();
    EXPECT_EQ(test::readFile(folder_.file("fg/sea/anna.png")), before);
    ASSERT_EQ(alerts_.all.size(), 1u);
    EXPECT_NE(alerts_.all[0].find(folder_.file("fg/sea/anna.png") + " would be written over"), std::string::npos);
    EXPECT_TRUE(engine().nextBatchForegroundFile.oProcessedFiles.empty());  // nothing counts as done

    // Nor does a link lead a picture out of the folder.
    settings_.sLastBatchOutput = folder_.file("out");
    fs::create_directory_symlink(folder_.file("bg"), folder_.file("out/sea"));
    alerts_.all.clear();
    run();
    ASSERT_EQ(alerts_.all.size(), 1u);
    EXPECT_NE(alerts_.all[0].find("leads out of"), std::string::npos);
    EXPECT_EQ(made("bg"), Names{"sea.png"});

    // The state of a picture may have the name of one of the states.
    settings_.iLastBatchLastOutputStyle = kCombineNames;
    settings_.bAutoQLXSave = true;
    ASSERT_EQ(saveImageStateToXML(*info_, folder_.file("out/annasealook.qlx")), "");
    fs::create_symlink(folder_.file("out/annasealook.qlx"), folder_.file("qlx/look.qlx"));
    const std::string state = test::readFile(folder_.file("out/annasealook.qlx"));
    alerts_.all.clear();
    run();
    ASSERT_EQ(alerts_.all.size(), 1u);
    EXPECT_NE(alerts_.all[0].find("annasealook.qlx would be written over"), std::string::npos) << alerts_.all[0];
    EXPECT_EQ(test::readFile(folder_.file("out/annasealook.qlx")), state);
}

TEST_F(BatchEngineTest, AStateBringsItsSettingsAndSizeButNotItsForeground) {
    portrait("fg/anna.png");
    portrait("fg/ben.png");
    background("inState.png", QColor(9, 8, 7));
    info_->oImageSize.resize(2);
    info_->oImageSize[1] = info_->oImageSize[0];
    info_->oImageSize[1].sName = "small";
    info_->oImageSize[1].dWidth = 0.75;
    const auto other = test::stateForOutput(60, 40, 40);
    other->oImageSize = info_->oImageSize;
    other->iSelecteImageSize = 1;
    other->sImageSizeName = "small";
    other->pForegroundBitmapInfo->sSourceImageFullPath = "/elsewhere.png";
    other->pBackgroundBitmapInfo->sSourceImageFullPath = folder_.file("inState.png");
    ASSERT_EQ(saveImageStateToXML(*other, folder_.file("qlx/small.qlx")), "");
    test::writeFile(folder_.file("qlx/broken.qlx"), "<ImageState>");
    run();
    EXPECT_EQ(made().size(), 4u);  // the broken state runs with the settings in force
    EXPECT_EQ(QImage(QString::fromStdString(folder_.file("out/annasmall.png"))).size(), QSize(30, 40));
    EXPECT_EQ(corner("out/annasmall.png"), QColor(9, 8, 7));
    EXPECT_EQ(info_->sImageSizeName.load(), "small");
    EXPECT_TRUE(std::none_of(alerts_.all.begin(), alerts_.all.end(),
                             [](const std::string& alert) { return alert.find("elsewhere") != std::string::npos; }));
}

TEST_F(BatchEngineTest, AStatesOwnSizeIsMadeAndOneThatNobodyKnowsIsTold) {
    portrait("fg/anna.png");
    portrait("fg/ben.png");
    background("bg/sea.png", QColor(9, 8, 7));
    const auto other = test::stateForOutput(60, 40, 40);
    // A state that follows another over one background brings its own.
    other->pBackgroundBitmapInfo->sSourceImageFullPath = folder_.file("bg/sea.png");
    chooseOwnSize(*other, "mine", 0.75, 0.5, 120);
    ASSERT_EQ(saveImageStateToXML(*other, folder_.file("qlx/mine.qlx")), "");
    chooseOwnSize(*other, "nobody's", 0.0, 0.0, 0);
    ASSERT_EQ(saveImageStateToXML(*other, folder_.file("qlx/nobodys.qlx")), "");
    run();
    EXPECT_EQ(made().size(), 4u);
    EXPECT_EQ(QImage(QString::fromStdString(folder_.file("out/annaseamine.png"))).size(), QSize(90, 60));
    EXPECT_EQ(info_->iImageSizeCount(), 1);
    EXPECT_EQ(info_->sImageSizeName.load(), "mine");
    EXPECT_EQ(info_->iOutputImageDPI, 120);
    EXPECT_TRUE(std::any_of(alerts_.all.begin(), alerts_.all.end(), [](const std::string& alert) {
        return alert.find("nobodys.qlx: The output size") != std::string::npos;
    }));
}

TEST_F(BatchEngineTest, AnUnreadableForegroundIsToldNotSavedAndTheRunGoesOn) {
    test::writeFile(folder_.file("fg/a.png"), "no picture");
    portrait("fg/b.png");
    test::writeFile(folder_.file("fg/c.png"), "no picture");  // after another's portrait, which stays in the buffers
    background("bg/sea.png", QColor(20, 60, 200));
    run();
    EXPECT_EQ(made(), (Names{"bsea.png"}));
    ASSERT_EQ(alerts_.all.size(), 2u);
    EXPECT_TRUE(alerts_.all[0].starts_with("Cound not load file: a.png, check your file permissions"));
    EXPECT_TRUE(alerts_.all[1].starts_with("Cound not load file: c.png, check your file permissions"));
}

// The state of a job may bring another size. The buffers hold the picture before, of the old size, until the job's is

// made.

TEST_F(BatchEngineTest, SubfoldersAreNamedLikeTheirBackgroundAndStrayPicturesAreRefusedOnce) {
    settings_.bUseBackgroundSubfolders = true;
    for (const char* name : {"sea", "wood", "nowhere"})
        fs::create_directory(folder_.path() / "fg" / name);
    portrait("fg/sea/anna.png");
    portrait("fg/wood/anna.png", QColor(150, 40, 160));
    portrait("fg/nowhere/cora.png");
    portrait("fg/stray.png");
    portrait("fg/stray2.png");
    background("bg/sea.png", QColor(1, 2, 3));
    background("bg/sea.wide.png", QColor(20, 60, 200));  // both are called sea: the last one wins
    background("bg/wood.png", QColor(120, 90, 40));
    run();
    EXPECT_EQ(made(), (Names{"annasea.wide.png", "annawood.png"}));
    EXPECT_EQ(corner("out/annasea.wide.png"), QColor(20, 60, 200));
    EXPECT_GT(middle("out/annawood.png").blue(), middle("out/annasea.wide.png").blue() + 60);
    ASSERT_EQ(alerts_.all.size(), 1u);
    EXPECT_NE(alerts_.all[0].find("stray.png"), std::string::npos);
    EXPECT_EQ(panel_.counts, "5/2");
}

// A watch looks ten times a second, on the thread that answers the sliders.

TEST_F(BatchEngineTest, FoldersAndChoicesAreKeptAndTheHistoryMovesWithTheForegrounds) {
    portrait("fg/anna.png");
    panel_.chosen = folder_.file("bg");
    engine().chooseBatchForegroundFolder();
    EXPECT_EQ(*engine().nextBatchForegroundFile.sHistoryFileName, folder_.file("bg/ForegroundHistory.dat"));
    panel_.chosen = folder_.file("qlx");
    engine().chooseBatchOutputFolder();
    EXPECT_EQ(*engine().nextBatchForegroundFile.sHistoryFileName, folder_.file("bg/ForegroundHistory.dat"));
    panel_.chosen = std::nullopt;
    engine().chooseBatchBackgroundFolder();
    engine().clearBatchQLXFolder();
    engine().changeBatchOutputType("3");
    engine().changeBatchOutputType("7");
    engine().changeBatchOutputStyle("2");
    engine().changeBatchCheckbox(true, true);
    QLXInfo saved;
    ASSERT_EQ(LoadQLXFile(saved), "");
    EXPECT_EQ(saved.sLastBatchForeground.load(), folder_.file("bg"));
    EXPECT_EQ(saved.sLastBatchBackground.load(), folder_.file("bg"));
    EXPECT_EQ(saved.sLastBatchOutput.load(), folder_.file("qlx"));
    EXPECT_TRUE(saved.sLastBatchQLX.empty());
    EXPECT_EQ(saved.iLastBatchLastOutputFileType, 3);
    EXPECT_EQ(saved.iLastBatchLastOutputStyle, 2);
    EXPECT_TRUE(saved.bLastBatchCheckForNewFiles && saved.bLastBatchOutputLowResolution);
}

TEST_F(BatchEngineTest, AListFileIsRunJobByJobAndMovedAway) {
    settings_.bUseBatchXMLFile = true;
    portrait("fg/anna.png");
    background("bg/sea.png", QColor(20, 60, 200));
    const std::string fg = folder_.file("fg/anna.png"), bg = folder_.file("bg/sea.png");
    info_->pForegroundBitmapInfo->sSourceImageFullPath = fg;  // of the job that names none
    info_->pBackgroundBitmapInfo->sSourceImageFullPath = bg;
    test::writeFile(
        folder_.file("fg/jobs.XML"),
        "<images>\n<image>\n <foreground>" + fg + "</foreground>\n<background>" + bg +
            "</background>\r\n<outputfiletype>outputpng</outputfiletype>\n</image>\n<image>\n<outputfolder>" +
            folder_.file("deep/er/named.x") +
            "</outputfolder>\n<outputnamestyle>outputfolderhasname</outputnamestyle>\n"
            "<outputtransparency>YES</outputtransparency>\n</image>\n");
    run();
    EXPECT_EQ(made(), Names{"annasea.png"});
    EXPECT_EQ(made("deep/er"), Names{"named.png"});
    EXPECT_TRUE(info_->bOutputTransparency);
    EXPECT_FALSE(fs::exists(folder_.path() / "fg" / "jobs.XML"));
    EXPECT_TRUE(fs::exists(folder_.path() / "fg" / "SavedXML" / "jobs.XML"));
    EXPECT_EQ(panel_.counts, "2/2");
    EXPECT_FALSE(fs::exists(folder_.path() / "out" / "ForegroundHistory.dat"));
    // A later list waits until the program starts again.
    test::writeFile(folder_.file("fg/later.xml"), "<image>\n</image>\n");
    run();
    EXPECT_TRUE(fs::exists(folder_.path() / "fg" / "later.xml"));
}

TEST_F(BatchEngineTest, JobsBeyondTheRoomOfTheListAreRefusedWithOneMessage) {
    settings_.bUseBatchXMLFile = true;
    std::string text;
    for (int i = 0; i < 503; ++i)
        text += "<image>\n<outputnamestyle>numberfiles</outputnamestyle>\n</image>\n";
    test::writeFile(folder_.file("fg/jobs.xml"), text);
    EXPECT_EQ(engine().ComputeNumberOfFilesInBatchUsingXMLFile(), 500);
    EXPECT_EQ(engine().myBatchElements[499].sOutputFile, folder_.file("out/BatchFile500"));
    EXPECT_EQ(engine().iNextFileNumber, 501);
    ASSERT_EQ(alerts_.all.size(), 1u);
    EXPECT_NE(alerts_.all[0].find("the other 3 are not"), std::string::npos);
    EXPECT_TRUE(engine().bBatchProcessingStopped);
}

}  // namespace
}  // namespace tavrin
