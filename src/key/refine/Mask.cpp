#include "key/refine/Mask.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace tavrin::refine {

namespace {

constexpr std::uint64_t kAll = ~std::uint64_t{0};

// Each bit becomes the conjunction of itself and the one `step` further on; beyond the end all are set.
void joinAhead(std::vector<std::uint64_t>& line, int step) {
    const std::size_t whole = static_cast<std::size_t>(step / 64), count = line.size();
    const int part = step % 64;
    const auto word = [&](std::size_t i) { return i < count ? line[i] : kAll; };
    for (std::size_t i = 0; i < count; ++i) {
        std::uint64_t ahead = word(i + whole) >> part;
        if (part != 0) ahead |= word(i + whole + 1) << (64 - part);
        line[i] &= ahead;
    }
}

// Windows of `length`: joined to themselves in steps that double.
template <class Join>
void joinWindow(int length, const Join& join) {
    for (int have = 1; have < length;) {
        const int step = std::min(have, length - have);
        join(step);
        have += step;
    }
}

void shrinkRow(const Mask& mask, int y, int r, std::vector<std::uint64_t>& line, std::uint64_t* to) {
    const std::size_t before = static_cast<std::size_t>((r + 63) / 64),
                      words = static_cast<std::size_t>(mask.words());
    line.assign(before + words, kAll);
    std::copy_n(mask.row(y), words, line.begin() + static_cast<std::ptrdiff_t>(before));
    if (mask.width() % 64 != 0) line.back() |= kAll << (mask.width() % 64);
    joinWindow(2 * r + 1, [&](int step) { joinAhead(line, step); });
    // The window of column x begins r columns before it.
    const std::size_t from = before * 64 - static_cast<std::size_t>(r);
    for (std::size_t i = 0; i < words; ++i) {
        const std::size_t bit = from + i * 64, word = bit / 64, part = bit % 64;
        to[i] = line[word] >> part;
        if (part != 0) to[i] |= (word + 1 < line.size() ? line[word + 1] : kAll) << (64 - part);
    }
}

}  // namespace

Mask::Mask(int width, int height)
    : width_(width),
      height_(height),
      words_((width + 63) / 64),
      bits_(static_cast<std::size_t>(words_) * static_cast<std::size_t>(height)) {}

void Mask::pack(int y, int word, int count, const std::uint8_t* flags) {
    std::uint64_t* const to = row(y) + word;
    for (int x = 0; x < count; x += 64) {
        std::uint64_t bits = 0;
        for (int i = 0; i < 64 && x + i < count; i += 8) {
            std::uint64_t eight;
            std::memcpy(&eight, flags + x + i, 8);
            if (count - x - i < 8) eight &= kAll >> (8 * (8 - (count - x - i)));
            // One product gathers the lowest bits of eight bytes.
            bits |= (eight * 0x0102040810204080u >> 56) << i;
        }
        to[x / 64] = bits;
    }
}

void Mask::unpack(int y, int left, int count, float* values) const {
    const std::uint64_t* const from = row(y);
    for (int x = left, end = left + count; x < end;) {
        const int bits = std::min(64 - x % 64, end - x);
        const std::uint64_t word = from[x / 64] >> (x % 64), all = kAll >> (64 - bits);
        if ((word & all) == 0 || (word & all) == all) {
            std::fill(values, values + bits, (word & all) == 0 ? 0.0f : 1.0f);
        } else {
            for (int i = 0; i < bits; ++i)
                values[i] = static_cast<float>(static_cast<int>(word >> i & 1));
        }
        values += bits;
        x += bits;
    }
}

std::int64_t Mask::count() const {
    std::int64_t sum = 0;
    for (std::uint64_t word : bits_)
        sum += std::popcount(word);
    return sum;
}

Mask& Mask::operator|=(const Mask& other) {
    for (std::size_t i = 0; i < bits_.size(); ++i)
        bits_[i] |= other.bits_[i];
    return *this;
}

Mask& Mask::operator&=(const Mask& other) {
    for (std::size_t i = 0; i < bits_.size(); ++i)
        bits_[i] &= other.bits_[i];
    return *this;
}

Mask Mask::inverted() const {
    Mask result(width_, height_);
    const std::uint64_t end = width_ % 64 == 0 ? kAll : ~(kAll << (width_ % 64));
    for (int y = 0; y < height_; ++y) {
        for (int i = 0; i < words_; ++i)
            result.row(y)[i] = ~row(y)[i] & (i == words_ - 1 ? end : kAll);
    }
    return result;
}

Mask shrunk(const RunContext& context, const Mask& mask, int r) {
    constexpr int kBlock = 8;  // words side by side: a line of the cache
    const int width = mask.width(), height = mask.height(), words = mask.words();
    Mask lines(width, height), result(width, height);
    runRowRanges(context, height, 64, [&](int first, int last) {
        std::vector<std::uint64_t> line;
        for (int y = first; y < last; ++y)
            shrinkRow(mask, y, r, line, lines.row(y));
    });
    runRows(context, (words + kBlock - 1) / kBlock, 1, [&](int block) {
        const int from = block * kBlock, count = std::min(kBlock, words - from);
        const auto rows = static_cast<std::size_t>(height + r);
        std::vector<std::uint64_t> column(rows * kBlock, kAll);
        for (int y = 0; y < height; ++y)
            std::copy_n(lines.row(y) + from, count, column.begin() + std::ptrdiff_t{y + r} * kBlock);
        joinWindow(2 * r + 1, [&](int step) {
            const auto ahead = static_cast<std::size_t>(step) * kBlock;
            for (std::size_t i = 0; i + ahead < column.size(); ++i)
                column[i] &= column[i + ahead];
        });
        for (int y = 0; y < height; ++y)
            std::copy_n(column.begin() + std::ptrdiff_t{y} * kBlock, count, result.row(y) + from);
    });
    if (width % 64 != 0) {
        for (int y = 0; y < height; ++y)
            result.row(y)[words - 1] &= ~(kAll << (width % 64));
    }
    return result;
}

Mask grown(const RunContext& context, const Mask& mask, int r) {
    return shrunk(context, mask.inverted(), r).inverted();
}

}  // namespace tavrin::refine
