#pragma once

#include <vector>

#include <QDialog>

#include "core/state/QLXInfo.h"

class QComboBox;
class QLineEdit;
class QPlainTextEdit;

namespace tavrin {

/// What an evening with the booth needs: its folders, the letter of its mails, the print page and the printer. It
/// stands in the settings as soon as it is chosen, and is kept when the panel is closed.
class EventSetupPanel : public QDialog {
    Q_OBJECT

  public:
    explicit EventSetupPanel(QLXInfo& settings, QWidget* parent = nullptr);

    /// Shows the settings.
    void updateEventUI();
    /// The printers that there are. One of the settings that is not among them gives way to the first.
    void setPrinters(const QStringList& names);
    void showTemplate(const QString& title);
    void HideEventSetup();

  signals:
    /// @param which 0 the portraits, 1 the backgrounds of the portrait layout, 2 of the landscape layout, 3 the
    /// output
    void folderChosen(int which);
    void templateWanted();
    void settingsToKeep();

  protected:
    void done(int result) override;

  private:
    struct FolderField {
        Field<std::string> QLXInfo::*path;
        QLineEdit* shown;
    };
    QLineEdit* addFolder(class QGridLayout* grid, int which);
    void choose(int which);

    QLXInfo& settings_;
    std::vector<FolderField> folders_;
    QLineEdit *title_, *page_;
    QPlainTextEdit* body_;
    QComboBox* printers_;
    bool hasPrinters_ = false;
};

}  // namespace tavrin
