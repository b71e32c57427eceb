#pragma once

#include <filesystem>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#include "delivery/print/PrintService.h"

namespace tavrin::test {

/// A printing system of one printer, "studio", that fails where a test says so. Safe from several threads.
struct PrintRoom {
    enum class Fault { none, whenMade, beforeDocument, afterDocument };

    std::mutex mutex;
    std::string trouble;                            ///< of the printer
    bool answers = true;                            ///< the printing system
    bool gives = true;                              ///< jobs back that are to be cancelled
    Fault fault = Fault::none;                      ///< of the next sheet
    JobNews::State jobs = JobNews::State::printed;  ///< how jobs with a document stand
    std::string reason;
    std::map<int, bool> made;          ///< jobs by number, and whether they have their document
    std::vector<std::string> printed;  ///< titles of what got a document, with the size of its paper
    std::vector<int> cancelled;
};

class FakePrinters : public PrintService {
  public:
    explicit FakePrinters(PrintRoom& room) : room_(room) {}

    PrinterList printers() override {
        const std::lock_guard lock(room_.mutex);
        if (!room_.answers) return {{}, "Nobody answers."};
        return {{{"studio", "", true, room_.trouble.empty() ? "ready" : "stopped", room_.trouble}}, ""};
    }
    PrinterPapers papers(const std::string&) override {
        return {{*paperOf("A4"), *paperOf("4x6")}, *paperOf("A4"), ""};
    }
    Printer printer(const std::string& name) override {
        const PrinterList list = printers();
        if (!list.problem.empty()) return {"", "", false, "", list.problem};
        return name == "studio" ? list.printers.front() : Printer{"", "", false, "", "There is no printer."};
    }
    MadeJob make(const PrintJob&) override {
        const std::lock_guard lock(room_.mutex);
        if (room_.fault == PrintRoom::Fault::whenMade) return {0, "It takes no job."};
        const int id = static_cast<int>(room_.made.size()) + 1;
        room_.made[id] = false;
        return {id, ""};
    }
    std::string send(const PrintJob& job, int id, const std::string& document) override {
        const std::lock_guard lock(room_.mutex);
        if (room_.fault == PrintRoom::Fault::beforeDocument) return "The line broke.";
        if (!std::filesystem::exists(document)) return "There is no document.";
        room_.made[id] = true;
        room_.printed.push_back(job.title + " on " + job.paper.name);
        return room_.fault == PrintRoom::Fault::afterDocument ? "The answer was lost." : "";
    }
    JobNews news(const PrintJob&, int id) override {
        const std::lock_guard lock(room_.mutex);
        if (!room_.answers) return {};
        const auto found = room_.made.find(id);
        if (found == room_.made.end()) return {JobNews::State::unknown, ""};
        return found->second ? JobNews{room_.jobs, room_.reason} : JobNews{JobNews::State::empty, ""};
    }
    bool cancel(const PrintJob&, int id) override {
        const std::lock_guard lock(room_.mutex);
        room_.cancelled.push_back(id);
        return room_.answers && room_.gives && (!room_.made[id] || room_.jobs != JobNews::State::printed);
    }

  private:
    PrintRoom& room_;
};

}  // namespace tavrin::test
