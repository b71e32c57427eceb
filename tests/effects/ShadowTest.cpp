#include <gtest/gtest.h>

#include "core/raster/Pixels.h"
#include "effects/Shadow.h"
#include "support/Portrait.h"

namespace tavrin {
namespace {

using namespace test;

// Ten by ten pixels of screen with one pixel of skin, before a background of 100: a shadow of strength 1/2 and a blur
// that reaches one pixel, life-size, on a flat wall.
class ShadowTest : public testing::Test {
  protected:
    ShadowTest() { standAt(4, 3); }

    void standAt(int x, int y) {
        Canvas canvas(10, 10, kScreenGreen);
        canvas.set(x, y, kSkinTone);
        use(canvas);
    }
    void use(const Canvas& canvas) {
        const auto settings = std::move(info_);
        info_ = makeState(canvas);
        ShadowSettings& sliders = *info_;
        if (settings) {
            sliders = *settings;
        } else {
            sliders.iSliderShadowRightLeft = sliders.iSliderShadowUpDown = sliders.iSliderShadowBase = 500;
            sliders.iSliderFloorBaseAngle = sliders.iSliderFloorSkew = sliders.iSliderShadowScale = 500;
            sliders.iSliderShadowTransparency = 500;
        }
        const std::size_t bytes = pixelBytes(canvas.width, canvas.height);
        std::fill_n(background(kFull), bytes, std::uint8_t{100});
        std::fill_n(background(kPreview), bytes, std::uint8_t{100});
    }
    std::uint8_t* background(int res) {
        const BitmapInfo& record = *info_->pBackgroundBitmapInfo;
        return res == kFull ? record.pBitmapData : record.pBitmapDataLowRes;
    }
    int at(int x, int y, int channel = 0, int res = kFull) {
        return background(res)[pixelOffset(info_->iOutputPixelWidth, x, y) + static_cast<std::size_t>(channel)];
    }
    // The middle of the only shadow, which is 3 x 3 pixels within the picture, or (-1, -1).
    std::pair<int, int> shadow() {
        AddShadow(*info_, 1, kFull);
        for (int y = 0; y < 9; ++y)
            for (int x = 0; x < 9; ++x)
                if (at(x, y) < 100) return {x + 1, y + 1};
        return {-1, -1};
    }
    using Place = std::pair<int, int>;

    static constexpr int kPreview = 0, kFull = 1;
    std::unique_ptr<SystemInfo> info_;
};

TEST_F(ShadowTest, OnePixelOnTheWallDarkensTheMeanOfItsWindow) {
    info_->iSliderShadowRightLeft = 600;  // two to the right
    info_->iSliderShadowUpDown = 450;     // one down
    AddShadow(*info_, 1, kFull);
    for (int y = 0; y < 10; ++y) {
        for (int x = 0; x < 10; ++x) {
            const bool near = std::abs(x - 6) <= 1 && std::abs(y - 4) <= 1;
            ASSERT_EQ(at(x, y), near ? 94 : 100) << x << ", " << y;  // 100 * (1 - 1/9 * 1/2)
            ASSERT_EQ(at(x, y, 3), 100);
        }
    }
    EXPECT_EQ(at(6, 4, 0, kPreview), 100);
    standAt(0, 0);
    info_->iSliderShadowRightLeft = info_->iSliderShadowUpDown = 500;
    info_->iSliderShadowTransparency = 1000;
    AddShadow(*info_, 1, kFull);
    EXPECT_EQ(at(0, 0), 75);  // one of the four that lie in the picture
    EXPECT_EQ(at(1, 0), 83);
}

TEST_F(ShadowTest, FloorBehindInFrontAndSkewed) {
    info_->iSliderVRoomRight = info_->iSliderVRoomLeft = 1000;  // all floor
    info_->iCheckShadowBehind = 1;
    EXPECT_EQ(shadow(), (Place{4, 5}));  // two rows below the subject, which covers it
    standAt(4, 8);
    info_->iCheckShadowBehind = 0;
    info_->iSliderShadowBase = 650;  // mirrored at row 7
    EXPECT_EQ(shadow(), (Place{4, 6}));
    standAt(4, 5);
    info_->iSliderFloorSkew = 600;  // a column a row
    EXPECT_EQ(shadow(), (Place{7, 9}));
}

TEST_F(ShadowTest, ShadowClimbsTheWallUpright) {
    info_->iSliderVRoomRight = info_->iSliderVRoomLeft = 300;  // wall down to row 7
    info_->iSliderShadowBase = 600;                            // mirrored at row 8
    // Row 9 of the subject falls on row 7; what stands four rows higher falls four rows higher.
    standAt(4, 5);
    EXPECT_EQ(shadow(), (Place{4, 3}));
    // The floor's edge rises to the right by four rows: further left the wall begins lower.
    standAt(4, 5);
    info_->iSliderVRoomLeft = 100;
    EXPECT_EQ(shadow(), (Place{4, 5}));
}

TEST_F(ShadowTest, KeyKnowsScreenFromSubject) {
    const auto casts = [&](Color color) {
        Canvas canvas(10, 10, kScreenGreen);
        canvas.set(4, 3, color);
        use(canvas);
        return shadow() != Place{-1, -1};
    };
    EXPECT_FALSE(casts({20, 80, 25}));  // darker screen lies on the same line
    EXPECT_TRUE(casts({60, 60, 70}));
    EXPECT_FALSE(casts({10, 18, 12}));
    info_->iSliderShadowBlack = 30;
    EXPECT_TRUE(casts({10, 18, 12}));
    use(Canvas(10, 10, {40, 50, 160}));  // blue plays green's part
    info_->bUseBlueLogic = true;
    EXPECT_EQ(shadow(), (Place{-1, -1}));
}

TEST_F(ShadowTest, ClipMarginsCutTheSubjectAndNegativeOnesAreCleared) {
    info_->iSliderClipLeft = 40;
    info_->iSliderClipTop = 30;
    info_->iSliderClipRight = 60;
    info_->iSliderClipBottom = -70;
    EXPECT_EQ(shadow(), (Place{4, 3}));  // on the last column and row that count
    EXPECT_EQ(info_->iSliderClipBottom, 0);
    for (const auto clip :
         {&ClipSettings::iSliderClipLeft, &ClipSettings::iSliderClipTop, &ClipSettings::iSliderClipRight}) {
        standAt(4, 3);
        (*info_).*clip = 70;
        EXPECT_EQ(shadow(), (Place{-1, -1}));
    }
}

TEST_F(ShadowTest, PreviewAloneShowsRoomAndBaseline) {
    for (const bool noSize : {false, true}) {  // no shadow, since it is clear, or since it has no size
        standAt(0, 9);
        info_->iSliderVRoomRight = info_->iSliderVRoomLeft = 500;
        info_->iSliderVRoomTransparency = 500;
        info_->iSliderShadowTransparency = noSize ? 500 : 0;
        info_->iSliderShadowScale = noSize ? 0 : 500;
        info_->iSliderShadowBase = 650;
        AddShadow(*info_, 1, kPreview);
        AddShadow(*info_, 1, kFull);
        EXPECT_EQ(at(3, 5, 1, kPreview), 150);  // half of 100 and 200
        EXPECT_EQ(at(3, 6, 1, kPreview), 125);  // half of 100 and 150
        EXPECT_EQ(at(3, 7, 0, kPreview), 255);
        EXPECT_EQ(at(3, 7, 1, kPreview), 0);
        for (int y = 0; y < 10; ++y)
            EXPECT_EQ(at(3, y, 1, kFull), 100);
    }
}

TEST_F(ShadowTest, NothingToDoAndSuperseded) {
    info_->iSliderShadowScale = 0;
    EXPECT_EQ(shadow(), (Place{-1, -1}));
    info_->iSliderShadowScale = 500;
    info_->StartUpdate();
    EXPECT_EQ(shadow(), (Place{-1, -1}));
    AddShadow(*info_, 1, kPreview);  // a preview run always ends
    EXPECT_LT(at(4, 3, 0, kPreview), 100);
}

TEST_F(ShadowTest, ThreadsAndOddSizesGiveTheSameBytes) {
    for (const auto& [w, h] : {std::pair{97, 203}, std::pair{1, 40}, std::pair{40, 1}}) {
        Bytes results[2];
        withOneAndManyThreads([&](int run) {
            use(person(w, h));
            info_->iSliderVRoomLeft = 300;
            info_->iSliderVRoomRight = 400;
            info_->iSliderShadowBase = 600;
            info_->iSliderFloorSkew = 540;
            info_->iSliderFloorBaseAngle = 560;
            info_->iSliderShadowBlur = 1500;
            info_->iCheckShadowBehind = 1;
            AddShadow(*info_, 1, kFull);
            results[run].assign(background(kFull), background(kFull) + pixelBytes(w, h));
        });
        EXPECT_EQ(results[0], results[1]);
    }
}

}  // namespace
}  // namespace tavrin
