#include "ui/frame/TipGuard.h"

#include <QApplication>
#include <QDateTime>
#include <QEvent>
#include <QToolTip>

#include "ui/WindowSettings.h"

namespace tavrin {

namespace {

constexpr const char* kTips = "toolTips";
constexpr qint64 kAfterTheWheel = 1000;  // milliseconds

}  // namespace

TipGuard::TipGuard(QObject* parent) : QObject(parent), wanted_(windowSettings().value(kTips, true).toBool()) {
    qApp->installEventFilter(this);
}

void TipGuard::setWanted(bool wanted) {
    wanted_ = wanted;
    windowSettings().setValue(kTips, wanted);
    if (!wanted) QToolTip::hideText();
}

bool TipGuard::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::Wheel) lastTurn_ = QDateTime::currentMSecsSinceEpoch();
    if (event->type() != QEvent::ToolTip) return false;
    const bool turned = QDateTime::currentMSecsSinceEpoch() - lastTurn_ < kAfterTheWheel;
    return !wanted_ || turned || QGuiApplication::mouseButtons() != Qt::NoButton;
}

}  // namespace tavrin
