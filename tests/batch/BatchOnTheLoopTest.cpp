#include <thread>

#include "batch/BatchScene.h"
#include "formats/ImageState.h"
#include "pipeline/SaveImage.h"
#include "session/OutputSizes.h"

namespace tavrin {
namespace {

using BatchOnTheLoopTest = test::BatchScene;

/// What a person does at the window while a batch runs.
class Hand {
  public:
    Hand(SystemInfo& info, CombineThread& loop, const test::TempFolder& folder)
        : info_(info), loop_(loop), folder_(folder) {}

    void moveSlider(int value) {
        info_.pForegroundBitmapInfo->iBrightness = value;
        info_.StartUpdate();
    }
    void savePicture() {
        const std::string path = folder_.file("hand" + std::to_string(asked_++) + ".png");
        loop_.edit([this, path]() -> std::vector<ChangedRows> {
            if (saveImageToDisk(info_, path, kPngFile, 1)) saved.push_back(path);
            return {};
        });
    }
    void saveState() {
        loop_.edit([this]() -> std::vector<ChangedRows> {
            EXPECT_EQ(saveImageStateToXML(info_, folder_.file("hand.qlx")), "");
            return {};
        });
    }

    test::Names saved;  ///< for the loop's thread, until it has ended

  private:
    SystemInfo& info_;
    CombineThread& loop_;
    const test::TempFolder& folder_;
    int asked_ = 0;
};

// For the thread checker above all: two sizes, so that the batch replaces the buffers again and again.
TEST_F(BatchOnTheLoopTest, ABatchAHeldSliderAndSavesGetOnWithEachOther) {
    for (const char* name : {"fg/a.png", "fg/b.png", "fg/c.png", "fg/d.png"})
        portrait(name);
    background("bg/sea.png", QColor(20, 60, 200));
    const auto other = test::stateForOutput(60, 40, 40);
    other->pBackgroundBitmapInfo->sSourceImageFullPath = folder_.file("bg/sea.png");
    chooseOwnSize(*other, "postcard", 1.5, 1.0, 100);
    ASSERT_EQ(saveImageStateToXML(*other, folder_.file("qlx/large.qlx")), "");
    chooseOwnSize(*other, "stamp", 0.5, 1.0, 100);
    ASSERT_EQ(saveImageStateToXML(*other, folder_.file("qlx/small.qlx")), "");
    engine().clickedButtonStartBatch();

    auto loop = std::make_unique<CombineThread>(*info_);
    Hand hand(*info_, *loop, folder_);
    loop->addIdleJob(engine());
    loop->StartMainThread();
    for (int i = 0; i < 500 && !engine().bBatchProcessingStopped; ++i) {
        for (int value = 0; value < 8; ++value) {
            hand.moveSlider(value);
            if (value % 3 == 0) hand.savePicture();
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        }
        engine().ShowBatchStatus();
        for (int wait = 0; wait < 2000 && info_->iCurrentThreadCount <= info_->iNewThreadCount; ++wait)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        hand.savePicture();  // of a picture that rests, while the batch goes on to the next
        hand.saveState();
    }
    loop.reset();
    EXPECT_TRUE(engine().bBatchProcessingStopped);
    EXPECT_EQ(made().size(), 8u) << "four portraits in two sizes";
    EXPECT_FALSE(hand.saved.empty());
    for (const std::string& path : hand.saved) {
        const QImage picture(QString::fromStdString(path));
        EXPECT_EQ(picture.pixelColor(1, 1), QColor(20, 60, 200)) << path;
    }
}

}  // namespace
}  // namespace tavrin
