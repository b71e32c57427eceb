#include <gtest/gtest.h>

#include "session/OutputSizes.h"
#include "support/Pictures.h"

namespace tavrin {
namespace {

TEST(OutputSizes, AChoiceBringsItsPageAndNewBuffersWhereTheOldAreOfAnotherSize) {
    const auto info = test::stateForOutput(60, 40, 40);
    test::addSize(*info, "small", 0.5, 0.5, 40);
    info->oPrinterPages.resize(2);
    info->oPrinterPages[0].sPageTitle = "Large";
    info->oPrinterPages[1].sPageTitle = "Small";
    info->oImageSize[1].sDefaultPrinterPage = "Small";
    const auto choose = [&](auto choice) {
        info->bChangeImageSize = info->bNewOutputSize = false;
        const bool chosen = choice();
        EXPECT_EQ(info->bChangeImageSize, info->bNewOutputSize);
        return chosen && info->bChangeImageSize;
    };
    EXPECT_TRUE(choose([&] { return chooseSize(*info, 0); }));
    EXPECT_TRUE(choose([&] { return chooseSizeByName(*info, "small"); }));
    EXPECT_EQ(info->oQLXInfo->iSelectedPrinterTemplate, 1);
    EXPECT_EQ(info->oQLXInfo->sSelectedPrinterTemplate.load(), "Small");
    EXPECT_EQ(info->iOutputPixelWidth, 60) << "until the loop takes it";
    EXPECT_EQ(useChosenSize(*info), "");
    EXPECT_EQ(info->iOutputPixelWidth, 20);
    EXPECT_FALSE(choose([&] { return chooseSize(*info, 1); })) << "that is in force";

    info->bChangeImageSize = false;
    EXPECT_FALSE(chooseSize(*info, 2) || chooseSize(*info, -1) || chooseSizeByName(*info, "gone"));
    EXPECT_EQ(info->iSelecteImageSize, 1);
    EXPECT_FALSE(info->bChangeImageSize);
    chooseOwnSize(*info, "own", 0.5, 0.5, 80);
    EXPECT_TRUE(info->bChangeImageSize);
    EXPECT_EQ(info->oQLXInfo->iSelectedPrinterTemplate, 0);
}

}  // namespace
}  // namespace tavrin
