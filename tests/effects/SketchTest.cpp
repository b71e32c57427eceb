#include <gtest/gtest.h>
#include <numeric>

#include "effects/sketch/Sketch.h"
#include "effects/sketch/SketchTools.h"
#include "support/EffectPictures.h"
#include "support/Superseded.h"
#include "support/VectorTargets.h"

namespace tavrin {
namespace {

using namespace test;

constexpr int kTextureWidth = 7, kTextureHeight = 5;

class SketchTest : public testing::Test {
  protected:
    std::unique_ptr<SystemInfo> state(int w, int h, int type) {
        auto info = bareState(w, h);
        info->iCartoonEffectType = type;
        info->iSliderCartoonEffectWidth = 10;
        info->iSliderCartoonEffectSmoothing = 50;
        use(info->PencilCross, pencil_);
        use(info->PencilCross2, crossed_);
        use(info->LightParchment, parchment_);
        return info;
    }
    static void use(LoadedPicture& slot, const Bytes& bytes) {
        slot.rawData = bytes.data();
        slot.iWidth = kTextureWidth;
        slot.iHeight = kTextureHeight;
        slot.stride = kTextureWidth * 4;
    }
    static Bytes sketched(SystemInfo& info, Bytes picture) {
        Sketch(info, 0, picture.data(), info.iOutputPixelWidth, info.iOutputPixelHeight, info.iOutputImageDPI);
        return picture;
    }

    Bytes pencil_ = waves(kTextureWidth, kTextureHeight, 1), crossed_ = waves(kTextureWidth, kTextureHeight, 2),
          parchment_ = waves(kTextureWidth, kTextureHeight, 4);
};

TEST(SketchTools, GreyFollowsTheContrastCurve) {
    // 100 of all channels as a sketch: t = 100/255, u = 1 - t; u^2 * 150 + (1 - u^2) (t^2 * 22.5 + (1 - t^2) 100).
    const std::uint8_t grey[3] = {100, 100, 100}, white[3] = {255, 255, 255}, blue[3] = {0, 0, 200};
    EXPECT_EQ(sketchGrey(grey, 2), 110);
    EXPECT_EQ(sketchGrey(white, 2), 255);
    EXPECT_GT(sketchGrey(blue, 2), sketchGrey(blue, 1));  // 60 percent against 33

    Bytes strided = {9, 9, 9, 7, 100, 100, 100, 7, 9, 1, 2, 3, 7};  // rows of 9 bytes, one pixel in each at byte 0
    ConvertBitmapToBlackAndWhite(strided.data() + 4, 1, 2, 4, 5, 3);
    EXPECT_EQ(strided[4], 110);
    EXPECT_EQ(strided[7], 7);
    EXPECT_EQ(strided[8], 9);
    EXPECT_EQ(strided[9], strided[11]);
    EXPECT_EQ(strided[12], 7);
}

// The window summed anew for every sample.
std::vector<std::uint16_t> blurredPlainly(const std::vector<std::uint16_t>& in, int w, int h, int radius) {
    auto from = in, to = in;
    for (const bool alongRow : {true, false}) {
        for (int i = 0; i < w * h * 4; ++i) {
            if (i % 4 == 3) continue;
            const int x = i / 4 % w, y = i / 4 / w;
            std::int64_t sum = 0, weights = 0;
            for (int d = -radius; d <= radius; ++d) {
                const int at = (alongRow ? x : y) + d;
                if (at < 0 || at >= (alongRow ? w : h)) continue;
                const std::int64_t k = radius - std::abs(d), weight = d == 0 ? k * k : k * k + 1;
                sum += weight * from[static_cast<std::size_t>(i + d * 4 * (alongRow ? 1 : w))];
                weights += weight;
            }
            to[static_cast<std::size_t>(i)] = static_cast<std::uint16_t>(sum / weights);
        }
        from = to;
    }
    return to;
}

TEST(SketchTools, TheBlurIsTheWindowOfItsDefinition) {
    const auto info = bareState(1, 1);
    std::vector<std::uint16_t> spike(20, 0);
    spike[8] = 100;  // weights 1 2 4 2 1, those outside left out
    GaussianBlurBitmap(*info, spike.data(), 5, 1, 2);
    const int expected[] = {100 / 7, 200 / 9, 400 / 10, 200 / 9, 100 / 7};
    for (int x = 0; x < 5; ++x)
        EXPECT_EQ(spike[static_cast<std::size_t>(4 * x)], expected[x]);

    std::mt19937 random(6);
    for (const auto& [w, h, radius] :
         {std::tuple{31, 23, 1}, {31, 23, 9}, {17, 40, 60}, {1, 9, 3}, {90, 2, 700}, {300, 1, 40'000}}) {
        std::vector<std::uint16_t> noise(static_cast<std::size_t>(4 * w * h));
        for (auto& sample : noise)
            sample = static_cast<std::uint16_t>(random() % 3 ? random() : 65535);
        const auto direct = blurredPlainly(noise, w, h, radius);
        onEveryTarget([&] {
            auto blurred = noise;
            GaussianBlurBitmap(*info, blurred.data(), w, h, radius);
            EXPECT_EQ(blurred, direct) << w << " x " << h << ", " << radius;
        });
    }
    std::vector<std::uint16_t> white(64, 65535);
    GaussianBlurBitmap(*info, white.data(), 4, 4, INT_MAX);
    EXPECT_EQ(white, std::vector<std::uint16_t>(64, 65535));
}

TEST_F(SketchTest, FlatAreasAreWhiteAndDarksStayShortOfBlack) {
    const auto first = [&](int type, Color color) {
        const Bytes out = sketched(*state(20, 16, type), plain(20, 16, color));
        return std::array<int, 3>{out[0], out[1], out[2]};
    };
    using Pixel = std::array<int, 3>;
    EXPECT_EQ(first(2, {90, 120, 140}), (Pixel{255, 255, 255}));
    EXPECT_EQ(first(9, {0, 0, 0}), (Pixel{51, 51, 51}));  // 0.2 of 255, and no finish for this type
    EXPECT_EQ(first(2, {0, 0, 0}), (Pixel{0, 0, 0}));     // stretched below 0
    // The cartoon brings colours to full strength; a dark pixel keeps its grey there.
    EXPECT_EQ(first(1, {200, 100, 50}), (Pixel{255, 255 * 100 / 200, 255 * 50 / 200}));
    const int grey = sketchGrey(std::array<std::uint8_t, 3>{40, 20, 10}.data(), 1);
    EXPECT_EQ(first(1, {40, 20, 10}), (Pixel{grey, grey * 20 / 40, grey * 10 / 40}));
}

TEST_F(SketchTest, PencilsTakeMiddleTonesAndDarksAndTheParchmentLies) {
    // The unfinished sketch shows which pencil a pixel gets.
    const int w = 41, h = 37;
    const Bytes input = waves(w, h), raw = sketched(*state(w, h, 9), input);
    const Bytes pencil = sketched(*state(w, h, 3), input), paper = sketched(*state(w, h, 4), input);
    onEveryTarget([&] {
        EXPECT_EQ(sketched(*state(w, h, 3), input), pencil);
        EXPECT_EQ(sketched(*state(w, h, 4), input), paper);
    });
    int seen[3] = {};
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const std::size_t at = pixelOffset(w, x, y);
            const std::size_t texture = pixelOffset(kTextureWidth, x * kTextureWidth / w, y * kTextureHeight / h);
            double v = raw[at];
            ++seen[v < 127 ? 0 : v < 250 ? 1 : 2];
            if (v < 127) {
                v = crossed_[texture];
            } else if (v < 250) {
                const double a = pencil_[texture] / 255.0;
                v = std::clamp((255 * a + (1 - a) * v - 255) * 4 + 255, 0.0, 255.0);
            }
            EXPECT_EQ(pencil[at], static_cast<int>(std::max((v - 255) * 1.5 + 255, 0.0))) << x << ", " << y;
            const double light = v < 128 ? 0 : 2 * v - 255;
            EXPECT_EQ(paper[at + 2], static_cast<int>(light * parchment_[texture + 2] / 255)) << x << ", " << y;
        }
    }
    for (const int count : seen)
        EXPECT_GT(count, 20);
}

// Step by step, one pixel at a time.
class PlainSketch {
  public:
    PlainSketch(const Bytes& in, int w, int h, int type) : in_(in), w_(w), h_(h), type_(type) {
        for (std::size_t i = 0; i < in.size(); i += 4)
            grey_.push_back(sketchGrey(&in[i], type));
    }

    Bytes drawn(int nearness, int reach) const {
        Bytes flat = grey_;
        std::vector<std::uint16_t> negative(in_.size());
        for (int y = 0; y < h_; ++y) {
            for (int x = 0; x < w_; ++x) {
                const std::size_t i = static_cast<std::size_t>(y * w_ + x);
                const int counted = flatten(x, y, nearness, flat[i]);
                std::fill_n(&negative[i * 4], 3, static_cast<std::uint16_t>((255 - counted) * 255));
            }
        }
        negative = blurredPlainly(negative, w_, h_, reach);
        Bytes out = in_;
        for (std::size_t i = 0; i < grey_.size(); ++i)
            finish(dodged(grey_[i], flat[i], negative[i * 4]), grey_[i], &out[i * 4]);
        return out;
    }

  private:
    // Sets the flattened grey and returns the one that counts for the negative.
    int flatten(int x, int y, int nearness, std::uint8_t& flat) const {
        std::vector<int> block;
        for (int py = std::max(y - 3, 0); py <= std::min(y + 3, h_ - 1); ++py) {
            for (int px = std::max(x - 3, 0); px <= std::min(x + 3, w_ - 1); ++px)
                block.push_back(grey_[static_cast<std::size_t>(py * w_ + px)]);
        }
        const int size = static_cast<int>(block.size()), mean = std::accumulate(block.begin(), block.end(), 0) / size;
        int count = 0, sum = 0;
        for (const int grey : block) {
            if (std::abs(grey - mean) > nearness) continue;
            ++count;
            sum += grey;
        }
        if (!(static_cast<double>(count) / size > 0.6)) return std::clamp(2 * flat - mean, 0, 255);
        flat = static_cast<std::uint8_t>(sum / count);
        return flat;
    }
    static int dodged(int grey, int flat, int negative) {
        if (grey < 30) return 51;
        const double n = negative / 65025.0, p = flat / 255.0;
        if (n == 1.0) return 255;
        return static_cast<int>(std::min(std::clamp(p + p - (1.0 - n), 0.0, 1.0) / (1.0 - n), 1.0) * 255.0);
    }
    void finish(int value, int grey, std::uint8_t* pixel) const {
        if (type_ == 1) value = grey < 50 ? grey : value > 240 ? 255 : 0;
        const int strongest = std::max({pixel[0], pixel[1], pixel[2]});
        for (int c = 0; c < 3; ++c)
            pixel[c] = static_cast<std::uint8_t>(type_ == 1 && strongest > 0 ? value * pixel[c] / strongest : value);
    }

    const Bytes& in_;
    int w_, h_, type_;
    Bytes grey_;
};

TEST_F(SketchTest, EveryTargetDrawsWhatTheStepsSay) {
    for (const auto& [w, h] : {std::pair{1, 1}, {5, 9}, {16, 3}, {83, 61}}) {
        for (const int type : {1, 9}) {
            for (const int nearness : {0, 3, 30}) {
                const auto info = state(w, h, type);
                info->iSliderCartoonEffectSmoothing = nearness * 16;
                Bytes input = waves(w, h);
                for (std::size_t i = 0; i < input.size() / 3; ++i)
                    input[i] /= 6;                                                        // some darks
                const Bytes direct = PlainSketch(input, w, h, type).drawn(nearness, 15);  // 10 * 300 / 200
                onEveryTarget([&] { EXPECT_EQ(sketched(*info, input), direct) << w << " x " << h << ", " << type; });
            }
        }
    }
}

TEST_F(SketchTest, WithoutItsTexturesItIsDrawnInGrey) {
    const Bytes input = waves(30, 20), grey = sketched(*state(30, 20, 2), input);
    const auto bare = state(30, 20, 4);
    bare->PencilCross = {};
    EXPECT_EQ(sketched(*bare, input), grey);
    const auto noPaper = state(30, 20, 4);
    noPaper->LightParchment.stride = 3;
    EXPECT_EQ(sketched(*noPaper, input), sketched(*state(30, 20, 3), input));
}

TEST_F(SketchTest, EveryShapeAnyNumberOfThreadsAndWildSettings) {
    for (const auto& [w, h] : {std::pair{1, 1}, {1, 40}, {37, 1}, {16, 7}, {101, 67}}) {
        for (int type = 0; type <= 5; ++type) {
            const auto info = state(w, h, type);
            sameOnAllThreads(waves(w, h), [&](std::uint8_t* p) { Sketch(*info, 0, p, w, h, 0); });
            for (const int value : kExtremes) {
                info->iSliderCartoonEffectWidth = info->iSliderCartoonEffectSmoothing = value;
                sketched(*info, waves(w, h));
            }
        }
    }
}

TEST_F(SketchTest, ASupersededRunStopsUnlessItIsForced) {
    const auto info = state(60, 50, 2);
    const Bytes before = waves(60, 50), whole = sketched(*info, before);
    info->StartUpdate();
    EXPECT_EQ(sketched(*info, before), before);
    info->bLightingForceCompute = true;
    EXPECT_EQ(sketched(*info, before), whole);

    const auto large = state(900, 700, 3);
    Bytes picture = waves(900, 700);
    expectStopsEarly(*large, [&] { Sketch(*large, 0, picture.data(), 900, 700, 300); });
}

}  // namespace
}  // namespace tavrin
