#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <memory>

#include "core/state/ChangeFlags.h"
#include "core/state/SettingNames.h"
#include "session/TextItems.h"

namespace tavrin {
namespace {

using testing::ElementsAre;

class TextItemsListTest : public testing::Test {
  protected:
    void add(const char* text, const char* level = "Frame Layer") {
        FontObject item;
        item.sText = text;
        item.sLevel = level;
        item.iFontSize = 10 + static_cast<int>(info_->oFontObject.size());
        EXPECT_EQ(addItem(editor_, item), "");
    }
    std::vector<std::string> texts() const {
        std::vector<std::string> texts;
        for (const FontObject& item : info_->oFontObject)
            texts.push_back(item.sText.load() + std::to_string(item.iFontSize));
        return texts;
    }

    std::unique_ptr<SystemInfo> info_ = std::make_unique<SystemInfo>();
    SettingEditor editor_{*info_};
};

TEST_F(TextItemsListTest, EveryChangeIsOneStepThatCanBeTakenBackAndDoneAgain) {
    std::vector<std::vector<std::string>> states = {texts()};
    const auto then = [&](auto change) {
        change();
        states.push_back(texts());
    };
    then([&] { add("a"); });
    then([&] { add("b"); });
    then([&] { add("c"); });
    then([&] { removeItem(editor_, 0); });
    then([&] { editor_.set("text1.sText", "d"); });
    then([&] { moveItem(editor_, 0, 1); });
    then([&] { add("e"); });
    then([&] { moveItem(editor_, 2, 0); });
    then([&] { removeItem(editor_, 2); });
    EXPECT_THAT(texts(), ElementsAre("e12", "d12"));
    ASSERT_EQ(editor_.steps().size() + 1, states.size());
    for (std::size_t i = states.size() - 1; i-- > 0;) {
        ASSERT_TRUE(editor_.undo());
        EXPECT_EQ(texts(), states[i]) << "back to " << i;
    }
    EXPECT_EQ(info_->iFontObjectCount(), 0);
    for (std::size_t i = 1; i < states.size(); ++i) {
        ASSERT_TRUE(editor_.redo());
        EXPECT_EQ(texts(), states[i]) << "again to " << i;
    }
}

TEST_F(TextItemsListTest, ItemsOnTheBackgroundHaveItMadeAnew) {
    add("behind", "Background");
    add("before");
    info_->pBackgroundBitmapInfo->bScaleChange = false;
    removeItem(editor_, 0);
    EXPECT_TRUE(info_->pBackgroundBitmapInfo->bScaleChange);
}

TEST_F(TextItemsListTest, HoldsTwoHundredAndRefusesRowsThatAreNotThere) {
    for (int i = 0; i < 200; ++i)
        add("x");
    EXPECT_NE(addItem(editor_, FontObject()), "");
    EXPECT_EQ(info_->iFontObjectCount(), 200);
    const std::size_t steps = editor_.steps().size();
    removeItem(editor_, 200);
    moveItem(editor_, 0, 200);
    EXPECT_EQ(editor_.steps().size(), steps);
    EXPECT_NE(setField(*info_, kItemCount, "201"), "");
    EXPECT_NE(setField(*info_, kItemCount, "-1"), "");
    EXPECT_EQ(info_->iFontObjectCount(), 200);
    EXPECT_EQ(fieldValue(*info_, kItemCount), "200");
}

}  // namespace
}  // namespace tavrin
