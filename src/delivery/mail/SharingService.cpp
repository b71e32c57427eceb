#include "delivery/mail/SharingService.h"

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

#include "core/files/NameText.h"
#include "delivery/mail/MailText.h"

namespace tavrin {

namespace {

QString composer() {
    return QStandardPaths::findExecutable(QStringLiteral("xdg-email"));
}

}  // namespace

bool sharingServiceDelegate::canPerformWithItems() const {
    return !composer().isEmpty() && (recipientString_.empty() || isAddress(recipientString_)) &&
           (attachmentURL_.empty() || QFileInfo::exists(textOfName(attachmentURL_)));
}

QStringList sharingServiceDelegate::arguments() const {
    QStringList words{"--utf8", "--subject", QString::fromStdString(subjectString_), "--body",
                      QString::fromStdString(bodyString_)};
    if (!attachmentURL_.empty()) words << "--attach" << QFileInfo(textOfName(attachmentURL_)).absoluteFilePath();
    if (!recipientString_.empty()) words << QString::fromStdString(recipientString_);
    return words;
}

bool sharingServiceDelegate::shareUsingEmail(
    const std::function<void(const QString& title, const QString& text)>& alert,
    std::function<void(const QString& reason)> failed) {
    bodyString_ += "\n\n";
    if (!canPerformWithItems()) {
        alert("Email", "Cound not perform with items. Make sure Mail.app is default mail program");
        return false;
    }
    auto* process = new QProcess;
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardOutputFile(QProcess::nullDevice());
    QObject::connect(process, &QProcess::finished, process, [process, failed](int code, QProcess::ExitStatus status) {
        const QString words = QString::fromLocal8Bit(process->readAllStandardError()).trimmed();
        if (code != 0 || status != QProcess::NormalExit) failed(words);
        process->deleteLater();
    });
    QObject::connect(process, &QProcess::errorOccurred, process, [process, failed](QProcess::ProcessError error) {
        if (error != QProcess::FailedToStart) return;  // all else ends it, too
        failed(process->errorString());
        process->deleteLater();
    });
    process->start(composer(), arguments());
    return true;
}

}  // namespace tavrin
