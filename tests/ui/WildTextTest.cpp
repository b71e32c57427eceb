// Very long and very many texts, and a font that is gone: the window goes on, and says what is missing.
#include <ctime>

#include <QClipboard>
#include <QFontComboBox>
#include <QGuiApplication>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QToolButton>

#include "support/TextPage.h"
#include "ui/WindowTest.h"
#include "ui/text/TextPage.h"

namespace tavrin {
namespace {

class WildTextTest : public test::WindowTest {
  protected:
    void SetUp() override {
        WindowTest::SetUp();
        open();
        window_->panel()->selectMainTab(4);
    }
    template <class Kind>
    Kind* part(const char* name) {
        return window_->panel()->texts()->findChild<Kind*>(name);
    }
    void press(const char* button) { QTest::mouseClick(part<QToolButton>(button), Qt::LeftButton); }
    /// Seconds that this thread works for something, with all that is shown after it.
    template <class Action>
    static double secondsOf(const Action& action) {
        const auto now = [] {
            timespec time{};
            clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
            return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
        };
        const double before = now();
        action();
        QCoreApplication::processEvents();
        return now() - before;
    }
    static constexpr double kFreeze = 1.0;  ///< a person feels half of it; the machine of a test is busy
};

TEST_F(WildTextTest, ALongTextAndManyItemsFreezeNothing) {
    TAVRIN_NEED_FONTS();
    press("buttonAddText");
    auto* words = part<QPlainTextEdit>("textItemWords");
    const QString text = QString("Sommerfest 2026, ").repeated(600).left(10000);
    words->setFocus();
    words->selectAll();
    QGuiApplication::clipboard()->setText(text);
    EXPECT_LT(secondsOf([&] { words->paste(); }), kFreeze);
    EXPECT_EQ(editor().value("text0.sText"), text.toStdString());
    EXPECT_LT(secondsOf([&] { QTest::keyClick(words, Qt::Key_X); }), kFreeze) << "each key after it";
    ASSERT_TRUE(waitForPicture());
    double longest = 0.0;
    for (int i = info_->iFontObjectCount(); i < 200; ++i)
        longest = std::max(longest, secondsOf([&] { press("buttonAddText"); }));
    EXPECT_LT(longest, kFreeze);
    EXPECT_EQ(info_->iFontObjectCount(), 200);
    EXPECT_EQ(part<QListWidget>("myTableView")->count(), 200);
    press("buttonAddText");
    EXPECT_EQ(info_->iFontObjectCount(), 200);
    EXPECT_TRUE(window_->messages()->isVisible()) << "there is room for no more";
    RecordProperty("longest_ms", static_cast<int>(1000.0 * longest));
    ASSERT_TRUE(waitForPicture());
}

TEST_F(WildTextTest, ALongTextInEveryItemFreezesNothing) {
    const std::string text(10000, 'w');
    for (int i = 0; i < 200; ++i)
        ASSERT_EQ(editor().set("text" + std::to_string(i) + ".sText", text), "");
    EXPECT_LT(secondsOf([&] { window_->binder().UpdateAllUI(); }), kFreeze);
    EXPECT_LT(secondsOf([&] { press("buttonItemEarlier"); }), kFreeze);
    for (int i = 199; i >= 0; --i)
        info_->oFontObject[static_cast<std::size_t>(i)].sText = "";
}

TEST_F(WildTextTest, AFontThatIsGoneIsSaidAndStaysTheItems) {
    press("buttonAddText");
    editor().set("text0.sFontName", "Gone Grotesk");
    window_->binder().UpdateAllUI();
    auto* font = part<QFontComboBox>("fontPicker");
    ASSERT_NE(font, nullptr);
    EXPECT_EQ(font->currentIndex(), -1);
    EXPECT_EQ(font->placeholderText().toStdString(), "Gone Grotesk (not installed)");
    EXPECT_EQ(editor().value("text0.sFontName"), "Gone Grotesk");
}

}  // namespace
}  // namespace tavrin
