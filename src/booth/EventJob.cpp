#include "booth/EventJob.h"

#include <filesystem>
#include <new>
#include <utility>

#include "booth/TicketClaim.h"
#include "core/files/AtomicFile.h"
#include "core/files/FreeName.h"
#include "core/image/ImageWriter.h"
#include "core/state/SystemInfo.h"
#include "core/text/TextLayers.h"
#include "folders/Arrivals.h"
#include "folders/FileFacts.h"
#include "pipeline/SaveImage.h"
#include "pipeline/WholePicture.h"
#include "session/OutputSizes.h"
#include "session/StartUp.h"
#include "session/States.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using Kind = JobEnd::Kind;

bool isThere(const std::string& path) {
    std::error_code failed;
    return fs::exists(path, failed);
}

JobEnd ending(Kind kind, std::string reason = "") {
    JobEnd end;
    end.kind = kind;
    end.reason = std::move(reason);
    if (!end.reason.empty() && !end.reason.ends_with('.')) end.reason += '.';
    return end;
}

}  // namespace

void EventJob::Alerts::showAlert(const std::string& message, const std::string& reason) {
    all += (all.empty() ? "" : " ") + message + " (" + reason + ")";
}

EventJob::EventJob(EventShop shop, std::string stem)
    : shop_(std::move(shop)), stem_(std::move(stem)), pEventSystemInfo(std::make_unique<SystemInfo>()) {
    giveSign();
}

EventJob::~EventJob() = default;

void EventJob::cancel() {
    cancelled_ = true;
    pEventSystemInfo->StartUpdate();  // a newer picture is wanted than the one under work
}

bool EventJob::abandon() {
    std::lock_guard lock(mutex_);
    abandoned_ = !committing_;
    return abandoned_;
}

bool EventJob::beginCommit() {
    std::lock_guard lock(mutex_);
    committing_ = !abandoned_;
    return committing_;
}

JobEnd EventJob::run() {
    try {
        return make();
    } catch (const std::bad_alloc&) {
        return ending(Kind::source, "There is not enough memory for the picture.");
    } catch (const std::exception& error) {
        return ending(Kind::broken, error.what());
    }
}

JobEnd EventJob::make() {
    const std::optional<TicketClaim> claim = TicketClaim::take(shop_.folder, stem_);
    // Between the look into the folder and the claim another booth may have done it.
    if (!claim || !isThere(shop_.folder.ticket(stem_)) || shop_.folder.hasPhoto(stem_)) return ending(Kind::notThere);
    for (JobEnd (EventJob::*step)() : {&EventJob::load, &EventJob::compute, &EventJob::save}) {
        JobEnd end = (this->*step)();
        giveSign();
        if (end.kind != Kind::done) return cancelled_ ? ending(Kind::givenUp) : end;
    }
    return deliver();
}

JobEnd EventJob::load() {
    SystemInfo& info = *pEventSystemInfo;
    startLike(info, *shop_.lists);
    *info.oQLXInfo = shop_.setup->settings;
    info.pInterface = &alerts_;
    const LoadedState loaded = loadState(info, shop_.folder.ticket(stem_));
    if (!loaded.problem.empty()) {
        if (!isThere(shop_.folder.ticket(stem_))) return ending(Kind::notThere);
        return ending(Kind::broken, loaded.problem);
    }
    if (!loaded.sizeProblem.empty()) return ending(Kind::broken, loaded.sizeProblem);
    if (info.pForegroundBitmapInfo->sSourceImageFullPath.empty())
        return ending(Kind::broken, "It names no portrait.");
    if (info.pBackgroundBitmapInfo->sSourceImageFullPath.empty())
        return ending(Kind::broken, "There is no background for it.");
    if (const std::string problem = useChosenSize(info); !problem.empty()) return ending(Kind::broken, problem);
    if (const std::string problem = textProblem(info); !problem.empty()) return ending(Kind::broken, problem);
    return {};
}

JobEnd EventJob::compute() {
    SystemInfo& info = *pEventSystemInfo;
    const bool isWhole = loadAndCombineFiles(info);
    if (cancelled_ || info.isStale()) return ending(Kind::givenUp);
    return isWhole ? JobEnd() : ending(Kind::source, info.whyNotFinished(Resolution::full));
}

bool EventJob::mayHeal() const {
    bool knowsWhy = false;
    for (const BitmapInfo* layer :
         {pEventSystemInfo->pForegroundBitmapInfo.get(), pEventSystemInfo->pBackgroundBitmapInfo.get()}) {
        if (layer->sSourceProblem.empty()) continue;
        knowsWhy = true;
        const std::optional<FileFacts> facts = factsOf(layer->sSourceImageFullPath);
        if (!facts || !isOlderThan(*facts, Arrivals::kPatience)) return true;
    }
    return !knowsWhy;
}

/// Under a hidden name: what follows the picture is made ready from it before it counts as done.
JobEnd EventJob::save() {
    const std::string file = shop_.folder.madePhoto(stem_);
    const std::string before = std::exchange(alerts_.all, "");
    if (!saveImageToDisk(*pEventSystemInfo, file, kJpegFile, 1, {}, &cancelled_)) {
        return ending(cancelled_ ? Kind::givenUp : Kind::place, std::exchange(alerts_.all, before));
    }
    alerts_.all = before;
    return {};
}

JobEnd EventJob::deliver() {
    const BoothFolder& folder = shop_.folder;
    JobNote note;
    if (readNote(folder.note(stem_), note)) shop_.orders->withdraw(note);  // of a job that a kill ended
    note = shop_.orders->prepare(*pEventSystemInfo, stem_, folder.madePhoto(stem_));
    giveSign();
    const auto giveUp = [&](JobEnd end) {
        shop_.orders->withdraw(note);
        std::error_code ignored;
        fs::remove(folder.note(stem_), ignored);
        fs::remove(folder.madePhoto(stem_), ignored);
        return end;
    };
    if (const std::string problem = writeNote(note, folder.note(stem_)); !problem.empty())
        return giveUp(ending(Kind::place, problem));
    bringNamesToDisk(folder.hidden());
    if (!isThere(folder.ticket(stem_)) || folder.hasPhoto(stem_)) return giveUp(ending(Kind::notThere));
    if (!beginCommit()) return giveUp(ending(Kind::givenUp));
    const int code = moveToFreeName(folder.madePhoto(stem_), folder.photo(stem_));
    if (code == EEXIST) return giveUp(ending(Kind::notThere));
    if (code != 0) return giveUp(ending(Kind::place, writeProblem(code, folder.output())));
    bringNamesToDisk(folder.output());
    JobEnd end = ending(Kind::done, alerts_.all);
    end.mode = note.mode;
    end.copies = note.copies;
    end.email = note.email;
    const std::string owed = shop_.orders->letGo(folder, stem_, note);
    if (!owed.empty()) end.reason += (end.reason.empty() ? "" : " ") + owed;
    return end;
}

}  // namespace tavrin
