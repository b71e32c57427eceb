#include "ui/frame/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QPalette>
#include <QProxyStyle>
#include <QStyleOption>

#include "ui/WindowSettings.h"
#include "ui/frame/Icons.h"

namespace tavrin {

namespace {

constexpr const char* kThemeKey = "theme";

struct Colours {
    QRgb window, base, button, text, quiet, line, accent, accentText, handle;
};
constexpr Colours kDark{0xff323232, 0xff262626, 0xff464646, 0xffececec, 0xffaaaaaa,
                        0xff5a5a5a, 0xff4f9de8, 0xff101010, 0xffececec};
constexpr Colours kLight{0xfff0f0f0, 0xffffffff, 0xffe2e2e2, 0xff1c1c1c, 0xff595959,
                         0xffb4b4b4, 0xff1b66b8, 0xffffffff, 0xffffffff};

QPalette paletteOf(const Colours& c) {
    QPalette palette{QColor(c.button), QColor(c.window)};
    palette.setColor(QPalette::Window, c.window);
    palette.setColor(QPalette::Base, c.base);
    palette.setColor(QPalette::AlternateBase, c.window);
    palette.setColor(QPalette::Button, c.button);
    palette.setColor(QPalette::Mid, c.line);
    palette.setColor(QPalette::Light, c.button);  // lines of bars
    palette.setColor(QPalette::Highlight, c.accent);
    palette.setColor(QPalette::HighlightedText, c.accentText);
    palette.setColor(QPalette::Link, c.accent);
    palette.setColor(QPalette::BrightText, c.handle);  // handles of sliders
    palette.setColor(QPalette::ToolTipBase, c.base);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText})
        palette.setColor(role, c.text);
    palette.setColor(QPalette::PlaceholderText, c.quiet);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, c.quiet);
    return palette;
}

// By roles of the palette, so that it holds for every theme.
constexpr const char* kStyleSheet = R"(
QToolButton[segment="true"] { border: 1px solid palette(mid); background: palette(base); padding: 3px 2px; margin: 0; }
QToolButton[segment="true"]:checked { background: palette(highlight); color: palette(highlighted-text); }
QToolButton[segment="true"]:focus { border: 2px solid palette(highlight); padding: 2px 1px; }
QToolButton[segment="true"]:checked:focus { border-color: palette(window-text); }
QToolButton[groupTitle="true"] { border: 0; font-weight: bold; padding: 4px 0; text-align: left; }
QToolButton[groupTitle="true"]:focus, QToolButton[quiet="true"]:focus { border: 2px solid palette(highlight); }
QToolButton[quiet="true"] { border: 0; padding: 2px 4px; color: palette(placeholder-text); }
QToolButton[quiet="true"]:hover { color: palette(window-text); }
QToolButton[chip="true"] { border: 0; border-radius: 8px; padding: 2px 6px; background: palette(button); }
QToolButton[chip="true"]:focus { border: 2px solid palette(highlight); padding: 0 4px; }
QToolButton[dot="true"] { border: 0; padding: 0 3px; color: palette(highlight); font-size: 14pt; max-height: 18px; }
QToolButton[tab="true"] { border: 0; border-radius: 5px; padding: 6px 8px; }
QToolButton[tab="true"]:checked { background: palette(button); font-weight: bold; }
QToolButton[tab="true"]:focus { border: 2px solid palette(highlight); padding: 4px 6px; }
QLabel[pageTitle="true"] { color: palette(placeholder-text); padding: 6px 0 0 0; }
QToolButton#Save { background: palette(highlight); color: palette(highlighted-text); border-radius: 5px;
                   padding: 6px 18px; font-weight: bold; }
QToolButton#Save:disabled { background: palette(button); color: palette(placeholder-text); }
QToolButton#Save:focus { border: 2px solid palette(window-text); padding: 4px 16px; }
NumberField, QLineEdit { border: 1px solid palette(mid); border-radius: 3px; background: palette(base); padding: 2px; }
QLineEdit:focus { border: 2px solid palette(highlight); padding: 1px; }
QFrame#messageBar { background: palette(button); border-bottom: 1px solid palette(mid); }
)";

/// Boxes whose outline can be seen on any ground, and icons of menus in the colour of their text.
class DeskStyle : public QProxyStyle {
  public:
    DeskStyle() : QProxyStyle("Fusion") {}

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override {
        const auto* item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
        const bool isChosen = item && element == CE_MenuItem && item->state.testFlag(State_Selected);
        if (!isChosen || item->icon.isNull() || !item->state.testFlag(State_Enabled))
            return QProxyStyle::drawControl(element, option, painter, widget);
        QStyleOptionMenuItem chosen = *item;
        const int side = pixelMetric(PM_SmallIconSize, option, widget);
        chosen.icon = item->icon.pixmap({side, side}, painter->device()->devicePixelRatioF(), QIcon::Selected);
        QProxyStyle::drawControl(element, &chosen, painter, widget);
    }

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override {
        if (element != PE_IndicatorCheckBox) return QProxyStyle::drawPrimitive(element, option, painter, widget);
        const QPalette& palette = option->palette;
        const QRectF box = QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5);
        const bool on = option->state.testFlag(State_On);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(palette.color(on ? QPalette::Highlight : QPalette::PlaceholderText));
        painter->setBrush(palette.color(on ? QPalette::Highlight : QPalette::Base));
        painter->drawRoundedRect(box, 2, 2);
        if (on) {
            painter->setPen(QPen(palette.color(QPalette::HighlightedText), 2));
            const auto at = [&](double x, double y) {
                return QPointF(box.x() + x * box.width(), box.y() + y * box.height());
            };
            const QPointF tick[] = {at(0.22, 0.52), at(0.42, 0.72), at(0.78, 0.28)};
            painter->drawPolyline(tick, 3);
        }
        painter->restore();
    }
};

/// The desktop's own colours, before a theme took their place.
bool desktopIsDark() {
    static const bool dark = [] {
        const QPalette palette = QApplication::palette();
        return palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
    }();
    return dark;
}

}  // namespace

QString nameOf(Theme theme) {
    return theme == Theme::dark ? "dark" : theme == Theme::light ? "light" : "desktop";
}

Theme themeOf(const QString& name) {
    return name == "dark" ? Theme::dark : name == "light" ? Theme::light : Theme::desktop;
}

void useTheme(Theme theme) {
    const bool dark = theme == Theme::dark || (theme == Theme::desktop && desktopIsDark());
    useIconTheme(dark);
    QApplication::setStyle(new DeskStyle);
    QApplication::setPalette(paletteOf(dark ? kDark : kLight));
    qApp->setStyleSheet(kStyleSheet);
}

Theme chosenTheme() {
    return themeOf(windowSettings().value(kThemeKey).toString());
}

void chooseTheme(Theme theme) {
    windowSettings().setValue(kThemeKey, nameOf(theme));
    useTheme(theme);
}

}  // namespace tavrin
