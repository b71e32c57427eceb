#include "ui/bind/ColourRow.h"

#include <utility>

#include <QColorDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QToolButton>

namespace tavrin {

namespace {

constexpr QSize kSwatch(32, 18);

}  // namespace

ColourRow::ColourRow(const ColourSetting& setting, Binder& binder, QWidget* parent)
    : QWidget(parent), setting_(setting), binder_(binder), button_(new QToolButton(this)) {
    setAccessibleName(ControlRow::translated(setting.label));
    button_->setObjectName(setting.control);
    button_->setProperty("handler", setting.handler);
    button_->setText(accessibleName());
    button_->setToolTip(ControlRow::translated(setting.toolTip));
    button_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button_->setIconSize(kSwatch);
    button_->setFocusPolicy(Qt::StrongFocus);
    button_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(button_, &QToolButton::clicked, this, &ColourRow::choose);
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(button_);
    connect(&binder, &Binder::shown, this, &ColourRow::refresh);
    refresh();
}

std::string ColourRow::name(const char* setting) const {
    return ownerPrefix(binder_.editor().info(), setting_.owner) + setting;
}

QColor ColourRow::colour() const {
    const auto channel = [this](const char* setting) {
        const double value = QString::fromStdString(binder_.editor().value(name(setting))).toDouble();
        return qBound(0, qRound(value * 255.0 / setting_.most), 255);
    };
    return {channel(setting_.red), channel(setting_.green), channel(setting_.blue)};
}

void ColourRow::choose() {
    auto* dialog = new QColorDialog(colour(), this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName(QString(setting_.control) + "Dialog");
    dialog->setWindowTitle(ControlRow::translated(setting_.dialogTitle));
    step_ = 0;
    connect(dialog, &QColorDialog::currentColorChanged, this, &ColourRow::set);
    connect(dialog, &QDialog::rejected, this, [this] {
        takeBack();
        binder_.run({}, [](SettingEditor&) {});  // shows what is there now
    });
    dialog->open();
}

/// A dialog may stand open for long, so no step does: each colour takes the place of the one before.
void ColourRow::takeBack() {
    if (const std::uint64_t step = std::exchange(step_, 0)) binder_.editor().dropStep(step);
}

void ColourRow::set(const QColor& colour) {
    if (colour == this->colour()) return;
    takeBack();
    const std::uint64_t position = binder_.editor().position();
    binder_.run(accessibleName(), [&](SettingEditor& editor) {
        const auto put = [&](const char* setting, int channel) {
            editor.set(name(setting), QString::number(channel * setting_.most / 255.0, 'g', 17).toStdString());
        };
        put(setting_.red, colour.red());
        put(setting_.green, colour.green());
        put(setting_.blue, colour.blue());
    });
    if (binder_.editor().position() != position) step_ = binder_.editor().position();
}

void ColourRow::refresh() {
    const double scale = devicePixelRatioF();
    QPixmap swatch(kSwatch * scale);
    swatch.setDevicePixelRatio(scale);
    swatch.fill(colour());
    QPainter painter(&swatch);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawRect(QRectF(0.5, 0.5, kSwatch.width() - 1.0, kSwatch.height() - 1.0));
    painter.end();
    button_->setIcon(swatch);
}

}  // namespace tavrin
