#include "ui/batch/DesktopNotice.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QStringList>
#include <QVariantMap>

namespace tavrin {

void notifyDesktop(const QString& title, const QString& text) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return;
    QDBusMessage call = QDBusMessage::createMethodCall(
        "org.freedesktop.Notifications", "/org/freedesktop/Notifications", "org.freedesktop.Notifications", "Notify");
    const QVariantMap hints = {{"desktop-entry", "org.tavrin.Tavrin"}};
    call << "Tavrin" << 0u << "org.tavrin.Tavrin" << title << text << QStringList() << hints << -1;
    bus.send(call);
}

}  // namespace tavrin
