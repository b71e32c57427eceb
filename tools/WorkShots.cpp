// Work with whole folders, the booth and the outbox, for the pictures of the window.
#include "WorkShots.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QListWidget>
#include <QPainter>
#include <QTemporaryDir>

#include "ui/booth/EventPage.h"
#include "ui/booth/GuestScreen.h"
#include "ui/frame/MainWindow.h"
#include "ui/mail/MailPage.h"

namespace tavrin {

namespace {

/// A folder of portraits and one of backgrounds, told apart by their light.
void fillFolders(const QString& portraits, const QString& backgrounds) {
    const auto fill = [](const QString& folder, const char* sample, int count) {
        QDir().mkpath(folder);
        const QImage picture = QImage(sample).scaled(600, 600, Qt::KeepAspectRatio, Qt::SmoothTransformation);
        for (int i = 0; i < count; ++i) {
            QImage other = picture;
            QPainter painter(&other);
            painter.fillRect(other.rect(), QColor::fromHsv(30 * i % 360, 120, 255, 18 * (i % 4)));
            painter.end();
            other.save(QString("%1/IMG_%2.jpg").arg(folder).arg(i + 1, 4, 10, QChar('0')));
        }
    };
    fill(portraits, TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg", 30);
    fill(backgrounds, TAVRIN_SOURCE_DIR "/data/sample/background.jpg", 6);
}

}  // namespace

void showFolder(MainWindow& window, SystemInfo& info, const QString& folder) {
    fillFolders(folder + "/portraits", folder + "/backgrounds");
    QFile(folder + "/portraits/IMG_0006.jpg").resize(9);
    info.oQLXInfo->sPickDirectory = (folder + "/backgrounds").toStdString();
    window.openFolder(folder + "/portraits");
    QElapsedTimer time;
    for (time.start(); window.strip()->portraits()->list().paths().size() != 30 && time.elapsed() < 10000;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    const auto marks = {PictureMark::keep, PictureMark::keep, PictureMark::lookAgain, PictureMark::reject};
    for (const PictureMark mark : marks) {
        window.strip()->mark(mark);
        if (mark != PictureMark::reject) window.strip()->walk(1);
    }
    window.openBackground(folder + "/backgrounds/IMG_0002.jpg");
    for (time.restart(); time.elapsed() < 1500;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
}

void shootBatch(MainWindow& window, SystemInfo& info, const std::function<void(const char*)>& save) {
    const QTemporaryDir folder;
    const QString portraits = folder.path() + "/Portraits", backgrounds = folder.path() + "/Scenes";
    fillFolders(portraits, backgrounds);
    for (int i = 4; i <= 30; ++i)
        QFile::remove(QString("%1/IMG_%2.jpg").arg(portraits).arg(i, 4, 10, QChar('0')));
    QFile(portraits + "/IMG_0002.jpg").resize(9);
    QDir(folder.path()).mkdir("Done");
    QLXInfo& settings = *info.oQLXInfo;
    settings.sLastBatchForeground = portraits.toStdString();
    settings.sLastBatchBackground = backgrounds.toStdString();
    settings.sLastBatchOutput = (folder.path() + "/Done").toStdString();
    settings.bLastBatchCheckForNewFiles = false;
    BatchEngine& engine = window.batch()->engine();
    engine.nextBatchForegroundFile.setFolderToCheck(settings.sLastBatchForeground);
    engine.nextBatchBackgroundFile.setFolderToCheck(settings.sLastBatchBackground);
    engine.nextBatchForegroundFile.setHistoryFileLocation(settings.sLastBatchOutput, "ForegroundHistory.dat");
    window.batch()->setNotify([](const QString&, const QString&) {});
    window.panel()->selectMainTab(window.batch()->title().key);
    const auto rest = [](int ms, const std::function<bool()>& enough) {
        QElapsedTimer time;
        for (time.start(); time.elapsed() < ms && !enough();)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    };
    rest(1500, [] { return false; });
    save("batch-plan");
    window.batch()->startFast();
    rest(60000, [&] { return !window.batch()->isRunning(); });
    rest(500, [] { return false; });
    save("batch-done");
    for (GroupBox* group : window.batch()->groups())
        group->setFolded(group->objectName() == "groupBatchFolders" || group->objectName() == "groupBatchChoices");
    save("batch-lists");
    window.messages()->hide();
    settings.sLastBatchForeground = settings.sLastBatchBackground = settings.sLastBatchOutput = "";
}

void shootBooth(MainWindow& window, SystemInfo& info, const std::function<void(const char*, QWidget&)>& save) {
    const QTemporaryDir folder;
    fillFolders(folder.path() + "/Portraits", folder.path() + "/Scenes");
    QDir(folder.path()).mkdir("Done");
    QLXInfo& settings = *info.oQLXInfo;
    settings.bAutoQLXSave = true;
    settings.sEventModeForegroundFolder = (folder.path() + "/Portraits").toStdString();
    settings.sEventModeBackgroundVertFolder = settings.sEventModeBackgroundHorzFolder =
        (folder.path() + "/Scenes").toStdString();
    settings.sEventModeOutputFolder = (folder.path() + "/Done").toStdString();
    settings.sEventModePrinterName = "Booth";
    window.panel()->selectMainTab(window.booth()->page()->title().key);
    const auto rest = [](int ms) {
        QElapsedTimer time;
        for (time.start(); time.elapsed() < ms;)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    };
    rest(4000);
    const auto press = [&](const char* name) { window.findChild<QAbstractButton*>(name)->click(); };
    press("eventModeStart");
    press("foregroundSelectorImage2");
    press("backgroundSelectorImage3");
    rest(1000);
    press("eventModeSave");
    press("buttonGuestScreen");
    rest(4000);
    save("booth", window);
    save("booth-guests", *window.booth()->guestScreen());
    press("buttonGuestScreen");
    press("eventModeStop");
    press("buttonEventSetup");
    rest(1500);
    auto* setup = window.findChild<QWidget*>("MyEventSetupPanel");
    save("booth-setup", *setup);
    setup->close();
    settings.sEventModeForegroundFolder = settings.sEventModeBackgroundVertFolder =
        settings.sEventModeBackgroundHorzFolder = settings.sEventModeOutputFolder = "";
}

void shootOutbox(MainWindow& window, const std::function<void(const char*)>& save) {
    for (const MailEnd end : {MailEnd::notSent, MailEnd::unknown}) {
        OutgoingMail mail;
        mail.to = end == MailEnd::unknown ? "ben@example.org" : "anna@example.org";
        mail.subject = "Your picture of the summer party";
        std::string problem;
        if (std::optional<OutboxClaim> claim = Outbox().add(mail, {}, problem))
            claim->settle({end, false, "mail.example.org keeps silent for 30 seconds."});
    }
    window.panel()->selectMainTab(window.mail()->title().key);
    auto* list = window.findChild<QListWidget*>("listOutbox");
    window.mail()->desk().refresh();
    QElapsedTimer time;
    for (time.start(); time.elapsed() < 10000 && list->count() < 2;)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    save("outbox");
    for (const OutboxEntry& entry : Outbox().entries())
        Outbox().discard(entry.id);
}

}  // namespace tavrin
