#include <gtest/gtest.h>
#include <set>

#include "core/raster/FloatArray3.h"
#include "core/state/SystemInfo.h"

namespace tavrin {
namespace {

TEST(State, FreshRecordHasTheDefaultsAndNoBuffers) {
    const BitmapInfo record;
    EXPECT_EQ(record.iContrast, 50);
    EXPECT_EQ(record.fScale, 1.0);
    EXPECT_EQ(record.fOrgScale, 1.0);
    EXPECT_EQ(record.iComboZoom, 250);
    EXPECT_TRUE(record.bPreserveLuminosity);
    EXPECT_TRUE(record.orgImage.isNull());
    EXPECT_EQ(record.orgBitmapData, nullptr);
    EXPECT_EQ(record.pBitmapData, nullptr);
    EXPECT_EQ(record.pBitmapDataLowRes, nullptr);
    EXPECT_EQ(record.oBitmapRep, nullptr);
}

TEST(State, ResetKeepsWhatBelongsToTheFileAndTheSession) {
    BitmapInfo record(BitmapInfo::kBackground);
    record.sSourceImageFullPath = "/somewhere/a.jpg";
    record.bBlackAndWhite = true;
    record.bHaveBitmap = true;
    record.bScaleChange = true;
    record.bOrgFileChange = true;
    record.iContrast = 70;
    record.fTilt = 4.0;
    record.BitmapDisplayInfoReset();
    EXPECT_EQ(record.sSourceImageFullPath.load(), "/somewhere/a.jpg");
    EXPECT_TRUE(record.bBlackAndWhite);
    EXPECT_TRUE(record.bHaveBitmap);
    EXPECT_TRUE(record.bScaleChange);
    EXPECT_FALSE(record.bOrgFileChange);
    EXPECT_EQ(record.iContrast, 50);
    EXPECT_EQ(record.fTilt, 0.0);
    EXPECT_EQ(record.iBitmapType, BitmapInfo::kBackground);
}

TEST(State, SettingNamesAreUniqueAndStatesShareNothing) {
    std::set<std::string> keys;
    for (const auto& leaf : Settings::leaves())
        EXPECT_TRUE(keys.insert(leaf.key).second) << leaf.key;
    SystemInfo one, two;
    one.pForegroundBitmapInfo->allocateBuffers(4, 3, 2, 1);
    two.pForegroundBitmapInfo->allocateBuffers(4, 3, 2, 1);
    ASSERT_TRUE(one.pForegroundBitmapInfo->pBitmapData);
    EXPECT_NE(one.pForegroundBitmapInfo->pBitmapData, two.pForegroundBitmapInfo->pBitmapData);
}

TEST(State, StartUpdateWakesAWaiterAtOnce) {
    SystemInfo info;
    EXPECT_TRUE(info.isStale());
    info.iCurrentThreadCount = 2;
    info.StartUpdate();
    EXPECT_EQ(info.iNewThreadCount, 3);
    const auto start = std::chrono::steady_clock::now();
    info.waitForUpdate(std::chrono::seconds(20));
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

TEST(FloatArray3, IndexesOneBlockRowByRow) {
    float*** p = memAllocFloat3(2, 3, 3);
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(p[1][2] - p[0][0], 15);
    p[1][2][2 + 10] = 1.0F;  // the ten spare floats at the end belong to the block
    memFreeFloat3(p);
    memFreeFloat3(nullptr);
    EXPECT_EQ(memAllocFloat3(1 << 30, 1 << 30, 1 << 30), nullptr);
}

}  // namespace
}  // namespace tavrin
