#pragma once

#include <filesystem>
#include <gtest/gtest.h>
#include <memory>
#include <string>

#include <QTest>

#include "core/files/Places.h"
#include "session/OutputSizes.h"
#include "support/Pictures.h"
#include "support/TestData.h"
#include "ui/Eventually.h"
#include "ui/frame/MainWindow.h"

namespace tavrin::test {

/// A main window on a drawn portrait and background, in an account of its own.
class WindowTest : public testing::Test {
  protected:
    void SetUp() override {
        Places::current().setSharedFolder(folder_.file("data/Tavrin/"));
        std::filesystem::create_directories(Places::current().xmlFolder());
        chooseSizeByName(*info_, "test");
        info_->pForegroundBitmapInfo->sSourceImageFullPath = portrait_;
        info_->pBackgroundBitmapInfo->sSourceImageFullPath = background_;
    }
    void TearDown() override {
        window_.reset();
        Places::current().setSharedFolder(shared_);
    }
    /// Another window, on the screen and with its picture.
    void open(QSize size = {1200, 800}) {
        window_.reset();
        window_ = std::make_unique<MainWindow>(*info_);
        window_->resize(size);
        window_->show();
        ASSERT_TRUE(becomesActive(window_.get()));
        ASSERT_TRUE(waitForPicture());
    }
    /// The finished picture is shown.
    bool waitForPicture() {
        const bool came = eventually(
            [&] { return window_->view()->isFull() && info_->iCurrentThreadCount > info_->iNewThreadCount; });
        // The rows of the key may have been shown while what follows it was made: its rows are on their way.
        QCoreApplication::sendPostedEvents();
        return came;
    }
    QAction* action(const char* id) { return window_->commands().action(id); }
    SettingEditor& editor() { return window_->binder().editor(); }

    const std::string shared_ = Places::current().sharedFolder();
    TempFolder folder_;
    const std::string portrait_ = savePng(discOnScreen(240, 300), folder_.file("anna.png"));
    const std::string background_ = savePng(noisePicture(240, 300, 9), folder_.file("bg.png"));
    std::unique_ptr<SystemInfo> info_ = stateForOutput(240, 300);
    std::unique_ptr<MainWindow> window_;
};

}  // namespace tavrin::test
