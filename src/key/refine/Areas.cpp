#include "key/refine/Areas.h"

#include <algorithm>

namespace tavrin::refine {

namespace {

constexpr std::size_t kMostWords = 8;  // so that the rows stay in the cache

}  // namespace

Strip Area::strip(const Shot& shot, int halo) const {
    const int first = std::max(left - halo, 0);
    return {shot, first, std::min(right + halo, shot.width) - first};
}

void forWords(const Mask& wanted, int top, int bottom, const std::function<void(int, int)>& work) {
    std::vector<std::uint64_t> any(static_cast<std::size_t>(wanted.words()));
    for (int y = top; y < bottom; ++y) {
        const std::uint64_t* const row = wanted.row(y);
        for (std::size_t i = 0; i < any.size(); ++i)
            any[i] |= row[i];
    }
    for (std::size_t word = 0, end = 0; word < any.size(); word = end) {
        end = word + 1;
        if (any[word] == 0) continue;
        while (end < any.size() && end - word < kMostWords && any[end] != 0)
            ++end;
        work(static_cast<int>(word), static_cast<int>(end - word));
    }
}

bool runAreas(const RunContext& context, const Mask& wanted, const std::function<void(const Area&)>& work) {
    return runRows(context, blocksOf(wanted.height()), 1, [&](int block) {
        const int top = block * kBlockRows, bottom = std::min(top + kBlockRows, wanted.height());
        forWords(wanted, top, bottom, [&](int word, int words) {
            if (context.isSuperseded()) return;
            work({word * 64, std::min((word + words) * 64, wanted.width()), top, bottom, block});
        });
    });
}

}  // namespace tavrin::refine
