#pragma once

#include <atomic>
#include <cstdint>
#include <functional>

namespace tavrin {

/// What a run over the rows of a picture listens to. The default one runs to its end in silence.
struct RunContext {
    std::function<bool()> superseded;        ///< true: nobody wants this result any more, stop
    std::function<void(int, int)> progress;  ///< rows [first, last) are finished; called on the caller's thread
    int progressRows = 0;                    ///< rows between two calls of `progress`; 0 is never

    bool isSuperseded() const { return superseded && superseded(); }
};

/// Runs `row(y)` for the rows 0 to `rows` - 1 on all cores, in no fixed order, at least `grain` rows in a piece.
/// The only way in which the engine works in parallel. A superseded run ends within a row of each core.
/// @return false when the run was superseded, so that some rows are missing
bool runRows(const RunContext& context, int rows, int grain, const std::function<void(int)>& row);

/// As `runRows`, for kernels that take a run of rows [first, last) at a time, of at most `grain` rows.
bool runRowRanges(const RunContext& context, int rows, int grain, const std::function<void(int, int)>& range);

/// Limits `runRows` to a number of threads while it lives; for benchmarks and parity tests.
class ThreadLimit {
  public:
    explicit ThreadLimit(int threads);
    ~ThreadLimit();
    ThreadLimit(const ThreadLimit&) = delete;
    ThreadLimit& operator=(const ThreadLimit&) = delete;

  private:
    void* control_;
};

}  // namespace tavrin
