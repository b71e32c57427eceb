#pragma once

#include <QObject>
#include <QtWebEngineCore/QWebEnginePage>
#include <QtWebEngineCore/QWebEngineUrlRequestInterceptor>

#include "ui/review/WebPages.h"

/// Lets nothing through but files of this computer.
class LocalOnly : public QWebEngineUrlRequestInterceptor {
  public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    void interceptRequest(QWebEngineUrlRequestInfo& request) override;
};

/// All that a page can call.
class PageListener : public QObject {
    Q_OBJECT

  public:
    PageListener(std::function<void(double)> lastScroll, QObject* parent)
        : QObject(parent), lastScroll_(std::move(lastScroll)) {}
    Q_INVOKABLE void lastScroll(double left) { lastScroll_(left); }

  private:
    const std::function<void(double)> lastScroll_;
};

/// A page that asks the program before it follows a link, opens no windows, and shows no boxes of its own.
class AskingPage : public QWebEnginePage {
    Q_OBJECT

  public:
    AskingPage(QWebEngineProfile* profile, tavrin::PageCalls calls, QObject* parent);

    /// The file that is shown by the program's own wish.
    void showFile(const QString& path);

  protected:
    bool acceptNavigationRequest(const QUrl& url, NavigationType type, bool isMainFrame) override;
    void javaScriptAlert(const QUrl& from, const QString& text) override;
    QWebEnginePage* createWindow(WebWindowType) override { return nullptr; }

  private:
    const tavrin::PageCalls calls_;
    QUrl own_;
};

/// The library that the program loads when a page is to be shown.
class WebView : public QObject, public tavrin::WebPages {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.tavrin.WebPages/2")
    Q_INTERFACES(tavrin::WebPages)

  public:
    QWidget* makeView(tavrin::PageCalls calls, QWidget* parent) override;
    void show(QWidget* view, const QString& path) override;
};
