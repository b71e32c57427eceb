#include <algorithm>
#include <chrono>
#include <cstdint>
#include <gtest/gtest.h>

#include "core/raster/PixelMemory.h"
#include "core/raster/Pixels.h"

namespace tavrin {
namespace {

constexpr int kWidth = 1500, kHeight = 1100;  // 6.3 MB, enough to be kept

struct KeepWhile {
    explicit KeepWhile(std::size_t most) { keepPixelMemory(most); }
    ~KeepWhile() { keepPixelMemory(0); }
};

bool isZero(const PixelBuffer& buffer, int width, int height) {
    const std::uint8_t* const first = buffer.data();
    return std::all_of(first, first + pixelBytes(width, height), [](std::uint8_t byte) { return byte == 0; });
}

TEST(PixelMemory, TheNextPictureOfASizeTakesTheBlockOfTheLast) {
    const KeepWhile keeping(pixelBytes(kWidth, kHeight) * 2);
    const std::uint8_t* given = nullptr;
    {
        const PixelBuffer first(kWidth, kHeight);
        std::fill_n(first.data(), pixelBytes(kWidth, kHeight), std::uint8_t{7});
        given = first.data();
    }
    EXPECT_NE(PixelBuffer(2 * kWidth, kHeight).data(), given) << "of another size";
    const PixelBuffer second(kWidth, kHeight);
    EXPECT_EQ(second.data(), given);
    EXPECT_NE(PixelBuffer(kWidth, kHeight).data(), given) << "it is in use";
}

TEST(PixelMemory, ClearedBuffersAreZeroWhereverTheyComeFrom) {
    const KeepWhile keeping(pixelBytes(kWidth, kHeight) * 2);
    for (const auto& [width, height] : {std::pair{kWidth, kHeight}, std::pair{30, 20}}) {
        for (int turn = 0; turn < 2; ++turn) {
            const PixelBuffer buffer = PixelBuffer::cleared(width, height);
            ASSERT_TRUE(isZero(buffer, width, height)) << width << ", turn " << turn;
            std::fill_n(buffer.data(), pixelBytes(width, height), std::uint8_t{9});
        }
    }
}

TEST(PixelMemory, WhatNobodyWantedForLongGoesBackToTheSystem) {
    const KeepWhile keeping(pixelBytes(kWidth, kHeight) * 2);
    const auto give = [] {
        std::fill_n(PixelBuffer(kWidth, kHeight).data(), pixelBytes(kWidth, kHeight), std::uint8_t{7});
    };
    give();
    dropPixelMemory(std::chrono::hours(1));
    EXPECT_FALSE(isZero(PixelBuffer(kWidth, kHeight), kWidth, kHeight)) << "still kept, as it was left";
    give();
    dropPixelMemory(std::chrono::seconds(0));
    EXPECT_TRUE(isZero(PixelBuffer(kWidth, kHeight), kWidth, kHeight)) << "new pages of the system";
}

TEST(PixelMemory, WhatCannotBeHadIsNull) {
    EXPECT_EQ(PixelBuffer(0, 5).data(), nullptr);
    EXPECT_EQ(PixelBuffer(2'000'000'000, 2'000'000'000).data(), nullptr);
    EXPECT_TRUE(newPicture(2'000'000'000, 2'000'000'000, QImage::Format_RGBX8888).isNull());
}

}  // namespace
}  // namespace tavrin
