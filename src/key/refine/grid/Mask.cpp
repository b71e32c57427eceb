#include "key/refine/grid/Mask.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace tavrin::refine {

namespace {

constexpr std::uint64_t kAll = ~std::uint64_t{0};

// Four bits as numbers.
constexpr auto kNumbers = [] {
    std::array<std::array<float, 4>, 16> numbers{};
    for (unsigned bits = 0; bits < 16; ++bits) {
        for (unsigned i = 0; i < 4; ++i)
            numbers[bits][i] = (bits >> i & 1) != 0 ? 1.0f : 0.0f;
    }
    return numbers;
}();

// Each bit of the first `count` words becomes the conjunction of itself and the one `step` further on; `step / 64 +
// 1` words more are there to be read.
void joinAhead(std::uint64_t* line, std::size_t count, int step) {
    const std::uint64_t* const ahead = line + step / 64;
    const int part = step % 64;
    for (std::size_t i = 0; i < count; ++i)
        line[i] &= ahead[i] >> part | ahead[i + 1] << (63 - part) << 1;
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
    const std::size_t used = before + words;
    line.assign(used + before + 2, kAll);
    std::copy_n(mask.row(y), words, line.begin() + static_cast<std::ptrdiff_t>(before));
    if (mask.width() % 64 != 0) line[used - 1] |= kAll << (mask.width() % 64);
    joinWindow(2 * r + 1, [&](int step) { joinAhead(line.data(), used, step); });
    // The window of column x begins r columns before it.
    const std::size_t bit = before * 64 - static_cast<std::size_t>(r);
    const std::uint64_t* const from = line.data() + bit / 64;
    for (std::size_t i = 0; i < words; ++i)
        to[i] = from[i] >> (bit % 64) | from[i + 1] << (63 - bit % 64) << 1;
}

}  // namespace

Mask::Mask(int width, int height)
    : width_(width),
      height_(height),
      words_((width + 63) / 64),
      bits_(static_cast<std::size_t>(words_) * static_cast<std::size_t>(height)) {}

void Mask::set(int y, int left, int right) {
    std::uint64_t* const to = row(y);
    for (int x = left; x < right;) {
        const int bits = std::min(64 - x % 64, right - x);
        to[x / 64] |= kAll >> (64 - bits) << (x % 64);
        x += bits;
    }
}

bool Mask::isClear(int y, int left, int right) const {
    const std::uint64_t* const from = row(y);
    for (int x = left; x < right;) {
        const int bits = std::min(64 - x % 64, right - x);
        if ((from[x / 64] >> (x % 64) & kAll >> (64 - bits)) != 0) return false;
        x += bits;
    }
    return true;
}

void Mask::pack(int y, int left, int count, const std::uint8_t* flags) {
    std::uint64_t* const to = row(y);
    for (int x = 0; x < count;) {
        const int first = (left + x) % 64, length = std::min(64 - first, count - x);
        std::uint64_t bits = 0;
        for (int i = 0; i < length; i += 8) {
            std::uint64_t eight;
            std::memcpy(&eight, flags + x + i, 8);
            // One product gathers the lowest bits of eight bytes.
            bits |= (eight * 0x0102040810204080u >> 56) << i;
        }
        const std::uint64_t all = kAll >> (64 - length);
        std::uint64_t& word = to[(left + x) / 64];
        word = (word & ~(all << first)) | (bits & all) << first;
        x += length;
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
            int i = 0;
            for (; i + 4 <= bits; i += 4)
                std::memcpy(values + i, kNumbers[word >> i & 15].data(), sizeof kNumbers[0]);
            for (; i < bits; ++i)
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
