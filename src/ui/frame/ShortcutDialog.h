#pragma once

#include <QDialog>

#include "ui/frame/Commands.h"

class QLabel;
class QLineEdit;
class QTableWidget;
class QToolButton;

namespace tavrin {

class KeyField;

/// Every key and what it does. The command that is chosen in the list takes another key; one that belongs to another
/// command is taken from it only when the person says so, with both names before the eyes.
class ShortcutDialog : public QDialog {
    Q_OBJECT

  public:
    ShortcutDialog(Commands& commands, QWidget* parent);

  private:
    void nameParts();
    void layOut();
    void fill();
    void addLine(const QString& text, const QString& key, const Command* command);
    void find(const QString& typed);
    const Command* current() const;
    /// Shows what can be done with the command that is chosen.
    void showCurrent();
    /// Gives a key to the present command, or says why not, or asks whether the other one may lose it.
    void wish(QKeyCombination pressed);
    void askForOther(const Command& command, const Command& user, const QKeySequence& key);
    void give(const Command& command, const QKeySequence& key);
    void takeFromOther();
    /// The present command has its usual key again.
    void useDefault();
    void useAllDefaults();
    void choose(const ChosenKeys& keys, const QString& told);
    QToolButton* addButton(const char* id, const QString& text, const QString& toolTip,
                           void (ShortcutDialog::*run)());

    Commands& commands_;
    QTableWidget* list_;
    QLineEdit* search_;
    KeyField* key_;
    QLabel* told_;
    QToolButton *take_ = nullptr, *none_ = nullptr, *usual_ = nullptr, *allUsual_ = nullptr, *back_ = nullptr;
    QKeySequence wished_;  ///< another command's, while that is asked about
    ChosenKeys before_;    ///< what the last change changed
};

}  // namespace tavrin
