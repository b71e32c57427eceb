#include "core/raster/PixelMemory.h"

#include <cstdlib>
#include <cstring>
#include <deque>
#include <iterator>
#include <mutex>
#ifdef __linux__
#include <sys/mman.h>
#endif

namespace tavrin {

namespace {

constexpr std::size_t kHugePage = std::size_t{2} << 20;

std::size_t wholePages(std::size_t bytes) {
    return (bytes + kHugePage - 1) / kHugePage * kHugePage;
}

bool isLarge(std::size_t bytes) {
    return bytes >= 2 * kHugePage;
}

#ifdef __linux__

// The first touch of memory costs a trap for each page, for a large picture as much as scaling it. With huge pages
// there are few. Where the system has none to give, it falls back to small ones by itself.
// They hold zeros.
void* mapPages(std::size_t bytes) {
    // One page more, of which what lies before and behind the aligned block goes back.
    const std::size_t mapped = bytes + kHugePage;
    void* const memory = mmap(nullptr, mapped, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (memory == MAP_FAILED) return nullptr;
    char* const start = static_cast<char*>(memory);
    const std::size_t before = (kHugePage - reinterpret_cast<std::size_t>(start) % kHugePage) % kHugePage;
    if (before > 0) munmap(start, before);
    munmap(start + before + bytes, mapped - before - bytes);
    madvise(start + before, bytes, MADV_HUGEPAGE);
    return start + before;
}

void unmapPages(void* memory, std::size_t bytes) {
    munmap(memory, bytes);
}

#else

void* mapPages(std::size_t bytes) {
    return std::calloc(bytes, 1);
}

void unmapPages(void* memory, std::size_t) {
    std::free(memory);
}

#endif

struct Block {
    void* memory;
    std::size_t bytes;
    std::chrono::steady_clock::time_point given = std::chrono::steady_clock::now();
};

class KeptBlocks {
  public:
    static KeptBlocks& instance() {
        static KeptBlocks* const blocks = new KeptBlocks;  // buffers may be given back until the very end
        return *blocks;
    }

    /// Null where there is none of that size.
    void* take(std::size_t bytes) {
        const std::lock_guard lock(mutex_);
        for (auto block = blocks_.rbegin(); block != blocks_.rend(); ++block) {
            if (block->bytes != bytes) continue;
            void* const memory = block->memory;
            kept_ -= bytes;
            blocks_.erase(std::next(block).base());
            return memory;
        }
        return nullptr;
    }

    void give(const Block& block) {
        const std::lock_guard lock(mutex_);
        blocks_.push_back(block);
        kept_ += block.bytes;
        release(most_);
    }

    void drop(std::chrono::steady_clock::duration unused) {
        const std::lock_guard lock(mutex_);
        const auto now = std::chrono::steady_clock::now();
        while (!blocks_.empty() && now - blocks_.front().given >= unused)
            releaseOldest();
    }

    void keep(std::size_t most) {
        const std::lock_guard lock(mutex_);
        most_ = most;
        release(most_);
    }

  private:
    void release(std::size_t most) {
        while (kept_ > most)
            releaseOldest();
    }
    void releaseOldest() {
        kept_ -= blocks_.front().bytes;
        unmapPages(blocks_.front().memory, blocks_.front().bytes);
        blocks_.pop_front();
    }

    std::mutex mutex_;
    std::deque<Block> blocks_;  ///< the latest at the end
    std::size_t kept_ = 0, most_ = 0;
};

}  // namespace

void* takePixelMemory(std::size_t bytes, PixelContents contents) {
    const bool zeros = contents == PixelContents::zeros;
    if (!isLarge(bytes)) return zeros ? std::calloc(bytes, 1) : std::malloc(bytes);
    const std::size_t whole = wholePages(bytes);
    void* const kept = KeptBlocks::instance().take(whole);
    if (kept && zeros) std::memset(kept, 0, bytes);
    return kept ? kept : mapPages(whole);
}

void givePixelMemory(void* memory, std::size_t bytes) {
    if (!memory) return;
    isLarge(bytes) ? KeptBlocks::instance().give({memory, wholePages(bytes)}) : std::free(memory);
}

void keepPixelMemory(std::size_t most) {
    KeptBlocks::instance().keep(most);
}

void dropPixelMemory(std::chrono::steady_clock::duration unused) {
    KeptBlocks::instance().drop(unused);
}

}  // namespace tavrin
