// What a gallery sends through the window is nobody's work: it is neither kept, nor saved, nor a step to take back.
#include <filesystem>
#include <gtest/gtest.h>
#include <set>

#include <QProgressDialog>
#include <QPushButton>

#include "session/RecipeStore.h"
#include "ui/WindowTest.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class GalleryKeepingTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        qputenv("TAVRIN_WEB_PAGES", "none");
        fs::create_directories(Places::current().tempFilesFolder());
        fs::create_directory(folder_.file("pick"));
        info_->oQLXInfo->sPickDirectory = folder_.file("pick");
        open();
        window_->binder().run("White", [](SettingEditor& one) { one.set("combined.sliderWhiteBalance", "91"); });
        ASSERT_TRUE(waitForPicture());
    }
    /// The values of a setting in the recipes that the next start would offer.
    std::set<std::string> kept(const std::string& setting) {
        std::set<std::string> values;
        for (const auto& entry : fs::directory_iterator(Places::current().recoveryFolder())) {
            if (entry.path().extension() != ".recipe") continue;
            if (const auto recipe = readRecipeFile(entry.path().string())) {
                for (const auto& [name, value] : recipe->settings)
                    if (name == setting) values.insert(value);
            }
        }
        return values;
    }
};

TEST_F(GalleryKeepingTest, AKillAtAnyMomentLeavesThePersonsOwnRecipe) {
    for (int i = 0; i < 25; ++i)
        test::savePng(test::noisePicture(240, 300, static_cast<unsigned>(i)),
                      folder_.file("pick/" + std::to_string(i) + ".png"));
    ASSERT_TRUE(test::eventually([&] { return kept("combined.sliderWhiteBalance") == std::set<std::string>{"91"}; }));
    std::set<std::string> seen;
    action("showGallery")->trigger();
    EXPECT_FALSE(window_->galleries().engine().backgrounds().size());
    while (window_->galleries().isRunning()) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        seen.merge(kept("background.sSourceImageFullPath"));
    }
    EXPECT_EQ(seen, std::set<std::string>{background_});
    EXPECT_EQ(window_->galleries().engine().backgrounds().size(), 25u);
    ASSERT_TRUE(waitForPicture());
    EXPECT_EQ(editor().steps().size(), 1u);

    action("showAdjustGallery")->trigger();
    ASSERT_TRUE(test::eventually([&] { return info_->iNextAdjGalleryItem > 0 || info_->bHaveAdjGallery; }));
    window_->endFromOutside();
    EXPECT_EQ(kept("combined.sliderWhiteBalance"), std::set<std::string>{"91"});
}

TEST_F(GalleryKeepingTest, StoppedItLeavesNoPageAndEverythingAsItWas) {
    action("showAdjustGallery")->trigger();
    auto* progress = window_->findChild<QProgressDialog*>("galleryProgress");
    ASSERT_TRUE(progress && progress->isVisible());
    progress->findChild<QPushButton*>()->click();
    EXPECT_FALSE(window_->galleries().isRunning());
    ASSERT_TRUE(waitForPicture());
    EXPECT_FALSE(info_->bHaveAdjGallery || info_->bProcessingAdjGallery || info_->bSkipHiRes);
    EXPECT_EQ(editor().value("combined.sliderWhiteBalance"), "91");
    window_->binder().undo();
    EXPECT_NE(editor().value("combined.sliderWhiteBalance"), "91") << "the history goes on";
}

}  // namespace
}  // namespace tavrin
