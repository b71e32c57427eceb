#include "key/refine/finish/Specks.h"

#include <algorithm>
#include <bit>
#include <cstring>

#include "core/raster/Pixels.h"

namespace tavrin::refine {

namespace {

constexpr std::uint32_t kAny = 4, kClear = 64;  // alpha of 255 above which a pixel has anything, and much
// Pixels that an island has at most: noise grows with the picture up to the squares of a JPEG file's colour.
constexpr double kLeastPixels = 4.0, kMostPixels = 16.0, kUsualPixels = 5e6;

// Pixels of a row that touch one another, and the island that they are part of.
struct Run {
    int y, left, right;
    int island;  // an earlier run, or itself
    int pixels;
    bool clear;
};

class Islands {
  public:
    explicit Islands(const Traces& traces) : traces_(traces) {}

    void addRow(int y) {
        const std::size_t before = row_, first = runs_.size();
        findRuns(y);
        for (std::size_t i = first, above = before; i < runs_.size(); ++i) {
            while (above < first && runs_[above].right < runs_[i].left)
                ++above;
            for (std::size_t k = above; k < first && runs_[k].left <= runs_[i].right; ++k)
                join(static_cast<int>(k), static_cast<int>(i));
        }
        row_ = first;
    }

    // The runs of faint islands of at most `most` pixels.
    template <class Work>
    void forSmall(int most, const Work& work) {
        for (std::size_t i = runs_.size(); i-- > 0;) {
            const auto to = static_cast<std::size_t>(runs_[i].island);
            if (to == i) continue;
            runs_[to].pixels += runs_[i].pixels;
            runs_[to].clear |= runs_[i].clear;
        }
        for (Run& run : runs_) {
            const Run& first = runs_[static_cast<std::size_t>(run.island)];
            run.pixels = first.pixels;
            run.clear = first.clear;
            if (!run.clear && run.pixels <= most) work(run);
        }
    }

  private:
    void findRuns(int y) {
        const std::uint64_t* const row = traces_.any.row(y);
        for (int word = 0; word < traces_.any.words(); ++word) {
            for (std::uint64_t rest = row[word]; rest != 0;) {
                const int begin = std::countr_zero(rest), count = std::countr_one(rest >> begin);
                add(y, 64 * word + begin, count);
                rest = begin + count == 64 ? 0 : rest >> (begin + count) << (begin + count);
            }
        }
    }

    void add(int y, int left, int count) {
        const bool clear = !traces_.clear.isClear(y, left, left + count);
        if (!runs_.empty() && runs_.back().y == y && runs_.back().right == left) {
            runs_.back().right += count;
            runs_.back().pixels += count;
            runs_.back().clear |= clear;
        } else {
            runs_.push_back({y, left, left + count, static_cast<int>(runs_.size()), count, clear});
        }
    }

    int islandOf(int run) {
        while (runs_[static_cast<std::size_t>(run)].island != run) {
            int& next = runs_[static_cast<std::size_t>(run)].island;
            next = runs_[static_cast<std::size_t>(next)].island;
            run = next;
        }
        return run;
    }

    void join(int a, int b) {
        a = islandOf(a);
        b = islandOf(b);
        runs_[static_cast<std::size_t>(std::max(a, b))].island = std::min(a, b);
    }

    const Traces& traces_;
    std::vector<Run> runs_;
    std::size_t row_ = 0;  // the first run of the last row
};

}  // namespace

void Traces::note(int y, int left, int count, const std::uint32_t* pixels, std::uint8_t* scratch) {
    std::uint8_t *const some = scratch, *const much = scratch + count + 8;
    for (int x = 0; x < count; ++x) {
        some[x] = pixels[x] >> 24 > kAny;
        much[x] = pixels[x] >> 24 > kClear;
    }
    any.pack(y, left, count, some);
    clear.pack(y, left, count, much);
}

bool clearSpecks(const RunContext& context, const Shot& shot, const Traces& traces, std::uint8_t* result) {
    Islands islands(traces);
    for (int y = 0; y < shot.height; ++y) {
        if (context.isSuperseded()) return false;
        islands.addRow(y);
    }
    const double pixels = static_cast<double>(shot.width) * shot.height;
    const double most = std::min(kLeastPixels + (kMostPixels - kLeastPixels) * pixels / kUsualPixels, kMostPixels);
    islands.forSmall(static_cast<int>(most), [&](const Run& run) {
        std::memset(result + pixelOffset(shot.width, run.left, run.y), 0,
                    static_cast<std::size_t>(run.right - run.left) * kPixelBytes);
    });
    return true;
}

}  // namespace tavrin::refine
