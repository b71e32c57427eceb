#include "ui/frame/HelpPanels.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QMessageBox>
#include <QTextBrowser>
#include <QVBoxLayout>

namespace tavrin {

namespace {

constexpr const char* kGuide = "qrc:/docs/guide.md";

QString words(const char* text) {
    return QCoreApplication::translate("HelpPanels", text);
}

QTextBrowser* makeGuide() {
    auto* guide = new QTextBrowser;
    guide->setObjectName("MyHelpView");
    guide->setAccessibleName(words(QT_TRANSLATE_NOOP("HelpPanels", "User's guide")));
    guide->document()->setDocumentMargin(16);
    guide->setOpenLinks(false);
    QObject::connect(guide, &QTextBrowser::anchorClicked, guide, [guide](const QUrl& link) {
        if (link.scheme().startsWith("http")) QDesktopServices::openUrl(link);
        if (link.hasFragment() && link.fileName() == guide->source().fileName())
            guide->scrollToAnchor(link.fragment());
    });
    guide->setSource(QUrl(kGuide), QTextDocument::MarkdownResource);
    return guide;
}

}  // namespace

void showQLXHelp(QWidget* window) {
    auto* panel = window->findChild<QWidget*>("MyHelpPanel");
    if (!panel) {
        panel = new QWidget(window, Qt::Window);
        panel->setObjectName("MyHelpPanel");
        panel->setWindowTitle(words(QT_TRANSLATE_NOOP("HelpPanels", "Tavrin: User's Guide")));
        auto* layout = new QVBoxLayout(panel);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->addWidget(makeGuide());
        panel->resize(1060, 820);
    }
    panel->show();
    panel->raise();
    panel->activateWindow();
}

void ShowAboutBox(QWidget* window) {
    auto* box = new QMessageBox(window);
    box->setObjectName("MyAboutPanel");
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setModal(false);
    box->setWindowTitle(words(QT_TRANSLATE_NOOP("HelpPanels", "About Tavrin")));
    box->setIconPixmap(window->windowIcon().pixmap(64, 64));
    box->setText(QString("<h3>Tavrin %1</h3>").arg(QCoreApplication::applicationVersion()));
    box->setInformativeText(
        words(
            QT_TRANSLATE_NOOP("HelpPanels",
                              "Takes the green or blue screen behind a person away and lays another picture "
                              "there.\n\nRuns on Qt %1. Other people's work that is in it is listed in its folder of "
                              "documents, in licences.md."))
            .arg(qVersion()));
    box->show();
}

}  // namespace tavrin
