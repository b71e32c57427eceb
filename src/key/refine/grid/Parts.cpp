#include "key/refine/grid/Parts.h"

#include <algorithm>
#include <cstddef>

namespace tavrin::refine {

namespace {

// Set cells side by side, by their places in scan order.
struct Run {
    int begin, end;
    std::size_t joined;  // an earlier run of the same part, or itself
};

// The first run of its part, as far as the parts are joined.
std::size_t firstOf(const std::vector<Run>& runs, std::size_t i) {
    while (runs[i].joined != i)
        i = runs[i].joined;
    return i;
}

// The runs of the rows, each joined to those that touch it above; `slant` is 1 where corners touch too.
std::vector<Run> joinedRuns(int columns, int rows, const std::vector<std::uint8_t>& set, int slant) {
    std::vector<Run> runs;
    const auto isSet = [&](int at) { return set[static_cast<std::size_t>(at)] != 0; };
    std::size_t above = 0;
    for (int y = 0; y < rows; ++y) {
        const std::size_t first = runs.size();
        for (int at = y * columns, end = at + columns; at < end; ++at) {
            if (!isSet(at)) continue;
            const int begin = at;
            while (at < end && isSet(at))
                ++at;
            const std::size_t own = runs.size();
            runs.push_back({begin, at, own});
            while (above < first && runs[above].end + columns + slant <= begin)
                ++above;
            for (std::size_t i = above; i < first && runs[i].begin + columns < at + slant; ++i) {
                const std::size_t one = firstOf(runs, i), other = firstOf(runs, own);
                runs[std::max(one, other)].joined = std::min(one, other);
            }
        }
        above = first;
    }
    return runs;
}

}  // namespace

Parts findParts(int columns, int rows, const std::vector<std::uint8_t>& set, Neighbours neighbours) {
    const std::vector<Run> runs = joinedRuns(columns, rows, set, neighbours == Neighbours::eight ? 1 : 0);
    Parts parts;
    parts.labels.resize(set.size());
    std::vector<int> numbers(runs.size());  // of the parts whose first run it is
    for (std::size_t i = 0; i < runs.size(); ++i) {
        const std::size_t first = firstOf(runs, i);
        if (first == i) numbers[i] = ++parts.count;
        std::fill(parts.labels.begin() + runs[i].begin, parts.labels.begin() + runs[i].end, numbers[first]);
    }
    return parts;
}

}  // namespace tavrin::refine
