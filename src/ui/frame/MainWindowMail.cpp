// The finished picture by mail.
#include <QDateTime>
#include <QPointer>

#include "core/files/Places.h"
#include "core/image/Location.h"
#include "delivery/mail/SharingService.h"
#include "ui/ReasonText.h"
#include "ui/frame/MainWindow.h"
#include "ui/frame/WorkBar.h"
#include "ui/mail/MailPage.h"

namespace tavrin {

void MainWindow::connectMail() {
    connect(mail_, &MailPage::sendWanted, this, [this] { sendQLXMail(mail_->letter().to); });
    connect(mail_, &MailPage::textWanted, this, &MainWindow::sendQLXMail);
    connect(mail_, &MailPage::shareWanted, this, &MainWindow::shareUsingEmail);
    connect(mail_, &MailPage::changed, this, &MainWindow::keepSettings);
    connect(mail_, &MailPage::alerted, this, &MainWindow::showAlert);
    MailDesk* desk = &mail_->desk();
    connect(desk, &MailDesk::ended, this, [this](bool wentWell, const Posted& posted, const QString& to) {
        tellMail(posted, to);
        if (!wentWell) showAlert(QStringLiteral("Error"), QStringLiteral("Message Failed to Send"));
        if (!posted.isSent()) closing_ = false;
        if (closing_ && workUnderWay() == 0) close();
    });
    connect(desk, &MailDesk::endedAgain, this, &MainWindow::tellMail);
}

int MainWindow::workUnderWay() const {
    return savesUnderWay() + files_->copiesUnderWay() + mail_->desk().lettersUnderWay();
}

void MainWindow::tellMail(const Posted& posted, const QString& to) {
    const QString reason = reasonText(posted.reason);
    if (posted.isSent()) {
        messages_->tell(tr("The mail to %1 is sent.").arg(to));
    } else if (posted.end == MailEnd::unknown) {
        messages_->fail(tr("The mail to %1 may have gone.").arg(to), reason);
    } else {
        messages_->fail(posted.inOutbox ? tr("The mail to %1 is not sent. It is kept in the outbox.").arg(to)
                                        : tr("The mail to %1 is not sent.").arg(to),
                        reason);
    }
}

WorkBar* MainWindow::makeMailBar() {
    auto* bar = new WorkBar("Mail", tr("Ends the sending; the outbox keeps the mail while it is on"), this);
    MailDesk* desk = &mail_->desk();
    connect(desk, &MailDesk::began, bar,
            [desk, bar](const QString& to) { bar->begin(tr("Mail to %1").arg(to), 100, [desk] { desk->stop(); }); });
    connect(desk, &MailDesk::progressed, bar, &WorkBar::setDone);
    connect(desk, &MailDesk::ended, bar, [desk, bar] {
        if (desk->lettersUnderWay() == 0) bar->end();
    });
    connect(desk, &MailDesk::endedAgain, bar, &WorkBar::end);
    return bar;
}

/// Writes the finished picture as a file for a mail, and goes on with it.
void MainWindow::withMailPicture(std::function<void(const std::string& picture)> then) {
    const std::string picture =
        Places::current().tempFilesFolder() +
        mailPictureName(QDateTime::currentMSecsSinceEpoch(), installationMark(readDeliveryConf()));
    takeFinished([&] {
        return files_->saveCopy(picture, [this, picture, then](bool done) {
            if (done) then(picture);
            if (!done) closing_ = false;
            if (closing_ && workUnderWay() == 0) close();
        });
    });
}

void MainWindow::sendQLXMail(const QString& to) {
    Letter letter = mail_->letter();
    letter.to = to;
    withMailPicture([this, letter](const std::string& picture) mutable {
        letter.picture = picture;
        mail_->desk().send(letter);
    });
}

/// The file stays until the next start, since nobody knows when the other program has read it.
void MainWindow::shareUsingEmail() {
    const Letter letter = mail_->letter();
    withMailPicture([this, letter](const std::string& picture) {
        const std::string problem = MailDesk::keepsLocation() ? "" : takeLocationOut(picture);
        if (!problem.empty())
            return messages_->fail(tr("The mail program could not be opened."), reasonText(problem));
        sharingServiceDelegate service;
        service.setRecipientString(letter.to.trimmed().toStdString());
        service.setSubjectString(letter.title.toStdString());
        service.setBodyString(letter.text.toStdString());
        service.setAttachmentURL(picture);
        const QPointer<MainWindow> window(this);
        service.shareUsingEmail([this](const QString& title, const QString& text) { showAlert(title, text); },
                                [window](const QString& reason) {
                                    if (window)
                                        window->messages_->fail(tr("The mail program could not be opened."), reason);
                                });
    });
}

}  // namespace tavrin
