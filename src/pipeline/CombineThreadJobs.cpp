// What others do on the loop's thread: before a pass, without one, and in idle moments.
#include <new>
#include <utility>

#include "core/Log.h"
#include "pipeline/CombineThread.h"

namespace tavrin {

void CombineThread::post(std::function<void()> job) {
    {
        std::lock_guard lock(jobsMutex_);
        posted_.push_back(std::move(job));
    }
    info_.StartUpdate();
}

bool CombineThread::hasPosted() {
    std::lock_guard lock(jobsMutex_);
    return !posted_.empty();
}

/// A job may do anything, so it finds the layers whole, and what is kept of the picture is forgotten.
void CombineThread::runPosted() {
    if (!hasPosted() || !drawDueLayers()) return;
    forgetKeyed();
    std::vector<std::function<void()>> jobs;
    {
        std::lock_guard lock(jobsMutex_);
        jobs.swap(posted_);
    }
    for (const auto& job : jobs)
        runForOthers(job);
}

void CombineThread::edit(Edit job) {
    {
        std::lock_guard lock(jobsMutex_);
        edits_.push_back(std::move(job));
    }
    info_.wakeLoop();
}

/// Those that come meanwhile have their turn too: a pass would take the picture from them.
void CombineThread::runEdits() {
    for (;;) {
        std::vector<Edit> edits;
        {
            std::lock_guard lock(jobsMutex_);
            edits.swap(edits_);
        }
        if (edits.empty()) return;
        for (const Edit& edit : edits)
            runEdit(edit);
    }
}

void CombineThread::runEdit(const Edit& edit) {
    bool onlyLooked = false;
    runForOthers([&] {
        const std::vector<ChangedRows> changed = edit();
        onlyLooked = changed.empty();
        for (const ChangedRows& rows : changed)
            info_.publishEdited(rows.res, rows.first, rows.last);
    });
    if (!onlyLooked) forgetKeyed();
}

void CombineThread::stepIdleJob() {
    for (IdleJob* job : idleJobs_) {
        if (job->isOn()) return runForOthers([job] { job->step(); });
    }
}

/// What others do on this thread may run out of memory without ending the program.
void CombineThread::runForOthers(const std::function<void()>& work) {
    try {
        work();
    } catch (const std::bad_alloc&) {
        logError("Memory not allocated!");
        info_.alert("There is not enough memory.", "what was asked for was not done");
    }
}

}  // namespace tavrin
