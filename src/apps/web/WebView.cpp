#include "apps/web/WebView.h"

#include <QCoreApplication>
#include <QFile>
#include <QWebChannel>
#include <QtWebEngineCore/QWebEngineProfile>
#include <QtWebEngineCore/QWebEngineScript>
#include <QtWebEngineCore/QWebEngineScriptCollection>
#include <QtWebEngineCore/QWebEngineSettings>
#include <QtWebEngineWidgets/QWebEngineView>
#ifdef Q_OS_UNIX
#include <unistd.h>
#endif

namespace {

/// Gives the page somebody who hears how far it is scrolled, under the name that it calls.
QWebEngineScript channelScript() {
    QFile library(":/qtwebchannel/qwebchannel.js");
    const bool isThere = library.open(QIODevice::ReadOnly);
    QWebEngineScript script;
    script.setInjectionPoint(QWebEngineScript::DocumentCreation);
    script.setWorldId(QWebEngineScript::MainWorld);
    script.setSourceCode(QString::fromUtf8(isThere ? library.readAll() : QByteArray()) +
                         "\nnew QWebChannel(qt.webChannelTransport, function(channel) {"
                         " window.external.LastScroll = function(left) { channel.objects.program.lastScroll(left); };"
                         "});");
    return script;
}

/// The engine ends the whole program where it is to run as the system's administrator in its sandbox.
bool canRunHere() {
#ifdef Q_OS_UNIX
    return geteuid() != 0 || qEnvironmentVariableIsSet("QTWEBENGINE_DISABLE_SANDBOX");
#else
    return true;
#endif
}

/// One for all views, which keeps nothing.
QWebEngineProfile* profile() {
    static QWebEngineProfile* const shared = [] {
        auto* made = new QWebEngineProfile(QCoreApplication::instance());
        made->setUrlRequestInterceptor(new LocalOnly(made));
        return made;
    }();
    return shared;
}

}  // namespace

void LocalOnly::interceptRequest(QWebEngineUrlRequestInfo& request) {
    const QString scheme = request.requestUrl().scheme();
    const bool isLocal = request.requestUrl().isLocalFile() && request.requestUrl().host().isEmpty();
    if (!isLocal && scheme != "data" && scheme != "qrc") request.block(true);
}

AskingPage::AskingPage(QWebEngineProfile* profile, tavrin::PageCalls calls, QObject* parent)
    : QWebEnginePage(profile, parent), calls_(std::move(calls)) {
    settings()->setAttribute(QWebEngineSettings::LocalContentCanAccessRemoteUrls, false);
    settings()->setAttribute(QWebEngineSettings::JavascriptCanOpenWindows, false);
    settings()->setAttribute(QWebEngineSettings::JavascriptCanAccessClipboard, false);
    settings()->setAttribute(QWebEngineSettings::PluginsEnabled, false);
    settings()->setAttribute(QWebEngineSettings::ErrorPageEnabled, false);
    if (calls_.loaded) connect(this, &QWebEnginePage::loadFinished, this, [this] { calls_.loaded(); });
    if (calls_.lastScroll) {
        auto* channel = new QWebChannel(this);
        channel->registerObject("program", new PageListener(calls_.lastScroll, channel));
        setWebChannel(channel);
        scripts().insert(channelScript());
    }
}

void AskingPage::showFile(const QString& path) {
    own_ = QUrl::fromLocalFile(path);
    load(own_);
}

bool AskingPage::acceptNavigationRequest(const QUrl& url, NavigationType, bool isMainFrame) {
    if (url == own_ || !isMainFrame) return url.isLocalFile();
    return url.isLocalFile() && calls_.mayGo(url.fileName());
}

void AskingPage::javaScriptAlert(const QUrl&, const QString& text) {
    calls_.alert ? calls_.alert(text) : qWarning("The page says: %s", qPrintable(text));
}

QWidget* WebView::makeView(tavrin::PageCalls calls, QWidget* parent) {
    if (!canRunHere()) return nullptr;
    auto* view = new QWebEngineView(parent);
    view->setPage(new AskingPage(profile(), std::move(calls), view));
    view->setContextMenuPolicy(Qt::NoContextMenu);
    return view;
}

void WebView::show(QWidget* view, const QString& path) {
    if (auto* web = qobject_cast<QWebEngineView*>(view)) static_cast<AskingPage*>(web->page())->showFile(path);
}
