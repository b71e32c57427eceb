// What a panel shows of a batch beside its counts: what a run would make, and what it could not, once more.
#include <fstream>

#include "batch/BatchScene.h"
#include "folders/HistoryFile.h"

namespace fs = std::filesystem;

namespace tavrin {
namespace {

using test::Names;

struct Listener : BatchInterface {
    void batchJobEnded(const BatchOutcome& outcome) override { ended.push_back(outcome); }
    std::vector<BatchOutcome> ended;
};

class BatchAgainTest : public test::BatchScene {
  protected:
    /// An engine that tells the listener, served as the program does.
    void start() {
        loop_.runUntilIdle();
        engine_ = std::make_unique<BatchEngine>(*info_, &listener_);
        engine_->now = [this] { return BatchEngine::Time(std::chrono::seconds(++looks_)); };
        loop_.addIdleJob(*engine_);
    }
    Names planned(std::size_t most = 100) {
        Names pictures;
        for (const PlannedPicture& one : engine().outlook(most).first)
            pictures.push_back(one.picture.substr(folder_.file("out").size() + 1));
        return pictures;
    }

    Listener listener_;
};

TEST_F(BatchAgainTest, AnOutlookIsWhatTheRunMakesAndMakesNothingItself) {
    for (const char* name : {"fg/anna.png", "fg/ben.png"})
        portrait(name);
    for (const char* name : {"bg/sea.png", "bg/wood.png"})
        background(name, QColor(20, 60, 200));
    start();
    EXPECT_EQ(planned(), (Names{"annasea", "bensea", "annawood", "benwood"}));
    EXPECT_EQ(engine().outlook(1).left, 4);
    EXPECT_EQ(planned(1), Names{"annasea"});
    settings_.iLastBatchLastOutputStyle = kSplitIntoFolders;
    EXPECT_EQ(planned(), (Names{"sea/anna", "sea/ben", "wood/anna", "wood/ben"}));
    EXPECT_EQ(made(), Names{}) << "not even folders";
    EXPECT_FALSE(fs::exists(folder_.file("out/sea")));
    settings_.iLastBatchLastOutputStyle = kNumberFiles;
    portrait("out/BatchFile2.png");
    EXPECT_EQ(planned(), (Names{"BatchFile1", "BatchFile3", "BatchFile4", "BatchFile5"}));
    run();
    EXPECT_EQ(made(),
              (Names{"BatchFile1.png", "BatchFile2.png", "BatchFile3.png", "BatchFile4.png", "BatchFile5.png"}));
    EXPECT_EQ(engine().outlook(9).left, 0) << "all of it was made";
    fs::remove(folder_.file("bg/wood.png"));
    fs::remove(folder_.file("fg/ben.png"));
    engine().clickedButtonClearBatchHistory();
    EXPECT_EQ(engine().outlook(9).left, 0) << "one single combination counts as none";
}

TEST_F(BatchAgainTest, WhatFailedIsToldAndMadeOnceItsCauseIsGone) {
    portrait("fg/anna.png");
    std::ofstream(folder_.file("fg/ben.png")) << "no picture";
    portrait("fg/cleo.png", QColor(150, 40, 160));
    background("bg/sea.png", QColor(20, 60, 200));
    start();
    run();
    ASSERT_EQ(listener_.ended.size(), 3u);
    EXPECT_TRUE(listener_.ended[0].saved);
    EXPECT_EQ(listener_.ended[0].picture, folder_.file("out/annasea.png"));
    EXPECT_FALSE(listener_.ended[1].saved);
    EXPECT_EQ(listener_.ended[1].foreground, "ben.png");
    EXPECT_NE(listener_.ended[1].problem, "");
    EXPECT_EQ(made(), (Names{"annasea.png", "cleosea.png"}));
    EXPECT_EQ(engine().outlook(9).left, 0) << "a plain start would leave it out";

    portrait("fg/ben.png");
    engine().clickedButtonBatchAgain();
    turn();
    EXPECT_TRUE(engine().bBatchProcessingStopped);
    ASSERT_EQ(listener_.ended.size(), 4u);
    EXPECT_TRUE(listener_.ended[3].saved);
    EXPECT_EQ(made(), (Names{"annasea.png", "bensea.png", "cleosea.png"}));
    EXPECT_EQ(corner("out/bensea.png"), QColor(20, 60, 200));
    EXPECT_EQ(readHistory(folder_.file("out/ForegroundHistory.dat")).value_or(Names()).size(), 3u) << "each key once";
    engine().clickedButtonBatchAgain();
    turn();
    EXPECT_EQ(listener_.ended.size(), 4u) << "nothing is left to try";
}

TEST_F(BatchAgainTest, AJobOfAListIsTakenAgainWithItsOwnTypeAndName) {
    std::ofstream(folder_.file("fg/ben.png")) << "no picture";
    portrait("fg/anna.png");
    background("bg/sea.png", QColor(20, 60, 200));
    std::ofstream list(folder_.file("fg/jobs.xml"));
    for (const char* name : {"ben", "anna"}) {
        list << "<image>\n<foreground>" << folder_.file("fg/") << name << ".png</foreground>\n<background>"
             << folder_.file("bg/sea.png") << "</background>\n<outputfiletype>"
             << (*name == 'b' ? "outputtif" : "outputpng") << "</outputfiletype>\n</image>\n";
    }
    list.close();
    settings_.bUseBatchXMLFile = true;
    start();
    EXPECT_EQ(planned(), (Names{"bensea", "annasea"}));
    EXPECT_EQ(engine().listFile(), folder_.file("fg/SavedXML/jobs.xml"));
    run();
    EXPECT_EQ(made(), Names{"annasea.png"});
    portrait("fg/ben.png");
    engine().clickedButtonBatchAgain();
    turn();
    EXPECT_EQ(made(), (Names{"annasea.png", "bensea.tif"}));
}

TEST_F(BatchAgainTest, APictureThatCannotBeWrittenFailsAndTheRunGoesOn) {
    portrait("fg/anna.png");
    portrait("fg/ben.png");
    background("bg/sea.png", QColor(20, 60, 200));
    fs::create_directory(folder_.file("out/annasea.png"));  // in its place
    start();
    run();
    ASSERT_EQ(listener_.ended.size(), 2u);
    EXPECT_FALSE(listener_.ended[0].saved);
    EXPECT_EQ(listener_.ended[0].problem, "") << "the alert has told it";
    EXPECT_FALSE(alerts_.all.empty());
    EXPECT_TRUE(listener_.ended[1].saved);
    fs::remove(folder_.file("out/annasea.png"));
    engine().clickedButtonBatchAgain();
    turn();
    EXPECT_EQ(made(), (Names{"annasea.png", "bensea.png"}));
}

}  // namespace
}  // namespace tavrin
