#pragma once

#include <QDialog>

#include "core/state/QLXInfo.h"

class QCheckBox;
class QFormLayout;
class QLineEdit;

namespace tavrin {

/// The mail server of the settings.
class SmtpDialog : public QDialog {
    Q_OBJECT

  public:
    SmtpDialog(QLXInfo& settings, QWidget* parent);

    /// Takes all seven values into the settings and goes. Closed in another way it leaves them as they were.
    void closeSMTPSettings();
    /// Fills the fields in for a widespread service, and stores nothing.
    void fillInGMailSettings();

  signals:
    /// The settings were changed and are to be kept.
    void stored();
    void alerted(const QString& title, const QString& text);

  private:
    void ShowSMTPServer();
    QCheckBox* addBox(const char* name, const QString& text, const QString& toolTip);
    QLineEdit* addField(const char* name, const QString& text, const QString& toolTip);

    QLXInfo& settings_;
    QFormLayout* form_;
    QCheckBox *usesDefault_, *startTls_, *ssl_;
    QLineEdit *host_, *account_, *password_, *port_;
};

}  // namespace tavrin
