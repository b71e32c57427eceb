#include "ui/frame/Icons.h"

#include <algorithm>

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>

namespace tavrin {

namespace {

constexpr const char* kTheme = "breeze";

QColor inkOf(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled) return palette.color(QPalette::Disabled, QPalette::WindowText);
    return palette.color(mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText);
}

/// Takes the shape of a drawing and gives it the colour that text has.
class LineIcon : public QIconEngine {
  public:
    explicit LineIcon(QIcon drawing) : drawing_(std::move(drawing)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
        const double ratio = painter->device()->devicePixelRatioF();
        painter->drawPixmap(rect, scaledPixmap(rect.size() * ratio, mode, state, ratio));
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
        return scaledPixmap(size, mode, state, 1.0);
    }
    /// @param size in device pixels
    QPixmap scaledPixmap(const QSize& size, QIcon::Mode mode, QIcon::State, qreal scale) override {
        QPixmap picture = drawing_.pixmap(size / scale, scale);
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), inkOf(mode));
        return picture;
    }
    QIconEngine* clone() const override { return new LineIcon(*this); }

  private:
    QIcon drawing_;
};

QIcon drawingOf(const QString& name) {
    const QIcon ofTheme = QIcon::fromTheme(name.section('/', 0, 0));
    // Full-coloured icons of another theme would be blots in one colour.
    if (QIcon::themeName().startsWith(kTheme) && !ofTheme.isNull()) return ofTheme;
    const QString own = ":/icons/" + name.section('/', -1) + ".svg";
    return QFile::exists(own) ? QIcon(own) : QIcon();
}

}  // namespace

QIcon lineIcon(const QString& name) {
    // Without the reader of such drawings none has pixels, and words stand in their place.
    static const bool canBeRead = !QIcon(":/icons/find.svg").pixmap(16).isNull();
    const QIcon drawing = canBeRead ? drawingOf(name) : QIcon();
    return drawing.isNull() ? QIcon() : QIcon(new LineIcon(drawing));
}

void useIconTheme(bool dark) {
    const QStringList places = QIcon::themeSearchPaths();
    const bool isThere = std::any_of(places.begin(), places.end(), [](const QString& place) {
        return QFile::exists(place + '/' + kTheme + "/index.theme");
    });
    if (isThere) QIcon::setThemeName(dark ? QString(kTheme) + "-dark" : kTheme);
}

}  // namespace tavrin
