#include "ui/mail/SmtpDialog.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include "delivery/mail/DeliveryConf.h"

namespace tavrin {

SmtpDialog::SmtpDialog(QLXInfo& settings, QWidget* parent)
    : QDialog(parent), settings_(settings), form_(new QFormLayout) {
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName("MySMTPSettings");
    setWindowTitle(tr("Mail Server"));
    setModal(true);
    usesDefault_ = addBox("checkboxUseDefaultSMTPServer", tr("Use the default mail server"),
                          tr("Sends by the account that was set up with the program; the fields below are kept"));
    host_ = addField("editSMTPHost", tr("Server"), tr("Name of the server that sends your mails"));
    port_ =
        addField("editSMTPort", tr("Port"), tr("587 or 25 with STARTTLS, 465 with SSL; your provider says which"));
    startTls_ = addBox("checkboxSMTPTSL", tr("STARTTLS"),
                       tr("The connection is encrypted from the server's word on; without it nothing is sent"));
    ssl_ = addBox("checkboxSMTPSSL", tr("SSL"), tr("The connection is encrypted from the first byte"));
    account_ = addField("editSMTPAccountName", tr("Account"), tr("The name that the server knows you by"));
    password_ = addField("editSMTPAccoutPassword", tr("Password"),
                         tr("Is kept in the settings file as it is, which nobody but you can read"));
    password_->setEchoMode(QLineEdit::Password);
    auto* buttons = new QDialogButtonBox;
    QPushButton* gmail = buttons->addButton(tr("Fill In for GMail"), QDialogButtonBox::ResetRole);
    gmail->setObjectName("fillInGMailSettings");
    gmail->setToolTip(tr("Fills the fields in; your account name and your password are still to be typed"));
    QPushButton* done = buttons->addButton(tr("Done"), QDialogButtonBox::AcceptRole);
    done->setObjectName("closeSMTPSettings");
    done->setToolTip(tr("Keeps what is entered here"));
    gmail->setAutoDefault(false);
    done->setDefault(true);
    QPushButton* cancel = buttons->addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    cancel->setObjectName("cancelSMTPSettings");
    cancel->setToolTip(tr("Leaves the settings as they were"));
    for (QPushButton* button : {gmail, done, cancel})
        button->setProperty("handler", button->objectName());
    connect(gmail, &QPushButton::clicked, this, &SmtpDialog::fillInGMailSettings);
    connect(done, &QPushButton::clicked, this, &SmtpDialog::closeSMTPSettings);
    connect(cancel, &QPushButton::clicked, this, &QDialog::reject);
    auto* column = new QVBoxLayout(this);
    column->addLayout(form_);
    column->addWidget(buttons);
    ShowSMTPServer();
    host_->setFocus();
}

QCheckBox* SmtpDialog::addBox(const char* name, const QString& text, const QString& toolTip) {
    auto* box = new QCheckBox(text);
    box->setObjectName(name);
    box->setProperty("handler", "closeSMTPSettings");
    box->setAccessibleName(text);
    box->setToolTip(toolTip);
    form_->addRow(QString(), box);
    return box;
}

QLineEdit* SmtpDialog::addField(const char* name, const QString& text, const QString& toolTip) {
    auto* field = new QLineEdit;
    field->setObjectName(name);
    field->setProperty("handler", "closeSMTPSettings");
    field->setAccessibleName(text);
    field->setToolTip(toolTip);
    field->setMinimumWidth(26 * fontMetrics().averageCharWidth());
    form_->addRow(text, field);
    return field;
}

void SmtpDialog::ShowSMTPServer() {
    usesDefault_->setChecked(settings_.bDefaultSMTPServer);
    startTls_->setChecked(settings_.bSMTPTSL);
    ssl_->setChecked(settings_.bSMTPSSL);
    host_->setText(QString::fromStdString(settings_.sSMTPHost));
    account_->setText(QString::fromStdString(settings_.sSMTPAccountName));
    password_->setText(QString::fromStdString(settings_.sSMTPAccoutPassword));
    port_->setText(QString::fromStdString(settings_.sSMTPort));
}

void SmtpDialog::closeSMTPSettings() {
    settings_.bDefaultSMTPServer = usesDefault_->isChecked();
    settings_.bSMTPTSL = startTls_->isChecked();
    settings_.bSMTPSSL = ssl_->isChecked();
    settings_.sSMTPHost = host_->text().trimmed().toStdString();
    settings_.sSMTPAccountName = account_->text().trimmed().toStdString();
    settings_.sSMTPAccoutPassword = password_->text().toStdString();
    settings_.sSMTPort = port_->text().trimmed().toStdString();
    emit stored();
    accept();
}

void SmtpDialog::fillInGMailSettings() {
    usesDefault_->setChecked(false);
    startTls_->setChecked(true);
    ssl_->setChecked(false);
    host_->setText(QString::fromStdString(readDeliveryConf().gmailHost));
    host_->setPlaceholderText(host_->text().isEmpty() ? tr("gmail-host is missing in delivery.conf") : QString());
    account_->setText(QStringLiteral("Your GMail account name"));
    password_->setText(QStringLiteral("Your GMail account password"));
    port_->setText(QStringLiteral("587"));
    emit alerted(QStringLiteral("Make sure Pop is enabled in GMAIL Account"),
                 QStringLiteral("On your computer, open Gmail.\nIn the top right, click Settings gear\nClick "
                                "Settings.\nClick the Forwarding and POP/IMAP tab.\nIn the POP download section, "
                                "select Enable POP for all mail.\nAt the bottom of the page, click Save Changes."));
}

}  // namespace tavrin
