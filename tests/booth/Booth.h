#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>
#include <vector>

#include "booth/EventWorker.h"
#include "booth/Ticket.h"
#include "core/state/SystemInfo.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"
#include "session/StartUp.h"
#include "support/FakePrinters.h"
#include "support/Files.h"
#include "support/Pictures.h"
#include "support/SmtpServer.h"
#include "support/TestData.h"

namespace tavrin::test {

/// Waits for what has to come, on however slow a machine.
inline bool comes(const std::function<bool()>& what) {
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(60);
    while (!what() && std::chrono::steady_clock::now() < end)
        std::this_thread::sleep_for(std::chrono::milliseconds(5));
    return what();
}

/// What a booth has told.
class Told : public EventListener {
  public:
    void counted(int tickets, int photos) override {
        const std::lock_guard lock(mutex_);
        counts_ = {tickets, photos};
    }
    void finished(const EventResult& result) override {
        const std::lock_guard lock(mutex_);
        results_.push_back(result);
    }
    void alert(const std::string& message, const std::string& reason) override {
        const std::lock_guard lock(mutex_);
        alerts_ += message + "|" + reason + "\n";
    }
    void ended() override { ++ends; }

    std::pair<int, int> counts() const {
        const std::lock_guard lock(mutex_);
        return counts_;
    }
    std::string alerts() const {
        const std::lock_guard lock(mutex_);
        return alerts_;
    }
    int ending(EventResult::Status status) const {
        const std::lock_guard lock(mutex_);
        return static_cast<int>(std::ranges::count(results_, status, &EventResult::status));
    }
    std::vector<EventResult> results() const {
        const std::lock_guard lock(mutex_);
        return results_;
    }
    std::atomic<int> ends = 0;

  private:
    mutable std::mutex mutex_;
    std::pair<int, int> counts_;
    std::vector<EventResult> results_;
    std::string alerts_;
};

/// A booth in a folder of the test's own, with a printer and whatever mail server a test has.
class BoothTest : public testing::Test {
  protected:
    using Status = EventResult::Status;

    BoothTest() {
        std::filesystem::create_directory(out_);
        addSize(base_, "Small Vert", 1.0, 1.25, 60);
        PrinterPage page;
        page.sPageTitle = "One";
        page.iPageWidth = page.iPageHeight = 400;
        PrinterPageImage slot;
        slot.iWidth = slot.iHeight = 100;
        page.oPrinterPageImages = {slot};
        base_.oPrinterPages = {page};
        portrait_ = savePng(discOnScreen(80, 100), folder_.file("anna.png"));
        background_ = savePng(noisePicture(60, 75, 3), folder_.file("sea.png"));
    }

    EventSetup setup() {
        EventSetup setup;
        setup.outputFolder = out_;
        setup.settings.sEventModePrinterName = "studio";
        setup.settings.sEventModeEmailTitle = "Your picture";
        setup.printQueue = folder_.file("PrintQueue/");
        setup.outbox = folder_.file("box/Outbox/");
        setup.pause = std::chrono::milliseconds(20);
        setup.printers = [this] { return std::make_unique<FakePrinters>(room_); };
        return setup;
    }
    static void useServer(EventSetup& setup, const SmtpServer& server) {
        setup.settings.sSMTPHost = "127.0.0.1";
        setup.settings.sSMTPort = std::to_string(server.port());
        setup.delivery.relayAccount = "studio@example.org";
    }

    /// @return stem of the ticket
    std::string press(int mode = kEventSave, int copies = 0, const std::string& email = "",
                      const std::function<void(SystemInfo&)>& more = {}) {
        SystemInfo info;
        startLike(info, base_);
        info.sImageSizeName = "Small Vert";
        setForeground(info, portrait_);
        setBackground(info, background_);
        info.iEventSaveMode = mode;
        info.iEventPrintCount = copies;
        info.sEventEmail = email;
        if (more) more(info);
        EXPECT_EQ(useChosenSize(info), "");
        const Press press = writeTicket(info, out_);
        EXPECT_EQ(press.problem, "");
        return std::filesystem::path(press.ticket).stem().string();
    }
    bool isMade(const std::string& stem) const { return std::filesystem::exists(out_ + "/" + stem + ".jpg"); }
    std::string broken(const std::string& stem, const char* ending) const {
        return out_ + "/Broken/" + stem + ".broken" + ending;
    }
    std::vector<std::string> printed() {
        const std::lock_guard lock(room_.mutex);
        return room_.printed;
    }
    /// Everything that can be done is done.
    void runOnce(EventSetup chosen) {
        chosen.once = true;
        EventWorker worker(base_, told_);
        ASSERT_EQ(worker.start(std::move(chosen)), "");
        worker.join();
    }
    /// What the booth has in its hidden folder besides the counts.
    std::vector<std::string> leftovers() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(out_ + "/.tavrin-booth")) {
            const std::string name = entry.path().filename().string();
            if (!name.starts_with("counts-")) names.push_back(name);
        }
        return names;
    }

    TempFolder folder_;
    const std::string out_ = folder_.file("out");
    std::string portrait_, background_;
    SystemInfo base_;
    PrintRoom room_;
    Told told_;
};

}  // namespace tavrin::test
