#include "core/raster/Rows.h"

#include <algorithm>
#include <oneapi/tbb/blocked_range.h>
#include <oneapi/tbb/global_control.h>
#include <oneapi/tbb/parallel_for.h>

#include "core/BackgroundThread.h"

namespace tavrin {

namespace {

using Range = oneapi::tbb::blocked_range<int>;

// One band between two reports of progress. Every piece asks again before it starts. What the caller wrote is seen
// by the pieces, and what they wrote by the caller, through the two atomics: the library's own ordering would do,
// but it is compiled without the thread checker, which could then not tell a race in a stage from a safe hand-over.
struct Band {
    const RunContext& context;
    const std::function<void(int, int)>& range;
    int grain;
    mutable std::atomic<bool> stopped = false;
    mutable std::atomic<int> finished = 0;

    void operator()(const Range& piece) const {
        noteRowWork();
        for (int y = piece.begin(); y < piece.end(); y += grain) {
            GivingWay::ask();
            if (stopped.load(std::memory_order_acquire)) break;
            if (context.isSuperseded()) {
                stopped.store(true, std::memory_order_relaxed);
                break;
            }
            range(y, std::min(y + grain, piece.end()));
        }
        finished.fetch_add(1, std::memory_order_release);
    }

    bool run(int first, int last) {
        stopped.store(false, std::memory_order_release);
        const Range rows(first, last, static_cast<std::size_t>(grain));
        if (isBackgroundThread()) {
            (*this)(rows);
        } else {
            oneapi::tbb::parallel_for(rows, std::cref(*this));
        }
        finished.load(std::memory_order_acquire);
        return !stopped.load(std::memory_order_relaxed);
    }
};

}  // namespace

bool runRowRanges(const RunContext& context, int rows, int grain, const std::function<void(int, int)>& range) {
    grain = std::max(grain, 1);
    const bool reports = context.progress && context.progressRows > 0;
    const int band = reports ? context.progressRows : std::max(rows, 1);
    for (int first = 0; first < rows; first += std::min(band, rows - first)) {
        const int last = first + std::min(band, rows - first);
        if (!Band{context, range, grain}.run(first, last)) return false;
        if (reports) context.progress(first, last);
    }
    return true;
}

bool runRows(const RunContext& context, int rows, int grain, const std::function<void(int)>& row) {
    return runRowRanges(context, rows, grain,
                        [&](int first, int last) {
                            for (int y = first; y < last; ++y) {
                                if (y != first && context.isSuperseded()) return;
                                row(y);
                            }
                        }) &&
           !context.isSuperseded();
}

ThreadLimit::ThreadLimit(int threads)
    : control_(new oneapi::tbb::global_control(oneapi::tbb::global_control::max_allowed_parallelism,
                                               static_cast<std::size_t>(std::max(threads, 1)))) {}

ThreadLimit::~ThreadLimit() {
    delete static_cast<oneapi::tbb::global_control*>(control_);
}

}  // namespace tavrin
