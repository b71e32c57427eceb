#include <climits>
#include <gtest/gtest.h>
#include <random>

#include "core/raster/BoxBlur.h"
#include "core/state/SystemInfo.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

using Bytes = std::vector<std::uint8_t>;
using Ints = std::vector<std::int32_t>;

Bytes noise(int w, int h) {
    std::mt19937 random(7);
    Bytes bytes(static_cast<std::size_t>(4 * w * h));
    for (auto& b : bytes)
        b = static_cast<std::uint8_t>(random());
    return bytes;
}

// One line by definition: every window summed anew.
Ints slowLine(const Ints& line, int r) {
    const int n = static_cast<int>(line.size());
    Ints out;
    for (int i = 0; i < n; ++i) {
        double sum = 0;
        int count = 0;
        for (int j = std::max(0, i - r); j <= std::min(n - 1, i + r); ++j, ++count)
            sum += line[static_cast<std::size_t>(j)];
        const bool middle = i > r && i < n - r;
        out.push_back(static_cast<int>(middle ? sum * (1.0 / (2 * r + 1)) : sum / count));
    }
    return out;
}

TEST(BoxBlur, RowAndColumnFollowTheEdgeRules) {
    const Ints line = {10, 20, 31, 255, 0, 7, 90};
    for (int r : {0, 1, 2, 3, 4, 6, 7, 50}) {
        const int n = static_cast<int>(line.size());
        Ints row(line.size(), -1), column(line.size(), -1), source = line;
        boxBlur_Int({}, source.data(), row.data(), n, 1, r);
        source = line;
        boxBlur_Int({}, source.data(), column.data(), 1, n, r);
        EXPECT_EQ(row, slowLine(line, r)) << r;
        EXPECT_EQ(column, row) << r;
    }
    // Radius 1 by hand: 30/2, 61/3, 306/3, 286/3, 262/3, 97/3, 97/2.
    EXPECT_EQ(slowLine(line, 1), (Ints{15, 20, 102, 95, 87, 32, 48}));
}

// One direction of a picture by definition.
Ints slowLines(const Ints& in, int w, int h, int r, bool rows) {
    const int lines = rows ? h : w, count = rows ? w : h;
    Ints out = in;
    for (int l = 0; l < lines; ++l) {
        const auto at = [&](int i) { return static_cast<std::size_t>(rows ? l * w + i : i * w + l); };
        Ints line;
        for (int i = 0; i < count; ++i)
            line.push_back(in[at(i)]);
        line = slowLine(line, r);
        for (int i = 0; i < count; ++i)
            out[at(i)] = line[static_cast<std::size_t>(i)];
    }
    return out;
}

TEST(BoxBlur, EveryTargetBlursLineByLine) {
    std::mt19937 random(3);
    for (const auto& [w, h] : {std::pair{1, 1}, {3, 18}, {21, 2}, {150, 37}, {16, 33}}) {
        for (const int r : {0, 1, 4, 20}) {
            Ints in(static_cast<std::size_t>(w * h));
            for (auto& sample : in)
                sample = static_cast<std::int32_t>(random());
            const Ints rows = slowLines(in, w, h, r, true), both = slowLines(rows, w, h, r, false);
            test::onEveryTarget([&] {
                Ints src = in, dst(in.size());
                boxBlur_Int({}, src.data(), dst.data(), w, h, r);
                EXPECT_EQ(src, rows) << w << " x " << h << ", " << r;
                EXPECT_EQ(dst, both) << w << " x " << h << ", " << r;
            });
        }
    }
}

TEST(BoxBlur, BytesBlurLikeThreeSeparatePlanesAndAlphaIsCarried) {
    const int w = 67, h = 41, r = 5;
    const Bytes original = noise(w, h);
    Bytes src = original, dst(original.size(), 0);
    gaussBlur_4({}, src.data(), dst.data(), w, h, r);
    test::onEveryTarget([&] {
        Bytes again = original, blurred(original.size(), 0);
        gaussBlur_4({}, again.data(), blurred.data(), w, h, r);
        EXPECT_EQ(blurred, dst);
    });
    for (int c = 0; c < 3; ++c) {
        Ints plane, blurred(original.size() / 4);
        for (std::size_t i = static_cast<std::size_t>(c); i < original.size(); i += 4)
            plane.push_back(original[i]);
        gaussBlur_Int({}, plane.data(), blurred.data(), w, h, r);
        for (std::size_t i = 0; i < blurred.size(); ++i)
            ASSERT_EQ(dst[4 * i + static_cast<std::size_t>(c)], blurred[i]);
    }
    for (std::size_t i = 3; i < original.size(); i += 4)
        ASSERT_EQ(dst[i], original[i]);
}

TEST(BoxBlur, ConstantStaysConstantAndRadiusZeroChangesNothing) {
    for (int r : {0, 1, 3, 10, 40}) {
        Ints src(31 * 17, 201), dst(src.size());
        gaussBlur_Int({}, src.data(), dst.data(), 31, 17, r);
        EXPECT_EQ(dst, Ints(src.size(), 201)) << r;
    }
    const Bytes original = noise(9, 5);
    Bytes src = original, dst(original.size());
    gaussBlur_4({}, src.data(), dst.data(), 9, 5, 0);
    EXPECT_EQ(dst, original);
}

TEST(BoxBlur, AnyRadiusAndSizeIsSafe) {
    for (int r : {INT_MIN, -1, 0, 2, INT_MAX}) {
        for (auto [w, h] : {std::pair{1, 1}, {4, 4}, {33, 1}, {1, 33}, {65, 3}}) {
            Bytes src = noise(w, h), dst(src.size());
            gaussBlur_4({}, src.data(), dst.data(), w, h, r);
            Ints ints(static_cast<std::size_t>(w * h), INT_MAX), out(ints.size());
            ints[0] = INT_MIN;
            gaussBlur_Int({}, ints.data(), out.data(), w, h, r);
            EXPECT_TRUE(w * h == 1 || r < INT_MAX || out[0] > 0);
        }
    }
    gaussBlur_4({}, nullptr, nullptr, 4, 4, 1);
    gaussBlur_Int({}, nullptr, nullptr, 0, -1, 1);
}

TEST(BoxBlur, ThreadsDoNotChangeBytes) {
    const int w = 131, h = 77;
    const Bytes original = noise(w, h);
    Bytes one(original.size()), many(original.size());
    for (Bytes* out : {&one, &many}) {
        Bytes src = original;
        std::unique_ptr<ThreadLimit> limit = out == &one ? std::make_unique<ThreadLimit>(1) : nullptr;
        gaussBlur_4({}, src.data(), out->data(), w, h, 9);
    }
    EXPECT_EQ(one, many);
}

TEST(BoxBlur, IntegersStopWhenStaleUnlessForced) {
    SystemInfo info;
    Ints src(400, 5), dst(400, -3);
    src[0] = 100;
    ASSERT_TRUE(info.isStale());
    EXPECT_FALSE(gaussBlur_Int(info.rowsWhileWanted(), src.data(), dst.data(), 20, 20, 2));
    EXPECT_EQ(dst, Ints(400, -3));
    info.bLightingForceCompute = true;
    EXPECT_TRUE(gaussBlur_Int(info.rowsWhileWanted(), src.data(), dst.data(), 20, 20, 2));
    EXPECT_GT(dst[0], 5);
}

}  // namespace
}  // namespace tavrin
