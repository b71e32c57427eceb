#pragma once

#include <algorithm>
#include <atomic>
#include <filesystem>
#include <gtest/gtest.h>

#include "batch/BatchEngine.h"
#include "core/files/Places.h"
#include "folders/BatchNames.h"
#include "pipeline/CombineThread.h"
#include "support/Pictures.h"
#include "support/TestData.h"

namespace tavrin::test {

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

struct Panel : BatchInterface {
    void showBatchCounts(const std::string& files, const std::string& processed) override {
        counts = files + "/" + processed;
    }
    void enableBatchStart(bool on) override { start = on; }
    void enableBatchStop(bool on) override { stop = on; }
    std::optional<std::string> FindFolder() override { return chosen; }

    std::string counts;
    bool start = true, stop = false;
    std::optional<std::string> chosen;
};

struct Alerts : Interface {
    void showAlert(const std::string& message, const std::string& reason) override {
        all.push_back(message + "|" + reason);
    }
    Names all;
};

/// Folders of a batch, and an engine over them that a loop without a thread serves.
class BatchScene : public testing::Test {
  protected:
    BatchScene() {
        for (const char* name : {"fg", "bg", "qlx", "out"})
            fs::create_directory(folder_.path() / name);
        places_.setSharedFolder(folder_.file("home"));
        fs::create_directories(places_.xmlFolder());
        info_->pInterface = &alerts_;
        settings_.sLastBatchForeground = folder_.file("fg");
        settings_.sLastBatchBackground = folder_.file("bg");
        settings_.sLastBatchQLX = folder_.file("qlx");
        settings_.sLastBatchOutput = folder_.file("out");
        settings_.bLastBatchCheckForNewFiles = false;
        settings_.iLastBatchLastOutputFileType = 2;
        settings_.iLastBatchLastOutputStyle = kCombineNames;
        settings_.bAutoQLXSave = false;
    }
    ~BatchScene() override { places_.setSharedFolder(home_); }

    void portrait(const std::string& name, QColor color = QColor(200, 60, 50)) {
        savePng(discOnScreen(60, 40, QColor(40, 160, 60), color), folder_.file(name));
    }
    void background(const std::string& name, QColor color) {
        QImage image(60, 40, QImage::Format_RGB888);
        image.fill(color);
        savePng(image, folder_.file(name));
    }
    /// Makes the engine and serves it as the program does, until the run stops or `steps` turns of the loop are over.
    BatchEngine& engine() {
        if (!engine_) {
            loop_.runUntilIdle();  // the pass of the start, with whatever it has to say
            alerts_.all.clear();
            engine_ = std::make_unique<BatchEngine>(*info_, &panel_);
            engine_->now = [this] { return BatchEngine::Time(std::chrono::seconds(++looks_)); };
            loop_.addIdleJob(*engine_);
        }
        return *engine_;
    }
    void turn(int steps = 200) {
        while (steps-- > 0 && !engine().bBatchProcessingStopped)
            loop_.iterate();
    }
    void run() {
        engine().clickedButtonStartBatch();
        turn();
        EXPECT_TRUE(engine().bBatchProcessingStopped);
    }
    Names made(const std::string& sub = "out") const {
        Names names;
        for (const auto& entry : fs::directory_iterator(folder_.path() / sub)) {
            if (entry.is_regular_file() && entry.path().filename() != "ForegroundHistory.dat")
                names.push_back(entry.path().filename().string());
        }
        std::sort(names.begin(), names.end());
        return names;
    }
    QColor corner(const std::string& name) const {
        return QImage(QString::fromStdString(folder_.file(name))).pixelColor(1, 1);
    }
    QColor middle(const std::string& name) const {
        return QImage(QString::fromStdString(folder_.file(name))).pixelColor(30, 20);
    }

    TempFolder folder_;
    Places& places_ = Places::current();
    const std::string home_ = places_.sharedFolder();
    std::unique_ptr<SystemInfo> info_ = stateForOutput(60, 40, 40);
    QLXInfo& settings_ = *info_->oQLXInfo;
    Panel panel_;
    Alerts alerts_;
    CombineThread loop_{*info_};
    std::unique_ptr<BatchEngine> engine_;
    std::atomic<int> looks_ = 0;  ///< at portraits that may be growing, each a second after the one before
};

}  // namespace tavrin::test
