#include "apps/desktop/FirstStart.h"

#include <utility>

#include <QDBusConnection>
#include <QDBusInterface>
#include <QDBusReply>
#include <QUrl>

#include "core/files/NameText.h"

namespace {

constexpr const char* kName = "org.tavrin.Tavrin";
constexpr const char* kPath = "/org/tavrin/Tavrin";
constexpr const char* kApplication = "org.freedesktop.Application";
constexpr const char* kHostAction = "open-for-host";
constexpr int kAnswerMilliseconds = 5000;

QVariantMap platformData() {
    QVariantMap data;
    if (const QString token = qEnvironmentVariable("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        data["activation-token"] = token;  // without it the desktop may keep the window behind
    return data;
}

}  // namespace

QStringList FirstStart::linksOf(const QStringList& paths) {
    QStringList links;
    for (const QString& path : paths)
        links.append("file://" + QByteArray::fromStdString(tavrin::nameOfText(path)).toPercentEncoding("/"));
    return links;
}

QStringList FirstStart::pathsOf(const QStringList& links) {
    QStringList paths;
    for (const QString& link : links) {
        const QUrl url(link);
        if (!url.isLocalFile()) continue;
        const QByteArray bytes = url.path(QUrl::FullyEncoded).toLatin1();
        paths.append(tavrin::textOfName(QByteArray::fromPercentEncoding(bytes).toStdString()));
    }
    return paths;
}

bool FirstStart::handOver(const QStringList& paths, bool forHost) {
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) return false;
    bus.registerObject(kPath, this, QDBusConnection::ExportAllSlots);  // before somebody can find it by the name
    if (bus.registerService(kName)) return false;
    QDBusInterface first(kName, kPath, kApplication, bus);
    first.setTimeout(kAnswerMilliseconds);
    const QDBusReply<void> taken =
        paths.isEmpty() ? first.call("Activate", platformData())
        : forHost       ? first.call("ActivateAction", kHostAction, QVariantList{linksOf(paths)}, platformData())
                        : first.call("Open", linksOf(paths), platformData());
    return taken.isValid();
}

void FirstStart::onOpen(std::function<void(const QStringList& paths, bool forHost)> open) {
    open_ = std::move(open);
    if (std::exchange(called_, false)) open_(std::exchange(waiting_, {}), std::exchange(waitingForHost_, false));
}

void FirstStart::take(const QStringList& paths, const QVariantMap& platformData, bool forHost) {
    if (const QString token = platformData["activation-token"].toString(); !token.isEmpty())
        qputenv("XDG_ACTIVATION_TOKEN", token.toUtf8());
    if (open_) return open_(paths, forHost);
    waiting_ += paths;
    waitingForHost_ = waitingForHost_ || forHost;
    called_ = true;
}

void FirstStart::Activate(const QVariantMap& platformData) {
    take({}, platformData);
}

void FirstStart::Open(const QStringList& links, const QVariantMap& platformData) {
    take(pathsOf(links), platformData);
}

void FirstStart::ActivateAction(const QString& action, const QVariantList& parameters,
                                const QVariantMap& platformData) {
    const bool forHost = action == kHostAction && !parameters.isEmpty();
    take(forHost ? pathsOf(parameters.front().toStringList()) : QStringList(), platformData, forHost);
}
