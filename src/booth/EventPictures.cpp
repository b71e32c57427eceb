#include "booth/EventPictures.h"

#include <algorithm>
#include <condition_variable>
#include <filesystem>
#include <thread>

#include <QDateTime>

#include "booth/BrokenTickets.h"
#include "booth/TicketClaim.h"
#include "core/files/AtomicFile.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

using Kind = JobEnd::Kind;
using Status = EventResult::Status;
using std::chrono::milliseconds;

/// A job on a thread of its own, so that whoever watches it need not wait for it.
struct Running {
    std::mutex mutex;
    std::condition_variable ended;
    std::optional<JobEnd> end;
};

std::thread runOnThread(const std::shared_ptr<EventJob>& job, const std::shared_ptr<Running>& running) {
    return std::thread([job, running] {
        JobEnd end = job->run();
        {
            std::lock_guard lock(running->mutex);
            running->end = std::move(end);
        }
        running->ended.notify_all();
    });
}

std::string secondsText(milliseconds time) {
    return std::to_string((time.count() + 999) / 1000) + " seconds";
}

}  // namespace

EventPictures::EventPictures(EventShop shop, std::shared_ptr<EventCounts> counts, EventTeller& teller,
                             std::function<void()> changed)
    : shop_(std::move(shop)), counts_(std::move(counts)), teller_(teller), changed_(std::move(changed)) {}

void EventPictures::setTrouble(const std::string& reason) {
    {
        std::lock_guard lock(mutex_);
        trouble_ = reason;
    }
    teller_.trouble("folder", "The pictures cannot be saved.", reason);
}

bool EventPictures::look(TicketList& list) {
    std::string problem = shop_.folder.prepare();
    if (problem.empty()) {
        list = listTickets(shop_.folder);
        problem = list.problem;
    }
    const int broken = problem.empty() ? countBrokenTickets(shop_.folder) : broken_;
    {
        std::lock_guard lock(mutex_);
        list_ = list;
        left_ = static_cast<int>(list.pending.size());
        broken_ = broken;
    }
    if (!problem.empty() || troubles_ == 0) setTrouble(problem);
    if (problem.empty()) teller_.counted(list.tickets, list.photos);
    photos_ = list.photos;
    return problem.empty();
}

void EventPictures::pass(Worker& worker) {
    TicketList list;
    allDone_ = false;
    if (!look(list)) {
        allDone_ = true;
        return;
    }
    workOffNotes(worker);
    std::erase_if(waits_, [&list](const auto& wait) {
        return std::ranges::find(list.pending, wait.first) == list.pending.end();
    });
    bool goesOn = true;
    for (const std::string& stem : list.pending) {
        if (worker.isStopping() || !goesOn) break;
        const auto wait = waits_.find(stem);
        if (wait != waits_.end() && Clock::now() < wait->second.next) continue;
        goesOn = doTicket(stem, worker);
        changed_();
    }
    counts_->refresh();
    allDone_ = !goesOn || waits_.empty();
}

/// Of pictures that a kill left standing before all that follows them was on its way, and of sheets that could not be
/// made at once.
void EventPictures::workOffNotes(Worker& worker) {
    constexpr std::chrono::seconds kPause{5};
    if (Clock::now() < nextNotes_) return;
    nextNotes_ = Clock::now() + kPause;
    std::string owed;
    for (const std::string& stem : listNotes(shop_.folder)) {
        if (worker.isStopping()) return;
        const std::string problem = workOffNote(stem);
        if (owed.empty()) owed = problem;
        worker.giveSign();
    }
    teller_.trouble("owed", "Not all that was asked for could be printed or sent.", owed);
}

/// @return what is owed still, as one plain line; "" for nothing
std::string EventPictures::workOffNote(const std::string& stem) {
    const std::optional<TicketClaim> claim = TicketClaim::take(shop_.folder, stem);
    JobNote note;
    if (!claim || !readNote(shop_.folder.note(stem), note)) return "";
    std::error_code failed;
    if (shop_.folder.hasPhoto(stem)) {
        if (shop_.orders->isOurs(note)) return shop_.orders->letGo(shop_.folder, stem, note);
        return stem + ".jpg: what is to follow it was made ready on another machine; start the booth there.";
    }
    if (fs::exists(shop_.folder.ticket(stem), failed)) return "";  // it is made anew
    shop_.orders->withdraw(note);
    fs::remove(shop_.folder.note(stem), failed);
    return "";
}

void EventPictures::setJob(const std::string& stem, std::shared_ptr<EventJob> job) {
    {
        std::lock_guard lock(mutex_);
        job_ = stem.empty() ? "" : stem + ".qlx";
        inHand_ = std::move(job);
        since_ = Clock::now();
    }
    changed_();
}

/// Waits for a job as long as a job may take, and then a little for its end.
JobEnd EventPictures::watch(const std::shared_ptr<EventJob>& job, Worker& worker) {
    constexpr milliseconds kLook{100}, kGrace{5000};
    const auto running = std::make_shared<Running>();
    std::thread thread = runOnThread(job, running);
    const Clock::time_point limit = Clock::now() + shop_.setup->jobLimit;
    std::unique_lock lock(running->mutex);
    while (!running->ended.wait_for(lock, kLook, [&] { return running->end.has_value(); })) {
        if (Clock::now() < limit) continue;
        job->cancel();
        if (Clock::now() < limit + kGrace || !job->abandon()) continue;
        ++hanging_;
        thread.detach();
        return {Kind::givenUp, "A call of the system does not come back; a network folder may not answer.", 0, 0, ""};
    }
    lock.unlock();
    thread.join();
    worker.giveSign();
    return *running->end;
}

/// @return whether the next ticket may be tried
bool EventPictures::doTicket(const std::string& stem, Worker& worker) {
    EventResult result;
    result.ticket = shop_.folder.ticket(stem);
    result.photo = shop_.folder.photo(stem);
    const auto job = std::make_shared<EventJob>(shop_, stem);
    setJob(stem, job);
    const Clock::time_point begin = Clock::now();
    JobEnd end = watch(job, worker);
    result.seconds = std::chrono::duration<double>(Clock::now() - begin).count();
    setJob("", nullptr);
    if (end.kind == Kind::givenUp)
        end.reason = "It took longer than " + secondsText(shop_.setup->jobLimit) + " and was given up." +
                     (end.reason.empty() ? "" : " " + end.reason);
    if (end.kind == Kind::source && !(job->mayHeal() && mustWait(stem))) end.kind = Kind::broken;
    return settle(stem, std::move(end), std::move(result));
}

bool EventPictures::mustWait(const std::string& stem) {
    constexpr milliseconds kFirst{1000}, kLongest{16'000};
    const Clock::time_point now = Clock::now();
    const auto [at, isNew] = waits_.try_emplace(stem);
    Wait& wait = at->second;
    if (isNew) wait.first = now;
    wait.next = now + std::min(kFirst * (1 << std::min(wait.tries++, 4)), kLongest);
    return now - wait.first < shop_.setup->jobLimit;
}

bool EventPictures::settle(const std::string& stem, JobEnd end, EventResult result) {
    result.mode = end.mode;
    result.copies = end.copies;
    result.email = end.email;
    result.reason = end.reason;
    const bool hadTrouble = troubles_ > 0;
    switch (end.kind) {
        case Kind::done:
            troubles_ = 0;
            if (hadTrouble) setTrouble("");
            result.status = end.reason.empty() ? Status::done : Status::partly;
            if (!end.reason.empty())
                teller_.alert("The picture is there, but not all that belongs to it.", stem + ".jpg: " + end.reason);
            teller_.counted(list_.tickets, ++photos_);
            break;
        case Kind::notThere:
            result.status = Status::skipped;
            break;
        case Kind::source:
            result.status = Status::waiting;
            break;
        case Kind::place:
            ++troubles_;
            setTrouble(end.reason);
            result.status = Status::waiting;
            break;
        case Kind::broken:
        case Kind::givenUp:
            setAside(stem, end.kind, result);
    }
    const bool isStuck = result.status == Status::failed && waits_.contains(stem);
    if (end.kind != Kind::source && end.kind != Kind::place && !isStuck) waits_.erase(stem);
    if (result.status == Status::partly || result.status == Status::failed) note(stem, result.reason);
    if (end.kind == Kind::done || end.kind == Kind::notThere || result.status == Status::failed) {
        std::lock_guard lock(mutex_);
        left_ = std::max(left_ - 1, 0);
    }
    if (result.status != Status::skipped) teller_.finished(result);
    return end.kind != Kind::place && !isStuck;
}

/// Unless another booth has made something of the ticket meanwhile. One that hangs has its claim still.
void EventPictures::setAside(const std::string& stem, JobEnd::Kind kind, EventResult& result) {
    const std::optional<TicketClaim> claim = TicketClaim::take(shop_.folder, stem);
    std::error_code failed;
    const bool isOurs = claim.has_value() || kind == Kind::givenUp;
    if (!isOurs || !fs::exists(result.ticket, failed) || shop_.folder.hasPhoto(stem)) {
        result.status = Status::skipped;
        return;
    }
    result.status = Status::failed;
    const std::string problem = setTicketAside(shop_.folder, stem, result.reason);
    constexpr const char* kFailed = "A picture could not be made.";
    if (problem.empty()) {
        waits_.erase(stem);
        counts_->addFailure(stem);
        teller_.alert(kFailed, stem + ".qlx: " + result.reason);
        std::lock_guard lock(mutex_);
        ++broken_;
    } else {
        constexpr std::chrono::seconds kPause{30};
        mustWait(stem);
        waits_[stem].next = Clock::now() + kPause;
        result.reason += " " + problem;
        teller_.trouble("ticket " + stem, kFailed, stem + ".qlx: " + result.reason);
    }
}

void EventPictures::note(const std::string& stem, const std::string& reason) {
    constexpr std::size_t kMost = 20;
    std::lock_guard lock(mutex_);
    failures_.push_front({stem + ".qlx", reason, QDateTime::currentMSecsSinceEpoch()});
    if (failures_.size() > kMost) failures_.pop_back();
}

void EventPictures::tell(EventSigns& signs) const {
    std::lock_guard lock(mutex_);
    signs.job = job_;
    signs.since = since_;
    if (inHand_) signs.lastSign = std::max(signs.lastSign, inHand_->lastSign());
    signs.trouble = trouble_;
    signs.tickets = list_.tickets;
    signs.photos = photos_;
    signs.jobsWaiting = left_;
    signs.brokenTickets = broken_;
    signs.failures.assign(failures_.begin(), failures_.end());
}

}  // namespace tavrin
