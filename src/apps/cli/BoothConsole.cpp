#include "apps/cli/BoothConsole.h"

#include <cmath>
#include <filesystem>

#include <QDateTime>
#include <QJsonDocument>
#include <QJsonObject>

#include "apps/cli/Console.h"
#include "apps/cli/Output.h"
#include "core/files/NameText.h"

namespace tavrin::cli {

namespace {

using Ended = EventResult::Status;

constexpr const char* kEndedWords[] = {"done", "partly", "failed", "waiting", "skipped"};

std::string fileName(const std::string& path) {
    return std::filesystem::path(path).filename().string();
}

QJsonObject describe(const EventResult& result) {
    QJsonObject object{{"ticket", textOfName(fileName(result.ticket))},
                       {"status", kEndedWords[static_cast<int>(result.status)]},
                       {"seconds", std::round(result.seconds * 1000) / 1000}};
    const bool isMade = result.status == Ended::done || result.status == Ended::partly;
    if (isMade) object["out"] = textOfName(fileName(result.photo));
    if (isMade && result.copies > 0) object["prints"] = result.copies;
    if (isMade && !result.email.empty()) object["mail"] = textOfName(result.email);
    if (!result.reason.empty()) object["reason"] = textOfName(result.reason);
    return object;
}

QJsonObject describe(const EventSigns& signs) {
    return {{"tickets", signs.tickets},
            {"pictures", signs.photos},
            {"waiting", signs.jobsWaiting},
            {"broken", signs.brokenTickets},
            {"printer", textOfName(signs.printer)},
            {"printerState", textOfName(signs.printerState)},
            {"printsWaiting", signs.printsWaiting},
            {"printsUnsure", signs.printsUnsure},
            {"printsLeft", signs.printsLeft},
            {"mailsWaiting", signs.mailsWaiting},
            {"mailsHeld", signs.mailsHeld},
            {"today", QJsonObject{{"pictures", signs.today.pictures},
                                  {"prints", signs.today.prints},
                                  {"mails", signs.today.mails},
                                  {"failed", signs.today.failed}}}};
}

}  // namespace

void BoothConsole::tellEvent(const char* event, QJsonObject facts) const {
    if (!form_.events) return;
    facts["event"] = event;
    facts["at"] = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);
    printJson(QJsonDocument(facts), true);
    flushOutput();
}

void BoothConsole::finished(const EventResult& result) {
    if (result.status == Ended::done || result.status == Ended::partly) ++done_;
    if (result.status == Ended::failed || result.status == Ended::partly) ++failed_;
    if (result.status == Ended::waiting && !form_.events) return;
    if (form_.json) {
        printJson(QJsonDocument(describe(result)), true);
        flushOutput();
    } else if (!isQuiet() && result.status != Ended::failed) {
        printLine(fileName(result.photo));
        flushOutput();
    }
}

void BoothConsole::changed(const EventSigns& signs) {
    if (!form_.events) return;
    const QJsonObject facts = describe(signs);
    const std::string text = QJsonDocument(facts).toJson(QJsonDocument::Compact).toStdString();
    if (std::exchange(lastSigns_, text) != text) tellEvent("signs", facts);
}

void BoothConsole::alert(const std::string& message, const std::string& reason) {
    std::string line = message + " " + reason;
    for (char& c : line)
        c = c == '\n' ? ' ' : c;
    tellEvent("note", {{"text", textOfName(line)}});
    complain(line);
}

void BoothConsole::ended() {
    {
        std::lock_guard lock(mutex_);
        ended_ = true;
    }
    news_.notify_all();
}

void BoothConsole::waitForEnd() {
    std::unique_lock lock(mutex_);
    news_.wait(lock, [this] { return ended_; });
}

void BoothConsole::summarize(const EventSigns& signs) {
    QJsonObject facts = describe(signs);
    facts["done"] = done_.load();
    facts["failed"] = failed_.load();
    tellEvent("end", facts);
    std::string line = std::to_string(done_) + (done_ == 1 ? " picture" : " pictures") + " made";
    const auto add = [&line](int number, const char* what) {
        if (number > 0) line += ", " + std::to_string(number) + " " + what;
    };
    add(failed_, "failed");
    add(signs.jobsWaiting, "left");
    add(signs.printsWaiting, "sheets not printed yet");
    add(signs.mailsWaiting, "mails not sent yet");
    tell(line + ".");
}

}  // namespace tavrin::cli
