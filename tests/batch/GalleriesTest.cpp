// The galleries: what their pages hold, what a run leaves, and what a choice writes.
#include <algorithm>
#include <chrono>
#include <filesystem>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>

#include <QImage>

#include "batch/Galleries.h"
#include "batch/GalleryPresets.h"
#include "core/files/Places.h"
#include "core/state/SettingNames.h"
#include "pipeline/CombineThread.h"
#include "session/Sources.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin {
namespace {

namespace fs = std::filesystem;

class GalleriesTest : public testing::Test, public GalleryInterface, public Interface {
  protected:
    GalleriesTest() {
        places_.setSharedFolder(folder_.file("home/"));
        fs::create_directories(places_.tempFilesFolder());
        fs::create_directory(folder_.file("pick"));
        info_->pForegroundBitmapInfo->sSourceImageFullPath =
            test::savePng(test::discOnScreen(120, 150), folder_.file("anna.png"));
        info_->pBackgroundBitmapInfo->sSourceImageFullPath = background("bg.png", QColor(30, 60, 200));
        info_->oQLXInfo->sPickDirectory = folder_.file("pick");
        info_->pInterface = this;
        loop_.addIdleJob(galleries_);
        loop_.runUntilIdle();
    }
    ~GalleriesTest() override { places_.setSharedFolder(home_); }

    void galleryEnded(const std::string& problem) override {
        const std::lock_guard lock(mutex_);
        problems_.push_back(problem);
    }
    void showGalleryViewer() override { shown_.push_back(fs::path(info_->sGalleryToViewPath.load()).filename()); }
    void showAlert(const std::string&, const std::string& reason) override { alerts_.push_back(reason); }

    std::string background(const std::string& name, QColor color) {
        QImage image(120, 150, QImage::Format_RGB888);
        image.fill(color);
        return test::savePng(image, folder_.file(name));
    }
    void run(bool (Galleries::*make)(int)) {
        EXPECT_TRUE((galleries_.*make)(0));
        while (galleries_.isOn())
            loop_.iterate();
        loop_.runUntilIdle();
    }
    /// Until the first alternatives are in force.
    void begin(bool (Galleries::*make)(int)) {
        EXPECT_TRUE((galleries_.*make)(0));
        while (info_->bProcessingAdjGallery ? info_->iNextAdjGalleryItem < 1 : info_->iNextGalleryItem < 0)
            loop_.iterate();
        ASSERT_TRUE(galleries_.isOn());
    }
    std::string made(const std::string& name) const { return places_.tempFilesFolder() + name; }
    QImage picture(const std::string& name) const { return QImage(QString::fromStdString(made(name))); }
    QColor corner(const std::string& name) const { return picture(name).pixelColor(1, 1); }
    std::string present() const { return info_->pBackgroundBitmapInfo->sSourceImageFullPath; }
    QImage combined(Resolution resolution) const {
        const PassGeometry size = info_->geometry(resolution);
        return QImage(info_->pCombinedBitmapInfo->bytes(resolution), size.width, size.height, QImage::Format_RGBA8888)
            .copy();
    }
    QImage fullPicture() const { return combined(Resolution::full); }
    /// All that a state file keeps.
    auto settings() const { return listFields(*info_); }

    test::TempFolder folder_;
    Places& places_ = Places::current();
    const std::string home_ = places_.sharedFolder();
    std::unique_ptr<SystemInfo> info_ = test::stateForOutput(120, 150, 40);
    Galleries galleries_{*info_, this};
    CombineThread loop_{*info_};
    std::mutex mutex_;
    std::vector<std::string> problems_, shown_, alerts_;
};

TEST_F(GalleriesTest, TwelveAdjustmentsStandOnThePageAndEverythingIsAsItWas) {
    BitmapInfo& combined = *info_->pCombinedBitmapInfo;
    combined.sliderTransparentcyAdjustment = 90;
    combined.sliderWhiteBalance = 95;
    info_->bShowBright = true;
    info_->StartUpdate();
    loop_.runUntilIdle();
    const QImage before = fullPicture();
    const auto settings = this->settings();
    run(&Galleries::showAdjustGallery);
    EXPECT_EQ(shown_, std::vector<std::string>{"AdjGallery.htm"});
    EXPECT_EQ(problems_, std::vector<std::string>{""});
    EXPECT_TRUE(alerts_.empty());
    std::string page =
        "<html><HEAD><meta http-equiv=\"Pragma\" content=\"no-cache\"><META HTTP-EQUIV=\"Expires\" "
        "CONTENT=\"-1\"></HEAD> <body><table border=3>";
    for (int i = 0; i < 12; ++i) {
        const std::string number = std::to_string(i);
        page += i % 3 == 0 ? "</tr><tr><td>" : "<td>";
        page += "<img width=300 height=400 src=\"GalleryAdjFile" + number + ".jpg\"></br><a href=\"" + number +
                "\"><input type=\"button\" value=\"Select\" /></a></td>";
    }
    EXPECT_EQ(test::readFile(made("AdjGallery.htm")), page + "</table></body></html>");
    EXPECT_EQ(picture("GalleryAdjFile11.jpg").size(),
              QSize(info_->iOutputPixelLowResWidth, info_->iOutputPixelLowResHeight));
    EXPECT_NE(picture("GalleryAdjFile2.jpg"), picture("GalleryAdjFile10.jpg")) << "blue logic keeps the green";
    EXPECT_EQ(this->settings(), settings);
    EXPECT_EQ(fullPicture(), before);
    EXPECT_FALSE(info_->bSkipHiRes);
    EXPECT_FALSE(info_->bShowLowRes);
    EXPECT_EQ(info_->iAdjGalleryCounter, 1);

    fs::remove(made("GalleryAdjFile3.jpg"));
    run(&Galleries::showAdjustGallery);
    EXPECT_EQ(shown_.size(), 2u);
    EXPECT_FALSE(fs::exists(made("GalleryAdjFile3.jpg"))) << "the page that is there is shown without a run";
    openBackground(*info_, folder_.file("bg.png"));
    EXPECT_TRUE(info_->bHaveAdjGallery);
    openPortrait(*info_, folder_.file("anna.png"));
    EXPECT_FALSE(info_->bHaveAdjGallery);
}

TEST_F(GalleriesTest, TheChoiceGivesThePictureThatWasShown) {
    run(&Galleries::showAdjustGallery);
    for (const int item : {10, 3, 11, 0}) {
        SelectAdjustGallerSettings(*info_, item);
        info_->StartUpdate();
        loop_.runUntilIdle();
        const QImage shown = picture("GalleryAdjFile" + std::to_string(item) + ".jpg");
        const QImage chosen = combined(Resolution::preview);
        ASSERT_EQ(shown.size(), chosen.size());
        double sum = 0;
        for (int y = 0; y < shown.height(); ++y) {
            for (int x = 0; x < shown.width(); ++x)
                sum += std::abs(qGreen(shown.pixel(x, y)) - qGreen(chosen.pixel(x, y)));
        }
        EXPECT_LT(sum / (shown.width() * shown.height()), 2.0) << item << " but for the JPEG";
    }
    BitmapInfo& combined = *info_->pCombinedBitmapInfo;
    SelectAdjustGallerSettings(*info_, 8);
    EXPECT_EQ(combined.sliderTransparentcyAdjustment, 120);
    EXPECT_EQ(combined.sliderRestoredDarkAreas, 25);
    SelectAdjustGallerSettings(*info_, 10);
    EXPECT_TRUE(info_->bUseBlueLogic);
    EXPECT_FALSE(combined.bHaveBaseGreen);
    EXPECT_EQ(combined.sliderTransparentcyAdjustment, 120) << "no other item sets it";
    SelectAdjustGallerSettings(*info_, 99);
    EXPECT_FALSE(info_->bUseBlueLogic);
    EXPECT_EQ(combined.sliderRestoredDarkAreas, 65);
    EXPECT_EQ(combined.sliderAdjustBaseGreen, 100);
}

TEST_F(GalleriesTest, EveryPhotoOfThePickFolderIsABackgroundAndTheOldOneComesBack) {
    background("pick/red.png", QColor(220, 20, 20));
    background("pick/blue.PNG", QColor(20, 20, 220));
    test::writeFile(folder_.file("pick/broken.jpg"), "no picture");
    test::writeFile(folder_.file("pick/notes.txt"), "no picture");
    const QImage before = fullPicture();
    run(&Galleries::showGallery);
    EXPECT_EQ(shown_, std::vector<std::string>{"Gallery.htm"});
    const std::vector<std::string> names = galleries_.backgrounds();
    ASSERT_EQ(names.size(), 3u);
    const std::string page = test::readFile(made("Gallery.htm"));
    EXPECT_NE(page.find("<img width=250 height=350 src=\"GalleryFile0.jpg\"></br><a href=\"0\">"), std::string::npos);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const QColor shown = corner("GalleryFile" + std::to_string(i) + ".jpg");
        EXPECT_TRUE(shown.isValid()) << "also of the broken one, which has the picture before it";
        EXPECT_TRUE(!names[i].ends_with("red.png") || shown.red() > 180);
        EXPECT_TRUE(!names[i].ends_with("blue.PNG") || shown.blue() > 180);
    }
    EXPECT_EQ(alerts_.size(), 1u) << "of the picture that cannot be read, and no other";
    EXPECT_EQ(present(), folder_.file("bg.png"));
    EXPECT_EQ(fullPicture(), before);

    info_->bHaveGallery = false;
    info_->oQLXInfo->sPickDirectory = "";
    run(&Galleries::showGallery);
    EXPECT_EQ(test::readFile(made("Gallery.htm")),
              "<html><HEAD><meta http-equiv=\"Pragma\" content=\"no-cache\"><META HTTP-EQUIV=\"Expires\" "
              "CONTENT=\"-1\"></HEAD> <body><table border=3></table></body></html>");
    EXPECT_TRUE(galleries_.backgrounds().empty());
    EXPECT_EQ(present(), folder_.file("bg.png"));
}

TEST_F(GalleriesTest, OneGalleryAtATimeAndOneThatIsLeftLeavesNothing) {
    background("pick/red.png", QColor(220, 20, 20));
    background("pick/blue.png", QColor(20, 20, 220));
    const auto settings = this->settings();
    begin(&Galleries::showAdjustGallery);
    galleries_.showGallery();
    EXPECT_FALSE(info_->bProcessingGallery);
    galleries_.showAdjustGallery();
    EXPECT_GT(info_->iNextAdjGalleryItem, 0) << "it does not begin anew, with an alternative for what is put back";
    EXPECT_NE(this->settings(), settings);
    EXPECT_TRUE(galleries_.leave());
    EXPECT_EQ(this->settings(), settings);
    EXPECT_FALSE(galleries_.isOn() || info_->bHaveAdjGallery || info_->bSkipHiRes);
    EXPECT_FALSE(galleries_.leave());
    const int late = galleries_.ask();
    galleries_.leave();
    EXPECT_FALSE(galleries_.showGallery(late)) << "what was asked for before does not begin behind it";
    EXPECT_FALSE(galleries_.isOn());

    begin(&Galleries::showGallery);
    EXPECT_NE(present(), folder_.file("bg.png"));
    galleries_.leave();
    EXPECT_EQ(present(), folder_.file("bg.png"));
    begin(&Galleries::showGallery);
    setBackground(*info_, background("chosen.png", QColor(9, 9, 9)));
    galleries_.leave();
    EXPECT_EQ(present(), folder_.file("chosen.png")) << "a person chose it meanwhile";
}

// For the thread checker above all: what is opened at the window ends a run at any moment.
TEST_F(GalleriesTest, ARunIsLeftFromAnotherThreadAtAnyMoment) {
    background("pick/red.png", QColor(220, 20, 20));
    background("pick/blue.png", QColor(20, 20, 220));
    const auto settings = this->settings();
    auto loop = std::make_unique<CombineThread>(*info_);
    loop->addIdleJob(galleries_);
    loop->StartMainThread();
    for (int round = 0; round < 12; ++round) {
        loop->edit([this, round]() -> std::vector<ChangedRows> {
            round % 2 ? galleries_.showGallery() : galleries_.showAdjustGallery();
            return {};
        });
        for (int wait = 0; wait < 2000 && !galleries_.isOn(); ++wait)
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        std::this_thread::sleep_for(std::chrono::milliseconds(7 * round));
        galleries_.leave();
        info_->bHaveGallery = info_->bHaveAdjGallery = false;
        EXPECT_FALSE(galleries_.isOn() || info_->bSkipHiRes);
        EXPECT_EQ(present(), folder_.file("bg.png"));
        info_->StartUpdate();
    }
    loop.reset();
    EXPECT_EQ(this->settings(), settings);
}

TEST_F(GalleriesTest, WhereNothingCanBeWrittenThatIsSaidAndTheSettingsComeBack) {
    const auto settings = this->settings();
    fs::create_directories(made("AdjGallery.htm/in the way"));
    run(&Galleries::showAdjustGallery);
    ASSERT_EQ(problems_.size(), 1u);
    EXPECT_NE(problems_[0].find("AdjGallery.htm"), std::string::npos);
    EXPECT_TRUE(shown_.empty());
    EXPECT_FALSE(galleries_.isOn() || info_->bHaveAdjGallery);
    EXPECT_EQ(this->settings(), settings);

    fs::remove_all(places_.tempFilesFolder());
    test::writeFile(folder_.file("home/TempFiles"), "no folder");
    run(&Galleries::showAdjustGallery);
    EXPECT_EQ(problems_.size(), 2u) << "nothing begins when the present settings cannot be kept";
    EXPECT_EQ(this->settings(), settings);
}

}  // namespace
}  // namespace tavrin
