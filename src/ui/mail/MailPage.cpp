#include "ui/mail/MailPage.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QToolButton>

#include "delivery/mail/EventMail.h"
#include "ui/WindowSettings.h"
#include "ui/mail/OutboxPanel.h"
#include "ui/mail/PhoneTextView.h"
#include "ui/mail/SmtpDialog.h"

namespace tavrin {

namespace {

const BindingGroup kLetterGroup{"MyEmailPanel", QT_TRANSLATE_NOOP("Panel", "Mail"), nullptr, {}};
const BindingGroup kOutboxGroup{"groupOutbox", QT_TRANSLATE_NOOP("Panel", "Outbox"), nullptr, {}};

constexpr int kLinesOfText = 6;

/// What a studio writes each time is there again with the next start.
void remember(QLineEdit* field) {
    const QString key = field->objectName();
    field->setText(windowSettings().value(key).toString());
    QObject::connect(field, &QLineEdit::editingFinished, field,
                     [field, key] { windowSettings().setValue(key, field->text()); });
}

}  // namespace

MailPage::MailPage(Binder& binder, QWidget* parent)
    : PanelPage({"panelMail", "TabMail", 8, QT_TRANSLATE_NOOP("Panel", "Mail"),
                 QT_TRANSLATE_NOOP("Panel", "Sends the finished picture by mail")},
                parent),
      binder_(binder),
      desk_(new MailDesk(binder.editor().info(), this)),
      outbox_(new OutboxPanel(*desk_)) {
    addLetter();
    addGroup(kOutboxGroup, binder)->addItem(outbox_);
    setFinished(false);
}

QWidget* MailPage::addLine(GroupBox* group, const char* name, const char* handler, const QString& text,
                           const QString& toolTip, QWidget* control) {
    control->setObjectName(name);
    control->setProperty("handler", handler);
    control->setAccessibleName(text);
    control->setToolTip(toolTip);
    auto* line = new QWidget;
    line->setObjectName(QString(name) + "Row");
    line->setAccessibleName(text);
    auto* column = new QVBoxLayout(line);
    column->setContentsMargins(0, 0, 0, 2);
    column->setSpacing(2);
    auto* label = new QLabel(text, line);
    label->setBuddy(control);
    column->addWidget(label);
    column->addWidget(control);
    group->addItem(line);
    return control;
}

QLineEdit* MailPage::addField(GroupBox* group, const char* name, const char* handler, const QString& text,
                              const QString& toolTip) {
    auto* field = new QLineEdit;
    addLine(group, name, handler, text, toolTip, field);
    return field;
}

void MailPage::addLetter() {
    GroupBox* group = addGroup(kLetterGroup, binder_);
    to_ = addField(group, "textEmailTo", "changedToAddress:", tr("To"),
                   tr("Mail address of who gets the picture, or telephone number for a text message"));
    title_ = addField(group, "textEmailTitle", "sendQLXMail:", tr("Title"), tr("Subject of the mail"));
    from_ = addField(group, "textEmailFrom", "sendQLXMail:", tr("Answers to"),
                     tr("Mail address that answers go to; the mail itself comes from the account of the server"));
    text_ = new QPlainTextEdit;
    text_->setTabChangesFocus(true);
    text_->setFixedHeight(kLinesOfText * text_->fontMetrics().lineSpacing() + 14);
    addLine(group, "myEmailTextView", "sendQLXMail:", tr("Text"), tr("What the mail says beside the picture"), text_);
    remember(title_);
    remember(from_);
    auto* location = new QCheckBox(tr("Tell where the picture was taken"));
    location->setObjectName("checkboxMailLocation");
    location->setProperty("handler", "setKeepsLocation");
    location->setAccessibleName(location->text());
    location->setToolTip(tr("Leaves the place on earth in the picture, if the camera noted one"));
    location->setChecked(MailDesk::keepsLocation());
    connect(location, &QCheckBox::toggled, this, [](bool on) { MailDesk::setKeepsLocation(on); });
    group->addItem(location);
    addButtons(group);
}

void MailPage::addButtons(GroupBox* group) {
    auto* buttons = new QWidget;
    buttons->setAccessibleName(tr("Send, text message, mail program and mail server"));
    auto* grid = new QGridLayout(buttons);
    grid->setContentsMargins(0, 2, 0, 0);
    send_ = makeButton("buttonSendMail", "sendQLXMail:", tr("Send"), tr("Sends the finished picture with this text"));
    share_ = makeButton("buttonShareUsingEmail", "shareUsingEmail", tr("Open in mail program"),
                        tr("Opens a new mail with the picture in your own mail program"));
    QToolButton* server = makeButton("buttonShowSMTPServer", "ShowSMTPServer:", tr("Mail server..."),
                                     tr("The server and the account that send the mails"));
    phone_ = makeButton("buttonTextMessage", "eventModeSaveAndText:", tr("As text message..."),
                        tr("Sends the finished picture to the telephone number that stands in place of the address"));
    connect(send_, &QToolButton::clicked, this, &MailPage::sendWanted);
    connect(phone_, &QToolButton::clicked, this, &MailPage::eventModeSaveAndText);
    connect(share_, &QToolButton::clicked, this, &MailPage::shareWanted);
    connect(server, &QToolButton::clicked, this, &MailPage::ShowSMTPServer);
    grid->addWidget(send_, 0, 0, 1, 2);
    grid->addWidget(phone_, 1, 0, 1, 2);
    grid->addWidget(share_, 2, 0);
    grid->addWidget(server, 2, 1);
    group->addItem(buttons);
}

void MailPage::showEvent(QShowEvent* event) {
    PanelPage::showEvent(event);
    desk_->refresh();
}

Letter MailPage::letter() const {
    return {to_->text(), title_->text(), from_->text(), text_->toPlainText(), ""};
}

void MailPage::setFinished(bool finished) {
    send_->setEnabled(finished);
    share_->setEnabled(finished);
    phone_->setEnabled(finished);
}

void MailPage::eventModeSaveAndText() {
    SystemInfo& info = binder_.editor().info();
    if (!tavrin::eventModeSaveAndText(info, to_->text().toStdString())) return;
    auto* carriers = new PhoneTextView(info, this);
    connect(carriers, &PhoneTextView::chosen, this, &MailPage::textWanted);
    carriers->open();
}

void MailPage::ShowSMTPServer() {
    auto* dialog = new SmtpDialog(*binder_.editor().info().oQLXInfo, this);
    connect(dialog, &SmtpDialog::stored, this, &MailPage::changed);
    connect(dialog, &SmtpDialog::alerted, this, &MailPage::alerted);
    dialog->open();
}

}  // namespace tavrin
