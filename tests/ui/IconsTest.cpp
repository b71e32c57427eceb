#include <QToolButton>

#include "ui/WindowTest.h"
#include "ui/frame/Icons.h"
#include "ui/frame/Theme.h"

namespace tavrin {
namespace {

using IconsTest = test::WindowTest;

/// The most covered pixel of an icon.
QColor inkOf(const QPixmap& picture) {
    const QImage pixels = picture.toImage();
    QColor ink(0, 0, 0, 0);
    for (int y = 0; y < pixels.height(); ++y)
        for (int x = 0; x < pixels.width(); ++x)
            if (const QColor here = pixels.pixelColor(x, y); here.alpha() > ink.alpha()) ink = here;
    return ink;
}

TEST_F(IconsTest, HaveTheColourOfTheTextInEveryThemeAndThePixelsOfTheScreen) {
    open();
    const auto* button = window_->findChild<QToolButton*>("ShowSplit");
    ASSERT_NE(button, nullptr);
    ASSERT_FALSE(button->icon().isNull());
    EXPECT_EQ(button->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    for (const Theme theme : {Theme::light, Theme::dark}) {
        useTheme(theme);
        const QColor text = QApplication::palette().color(QPalette::WindowText);
        for (const QString& name : {QString("/split"), QString("zoom-in/larger")}) {
            const QPixmap picture = lineIcon(name).pixmap(QSize(22, 22), 2.0);
            EXPECT_EQ(picture.size(), QSize(44, 44)) << name.toStdString();
            const QColor ink = inkOf(picture);
            EXPECT_GT(ink.alpha(), 200);
            EXPECT_LT(std::abs(ink.lightness() - text.lightness()), 12) << name.toStdString();
        }
    }
    EXPECT_TRUE(lineIcon("no-such-icon/neither").isNull());
    useTheme(Theme::light);
}

/// Where the icon does not stand for itself there are words, and each is named for those who hear the window.
TEST_F(IconsTest, EveryButtonOfTheBarsShowsSomethingAndIsNamed) {
    open();
    for (const char* bar : {"viewBar", "mainTools"}) {
        for (const QToolButton* button : window_->findChild<QWidget*>(bar)->findChildren<QToolButton*>()) {
            if (!button->defaultAction()) continue;
            const bool shows = button->toolButtonStyle() == Qt::ToolButtonIconOnly ? !button->icon().isNull()
                                                                                   : !button->text().isEmpty();
            EXPECT_TRUE(shows) << button->objectName().toStdString();
            EXPECT_FALSE(button->accessibleName().isEmpty()) << button->objectName().toStdString();
            EXPECT_FALSE(button->toolTip().isEmpty()) << button->objectName().toStdString();
        }
    }
}

}  // namespace
}  // namespace tavrin
