// The galleries in their window: both are made, and a click takes what it shows.
#include <filesystem>
#include <gtest/gtest.h>

#include <QProgressDialog>
#include <QTest>
#include <QVariant>
#include <QtWebEngineWidgets/QWebEngineView>

#include "ui/WindowTest.h"

namespace tavrin {
namespace {

class GalleryTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        std::filesystem::create_directories(Places::current().tempFilesFolder());
        std::filesystem::create_directory(folder_.file("pick"));
        info_->oQLXInfo->sPickDirectory = folder_.file("pick");
        open();
    }
    QWidget* panel() { return window_->findChild<QWidget*>("MyGalleryPanel"); }
    QWebEngineView* view() { return panel()->findChild<QWebEngineView*>(); }
    QVariant ask(const QString& script) {
        QVariant answer;
        bool came = false;
        view()->page()->runJavaScript(script, [&](const QVariant& value) {
            answer = value;
            came = true;
        });
        EXPECT_TRUE(test::eventually([&] { return came; }));
        return answer;
    }
    bool isShown(const QString& file) {
        return test::eventually([&] { return panel()->isVisible() && view()->url().fileName() == file; });
    }
    void click(int item) {
        const QVariantList place =
            ask(QString("(function(){ var e=document.querySelector('a[href=\"%1\"] input'); e.scrollIntoView();"
                        " var r=e.getBoundingClientRect(); return [r.x+r.width/2, r.y+r.height/2]; })()")
                    .arg(item))
                .toList();
        ASSERT_EQ(place.size(), 2);
        QTest::mouseClick(view()->focusProxy(), Qt::LeftButton, {},
                          {static_cast<int>(place[0].toDouble()), static_cast<int>(place[1].toDouble())});
    }
};

TEST_F(GalleryTest, AClickTakesTheAdjustmentAsAStepThatCanBeTakenBack) {
    const std::string before = editor().value("combined.sliderAdjustBaseGreen");
    action("showAdjustGallery")->trigger();
    ASSERT_TRUE(window_->galleries().isRunning());
    EXPECT_TRUE(window_->findChild<QProgressDialog*>("galleryProgress")->isVisible());
    ASSERT_TRUE(isShown("AdjGallery.htm"));
    EXPECT_FALSE(window_->galleries().isRunning());
    EXPECT_TRUE(test::eventually([&] {
        return ask("Array.from(document.images).filter(i => i.complete && i.naturalWidth > 0).length").toInt() == 12;
    }));
    ASSERT_TRUE(waitForPicture());
    EXPECT_FALSE(editor().isUnsaved()) << "making it is no change";
    click(7);
    EXPECT_TRUE(test::eventually([&] { return !panel()->isVisible(); }));
    EXPECT_EQ(editor().value("combined.sliderAdjustBaseGreen"), "120");
    EXPECT_EQ(editor().value("combined.sliderRestoredDarkAreas"), "25");
    ASSERT_EQ(editor().steps().size(), 1u);
    EXPECT_TRUE(waitForPicture());
    window_->binder().undo();
    EXPECT_EQ(editor().value("combined.sliderAdjustBaseGreen"), before);
}

TEST_F(GalleryTest, AClickTakesTheBackgroundAndThePagesOfToday) {
    test::savePng(test::noisePicture(240, 300, 3), folder_.file("pick/a.png"));
    action("showGallery")->trigger();
    ASSERT_TRUE(isShown("Gallery.htm"));
    EXPECT_EQ(ask("document.images.length").toInt(), 1);
    click(0);
    EXPECT_TRUE(test::eventually(
        [&] { return info_->pBackgroundBitmapInfo->sSourceImageFullPath.load() == folder_.file("pick/a.png"); }));
    EXPECT_FALSE(panel()->isVisible());
    ASSERT_TRUE(waitForPicture());

    // Of another portrait the same page has other pictures, and never those of before.
    test::savePng(test::noisePicture(240, 300, 4), folder_.file("pick/b.png"));
    window_->openForeground(QString::fromStdString(portrait_));
    ASSERT_TRUE(waitForPicture());
    action("showGallery")->trigger();
    ASSERT_TRUE(isShown("Gallery.htm"));
    EXPECT_TRUE(test::eventually([&] { return ask("document.images.length").toInt() == 2; }));
    for (const char* to : {"99", "-1", "x", "AdjGallery.html"})
        ask(QString("window.location.href='%1'; 1").arg(to));
    QTest::qWait(100);  // nothing may come
    EXPECT_TRUE(panel()->isVisible());
}

TEST_F(GalleryTest, WhatIsOpenedMeanwhileEndsItWithThePersonsOwnSettings) {
    editor().set("combined.sliderWhiteBalance", "91");
    const std::string other = test::savePng(test::discOnScreen(240, 300), folder_.file("ben.png"));
    action("showAdjustGallery")->trigger();
    ASSERT_TRUE(test::eventually([&] { return info_->iNextAdjGalleryItem > 0 || info_->bHaveAdjGallery; }));
    window_->openForeground(QString::fromStdString(other));
    EXPECT_FALSE(window_->galleries().isRunning());
    ASSERT_TRUE(waitForPicture());
    EXPECT_EQ(editor().value("combined.sliderWhiteBalance"), "91");
    EXPECT_EQ(info_->pForegroundBitmapInfo->sSourceImageFullPath.load(), other);
    EXPECT_FALSE(info_->bSkipHiRes);
}

}  // namespace
}  // namespace tavrin
