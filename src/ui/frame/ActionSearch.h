#pragma once

#include <functional>
#include <vector>

#include <QDialog>

class QLineEdit;
class QListWidget;

namespace tavrin {

/// One field that finds every command and control by words, and does or shows it. Arrows choose, Enter takes, Esc
/// ends.
class ActionSearch : public QDialog {
    Q_OBJECT

  public:
    struct Entry {
        QString text;   ///< what it is called
        QString place;  ///< its menu or group
        QString key;    ///< its shortcut
        QString words;  ///< what else it is found by, where no name has what was typed
        bool enabled = true;
        std::function<void()> run;
    };
    ActionSearch(std::vector<Entry> entries, QWidget* parent);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    void find(const QString& typed);
    void take();

    const std::vector<Entry> entries_;
    QLineEdit* field_;
    QListWidget* list_;
};

}  // namespace tavrin
