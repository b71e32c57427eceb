#pragma once

#include "ui/bind/PanelPage.h"
#include "ui/mail/MailDesk.h"

class QLineEdit;
class QPlainTextEdit;

namespace tavrin {

class OutboxPanel;

/// The page of mails: a letter with the finished picture, and the outbox.
class MailPage : public PanelPage {
    Q_OBJECT

  public:
    explicit MailPage(Binder& binder, QWidget* parent = nullptr);

    MailDesk& desk() { return *desk_; }
    /// What is typed, without a picture.
    Letter letter() const;
    /// There is a finished picture to send.
    void setFinished(bool finished);
    /// Opens the settings of the mail server.
    void ShowSMTPServer();

  signals:
    /// The letter is to be sent with the picture (`sendQLXMail`), or opened in the desktop's mail program.
    void sendWanted();
    void shareWanted();
    /// The letter is to go as a text message, to a telephone number's mail address.
    void textWanted(const QString& address);
    /// The settings were changed and are to be kept.
    void changed();
    void alerted(const QString& title, const QString& text);

  private:
    void addLetter();
    void addButtons(GroupBox* group);
    /// Sends to the telephone number that is typed in place of an address.
    void eventModeSaveAndText();
    void showEvent(QShowEvent* event) override;
    QWidget* addLine(GroupBox* group, const char* name, const char* handler, const QString& text,
                     const QString& toolTip, QWidget* control);
    QLineEdit* addField(GroupBox* group, const char* name, const char* handler, const QString& text,
                        const QString& toolTip);

    Binder& binder_;
    MailDesk* desk_;
    QLineEdit *to_ = nullptr, *title_ = nullptr, *from_ = nullptr;
    QPlainTextEdit* text_ = nullptr;
    QToolButton *send_ = nullptr, *share_ = nullptr, *phone_ = nullptr;
    OutboxPanel* outbox_;
};

}  // namespace tavrin
