// The film strip of the photo booth: order, places, selection, growing folders.
#include <gtest/gtest.h>
#include <map>

#include "booth/TapeDeckFileSelector.h"

namespace tavrin {
namespace {

using Names = std::vector<std::string>;
using State = DeckPicture::State;

Names numbered(int first, int last) {
    Names names;
    for (int i = first; i <= last; ++i)
        names.push_back("p" + std::to_string(100 + i) + ".jpg");
    return names;
}

class TapeDeckTest : public testing::Test {
  protected:
    TapeDeckTest() { deck_.updateFolder("/in"); }

    /// What the places show, such as "1 2 [3] - -".
    std::string shown() const {
        std::string line;
        for (const DeckSlot& place : deck_.shown()) {
            const std::string position = place.path.empty() ? "-" : place.caption.substr(0, place.caption.find('/'));
            line += (line.empty() ? "" : " ") + (place.isSelected ? "[" + position + "]" : position);
        }
        return line;
    }

    std::map<std::string, State> states_;
    TicketNames tickets_;
    int told_ = 0;
    TapeDeckFileSelector deck_{[this](const std::string& path) {
                                   return DeckPicture{states_.contains(path) ? states_[path] : State::there, {}};
                               },
                               [this](const std::string& stem) { return tickets_.hasStem(stem); },
                               [this] { ++told_; }};
};

TEST_F(TapeDeckTest, AFewPicturesLeavePlacesEmpty) {
    deck_.updateImagesInFolder(numbered(1, 3));
    EXPECT_EQ(shown(), "1 2 3 - -");
    EXPECT_EQ(deck_.shown()[2].caption, "3/3");
    EXPECT_EQ(deck_.getSelectedImageName(), "");
    deck_.imageSelected(4);
    EXPECT_EQ(shown(), "1 2 3 - -");
    deck_.imageSelected(2);
    EXPECT_EQ(shown(), "1 [2] 3 - -");
    EXPECT_EQ(deck_.getSelectedImageName(), "/in/p102.jpg");
    deck_.tapeDeckButtonPushed(5);
    EXPECT_EQ(shown(), "1 2 [3] - -");
}

TEST_F(TapeDeckTest, ANewPictureGoesToTheEndWhateverItsName) {
    deck_.updateImagesInFolder({"b.jpg", "c.jpg"});
    deck_.updateImagesInFolder({"a.jpg", "b.jpg", "c.jpg"});
    EXPECT_EQ(deck_.oOrderedFiles(), (Names{"b.jpg", "c.jpg", "a.jpg"}));
    const int before = told_;
    deck_.updateImagesInFolder({"a.jpg", "b.jpg", "d.jpg"});
    EXPECT_EQ(told_, before) << "as many as before: nothing is looked at";
}

TEST_F(TapeDeckTest, WhoWatchesTheEndSeesNewPicturesSlideIn) {
    deck_.updateImagesInFolder(numbered(1, 5));
    deck_.tapeDeckButtonPushed(5);
    EXPECT_EQ(shown(), "1 2 3 4 [5]");
    deck_.updateImagesInFolder(numbered(1, 6));
    EXPECT_EQ(shown(), "2 3 4 [5] 6");
    deck_.updateImagesInFolder(numbered(1, 7));
    EXPECT_EQ(shown(), "3 4 [5] 6 7");
    deck_.updateImagesInFolder(numbered(1, 8));
    EXPECT_EQ(shown(), "3 4 [5] 6 7") << "two places before the end nothing moves";
}

TEST_F(TapeDeckTest, ButtonsMoveLikeATape) {
    deck_.updateImagesInFolder(numbered(1, 12));
    const auto after = [&](int button) {
        deck_.tapeDeckButtonPushed(button);
        return shown();
    };
    EXPECT_EQ(after(3), "[1] 2 3 4 5");
    EXPECT_EQ(after(4), "[6] 7 8 9 10");
    EXPECT_EQ(after(4), "8 9 10 [11] 12") << "the places end with the folder, and the selection went on by five";
    EXPECT_EQ(after(4), "8 9 10 11 [12]");
    EXPECT_EQ(after(3), "8 9 10 11 [12]");
    EXPECT_EQ(after(2), "3 4 5 6 [7]");
    EXPECT_EQ(after(3), "4 5 6 7 [8]");
    EXPECT_EQ(after(1), "[1] 2 3 4 5");
    EXPECT_EQ(after(2), "[1] 2 3 4 5");
    EXPECT_EQ(after(5), "8 9 10 11 [12]");
}

TEST_F(TapeDeckTest, PicturesThatGoTakeTheSelectionToTheNextOrTheLast) {
    deck_.updateImagesInFolder(numbered(1, 6));
    deck_.imageSelected(3);
    Names without = numbered(1, 6);
    without.erase(without.begin() + 2);
    deck_.updateImagesInFolder(without);
    EXPECT_EQ(deck_.getSelectedImageName(), "/in/p104.jpg");
    deck_.updateImagesInFolder(numbered(1, 2));
    EXPECT_EQ(deck_.getSelectedImageName(), "/in/p102.jpg");
    deck_.updateImagesInFolder({});
    EXPECT_EQ(deck_.iCursor(), -1);
    EXPECT_EQ(shown(), "- - - - -");
}

TEST_F(TapeDeckTest, APictureStillBeingCopiedIsWaitedFor) {
    deck_.updateImagesInFolder(numbered(1, 2));
    states_["/in/p103.jpg"] = State::broken;
    deck_.updateImagesInFolder(numbered(1, 3));
    EXPECT_EQ(shown(), "1 2 - - -") << "the screen stays as it was";
    states_.clear();
    deck_.updateImagesInFolder(numbered(1, 3));
    EXPECT_EQ(shown(), "1 2 3 - -");
}

TEST_F(TapeDeckTest, ASearchShowsFromTheFoundPictureOn) {
    deck_.updateImagesInFolder({"Ann.jpg", "Berta.jpg", "berthold.jpg"});
    EXPECT_EQ(deck_.tapeDeckSearch("BERT"), "Berta.jpg");
    EXPECT_EQ(shown(), "[2] 3 - - -");
    EXPECT_EQ(deck_.tapeDeckSearch("Zoe"), "File Not Found");
    EXPECT_EQ(shown(), "[2] 3 - - -");
    states_["/in/Ann.jpg"] = State::broken;
    EXPECT_EQ(deck_.tapeDeckSearch("ann"), "Could not load Image");
}

TEST_F(TapeDeckTest, AServedGuestIsGrey) {
    tickets_ = TicketNames({"p101_55.qlx", "p10_3.qlx"});
    deck_.updateImagesInFolder({"p10.jpg", "p101.jpg", "p1.jpg"});
    const auto served = [&] {
        return std::vector<bool>{deck_.shown()[0].isServed, deck_.shown()[1].isServed, deck_.shown()[2].isServed};
    };
    EXPECT_EQ(served(), (std::vector<bool>{true, true, false}));
    tickets_.add("p1_4.qlx");
    deck_.updateUI();
    EXPECT_EQ(served(), (std::vector<bool>{true, true, true}));
}

}  // namespace
}  // namespace tavrin
