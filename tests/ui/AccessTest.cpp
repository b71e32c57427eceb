// Whether everybody can read, hear and reach what stands in the window: contrast, names, tab order, right to left.
#include <cmath>
#include <map>

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>

#include "ui/WindowTest.h"
#include "ui/frame/Theme.h"

namespace tavrin {
namespace {

double luminance(QRgb colour) {
    const auto part = [](int level) {
        const double c = level / 255.0;
        return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(qRed(colour)) + 0.7152 * part(qGreen(colour)) + 0.0722 * part(qBlue(colour));
}

double contrast(QRgb one, QRgb other) {
    const double a = luminance(one), b = luminance(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

/// Of what was painted: the ground is the colour of most pixels, the ink the one that stands out most.
double contrastOf(const QImage& painted) {
    std::map<QRgb, int> counts;
    for (int y = 0; y < painted.height(); ++y)
        for (int x = 0; x < painted.width(); ++x)
            ++counts[painted.pixel(x, y)];
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](const auto& a, const auto& b) { return a.second < b.second; });
    double best = 1.0;
    for (const auto& [colour, count] : counts)
        best = std::max(best, contrast(colour, most->first));
    return best;
}

QString textOf(const QWidget* widget) {
    if (const auto* label = qobject_cast<const QLabel*>(widget)) return label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget)) return button->text();
    if (const auto* box = qobject_cast<const QComboBox*>(widget)) return box->currentText();
    if (const auto* line = qobject_cast<const QLineEdit*>(widget))
        return line->text().isEmpty() ? line->placeholderText() : line->text();
    return {};
}

class AccessTest : public test::WindowTest {
  protected:
    void TearDown() override {
        WindowTest::TearDown();
        QApplication::setLayoutDirection(Qt::LeftToRight);
        useTheme(Theme::light);
    }
    void openUnfolded() {
        open({1440, 900});
        for (GroupBox* group : window_->panel()->groups())
            group->setFolded(false);
        QTest::qWait(50);
    }
    /// Those of a part of the window that Tab reaches, in its order.
    std::vector<QWidget*> tabOrder(const QWidget* part) const {
        std::vector<QWidget*> order;
        for (QWidget* next = window_->nextInFocusChain(); next != window_.get(); next = next->nextInFocusChain())
            if (part->isAncestorOf(next) && next->isVisible() && (next->focusPolicy() & Qt::TabFocus) &&
                !next->focusProxy() && next->isEnabled())
                order.push_back(next);
        return order;
    }
};

TEST_F(AccessTest, EveryTextStandsOutFromItsGroundInBothThemes) {
    for (const Theme theme : {Theme::light, Theme::dark}) {
        useTheme(theme);
        openUnfolded();
        int looked = 0;
        for (QWidget* widget : window_->findChildren<QWidget*>()) {
            const QString text = textOf(widget);
            const bool hasWords = std::any_of(text.begin(), text.end(), [](QChar c) { return c.isLetterOrNumber(); });
            if (!hasWords || !widget->isVisible() || !widget->isEnabled() || widget->visibleRegion().isEmpty())
                continue;
            ++looked;
            EXPECT_GE(contrastOf(widget->grab().toImage()), 4.5)
                << (theme == Theme::dark ? "dark, " : "light, ") << widget->objectName().toStdString() << ": "
                << text.toStdString();
        }
        EXPECT_GT(looked, 60);
    }
}

TEST_F(AccessTest, TabGoesThroughEachBarInTheOrderInWhichItIsSeen) {
    openUnfolded();
    for (const char* name : {"mainTools", "viewBar"}) {
        const std::vector<QWidget*> order = tabOrder(window_->findChild<QWidget*>(name));
        ASSERT_GT(order.size(), 3u) << name;
        for (std::size_t i = 1; i < order.size(); ++i)
            EXPECT_LT(order[i - 1]->mapTo(window_.get(), QPoint()).x(), order[i]->mapTo(window_.get(), QPoint()).x())
                << name << ": " << order[i]->objectName().toStdString();
    }
    // In a panel a row is left for the one below it.
    const std::vector<QWidget*> order = tabOrder(window_->panel());
    for (std::size_t i = 1; i < order.size(); ++i) {
        const auto middle = [&](const QWidget* widget) {
            return widget->mapTo(window_.get(), widget->rect().center()).y();
        };
        EXPECT_GT(middle(order[i]), middle(order[i - 1]) - order[i - 1]->height())
            << order[i - 1]->objectName().toStdString() << " before " << order[i]->objectName().toStdString();
    }
}

TEST_F(AccessTest, ThoseWhoHearTheWindowAreToldTheNameOfAllThatTheyCanReach) {
    openUnfolded();
    for (const char* panel : {"ShowHistory", "ShowLooks", "ShowBackgrounds"})
        action(panel)->trigger();
    QTest::qWait(20);
    int named = 0;
    const std::function<void(QAccessibleInterface*)> walk = [&](QAccessibleInterface* at) {
        if (!at || at->state().invisible) return;
        const auto* widget = qobject_cast<QWidget*>(at->object());
        const bool canBeReached = widget && at->state().focusable && !widget->focusProxy() &&
                                  (widget->focusPolicy() & Qt::TabFocus) && widget->isVisible();
        if (canBeReached) {
            // The name of a box is what it shows; what it is for is its label or a name of its own.
            const QString name = qobject_cast<const QComboBox*>(widget) && at->relations(QAccessible::Label).isEmpty()
                                     ? widget->accessibleName()
                                     : at->text(QAccessible::Name);
            EXPECT_FALSE(name.isEmpty())
                << widget->metaObject()->className() << ' ' << widget->objectName().toStdString();
            ++named;
        }
        for (int i = 0; i < at->childCount(); ++i)
            if (widget) walk(at->child(i));
    };
    walk(QAccessible::queryAccessibleInterface(window_.get()));
    EXPECT_GT(named, 60);
}

TEST_F(AccessTest, WindowsThatAreReadFromTheRightAreMirroredWithNothingCutOff) {
    QApplication::setLayoutDirection(Qt::RightToLeft);
    openUnfolded();
    const auto x = [&](const char* name) {
        return window_->findChild<QWidget*>(name)->mapTo(window_.get(), QPoint()).x();
    };
    EXPECT_GT(x("ZoomOut"), x("sliderZoom"));
    EXPECT_GT(x("sliderZoom"), x("ZoomIn"));
    EXPECT_GT(x("portraitStrip"), x("backgroundStrip"));
    for (const QWidget* widget : window_->findChildren<QWidget*>()) {
        if (!widget->isVisible() || textOf(widget).isEmpty() || qobject_cast<const QLineEdit*>(widget)) continue;
        EXPECT_GE(widget->width(), widget->minimumSizeHint().width()) << textOf(widget).toStdString();
    }
    // The strip still begins where one begins to read, and its arrows go where they point.
    const auto* strip = window_->strip()->portraits()->view();
    EXPECT_EQ(strip->visibleRows().first, 0);
}

}  // namespace
}  // namespace tavrin
