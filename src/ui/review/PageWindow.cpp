#include "ui/review/PageWindow.h"

#include <utility>

#include <QDesktopServices>
#include <QKeyEvent>
#include <QScreen>
#include <QUrl>
#include <QVBoxLayout>

namespace tavrin {

namespace {

constexpr int kLeft = 5, kNotCovered = 10;  // points of the screen
constexpr double kOfTheHeight = 0.9;
constexpr int kPatienceMs = 10000;

}  // namespace

PageWindow::PageWindow(const char* id, const QString& title, PageCalls calls, QWidget* parent)
    : QWidget(parent, Qt::Window), calls_(std::move(calls)) {
    calls_.loaded = [this] { takeLoaded(); };
    patience_.setSingleShot(true);
    patience_.setInterval(kPatienceMs);
    connect(&patience_, &QTimer::timeout, this, &PageWindow::bringUp);
    setObjectName(id);
    setWindowTitle(title);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
}

/// At the top of the screen that the program is on, over nearly all of it.
void PageWindow::placeOnScreen() {
    const QRect screen = parentWidget()->screen()->geometry();
    setGeometry(screen.x() + kLeft, screen.y(), screen.width() - kNotCovered,
                static_cast<int>(kOfTheHeight * screen.height()));
}

/// @return false where there is no engine; the page has gone to the desktop's browser then
bool PageWindow::makeView(const QString& path) {
    if (view_) return true;
    if (WebPages* pages = webPages()) view_ = pages->makeView(calls_, this);
    if (!view_) {
        const bool isShown = QDesktopServices::openUrl(QUrl::fromLocalFile(path));
        emit told(isShown ? tr("The page is in the desktop's browser. What is clicked there does not reach this "
                               "program: for that its package for web pages is missing.")
                          : tr("There is no web engine here and no browser: the page is %1.").arg(path));
        return false;
    }
    layout()->addWidget(view_);
    setFocusProxy(view_);
    placeOnScreen();
    return true;
}

void PageWindow::showPage(const QString& path) {
    anew_.clear();
    patience_.stop();
    if (!makeView(path)) return;
    webPages()->show(view_, path);
    bringUp();
}

void PageWindow::showPageAnew(const QString& path) {
    if (!makeView(path)) return;
    anew_ = path;
    bReloadWebview = true;
    patience_.start();
    webPages()->show(view_, path);
}

/// A load that was asked for by a click is none of these.
void PageWindow::takeLoaded() {
    if (anew_.isEmpty()) return;
    if (std::exchange(bReloadWebview, false)) return webPages()->show(view_, anew_);
    bringUp();
}

void PageWindow::bringUp() {
    anew_.clear();
    patience_.stop();
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void PageWindow::keyPressEvent(QKeyEvent* event) {
    event->key() == Qt::Key_Escape ? hide() : QWidget::keyPressEvent(event);
}

}  // namespace tavrin
