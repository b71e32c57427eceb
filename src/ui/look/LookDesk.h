#pragma once

#include <vector>

#include <QImage>
#include <QObject>

#include "session/NamedLooks.h"
#include "ui/bind/Binder.h"
#include "ui/bind/Command.h"
#include "ui/look/Safekeeping.h"

class QWidget;

namespace tavrin {

/// Copying, pasting and naming of looks, with the questions to the user.
class LookDesk : public QObject {
    Q_OBJECT

  public:
    enum class OnEqualName { skip, rename, replace };

    LookDesk(Binder& binder, Safekeeping& keeping, QWidget* window);

    void copy();
    bool hasCopy() const { return !copied_.empty(); }
    /// Shows what the copied look changes, and pastes what is ticked.
    void paste();
    /// The same on portraits that are not shown, and the one that is when it is among them.
    void pasteOn(const QStringList& portraits);
    /// The same on those that are selected in the strip, or else on files that the user picks.
    void pasteOnSelected();

    void saveAs();
    /// Saves the present look under a name; an older one of it is replaced.
    bool save(const QString& name);
    void take(const QString& name);
    void rename(const QString& name);
    void remove(const QString& name);
    void askForImport();
    /// @param equal empty: the user is asked when a look has the name already
    void import(const QString& file);
    void import(const QString& file, OnEqualName equal);
    void exportTo(const QString& name);

    /// Where a small picture of the present look comes from.
    void setPicture(std::function<QImage()> picture) { picture_ = std::move(picture); }
    /// Which portraits are selected.
    void setSelection(std::function<QStringList()> selection) { selection_ = std::move(selection); }

  signals:
    void told(const QString& line);
    void failed(const QString& line, const QString& reason);
    /// The list of names is another.
    void changed();

  private:
    void choose(const QString& title, const SettingValues& look,
                const std::function<void(const SettingValues& wanted)>& take);
    void takeHere(const QString& label, const SettingValues& look);
    QString nameOf(const std::string& setting) const;
    bool isDone(const QString& line, const std::string& problem);

    Binder& binder_;
    Safekeeping& keeping_;
    QWidget* window_;
    SettingValues copied_;
    std::function<QImage()> picture_;
    std::function<QStringList()> selection_;
};

/// The commands of looks.
std::vector<Command> lookCommands(LookDesk& desk);

/// The small picture of a look; there may be none.
QString lookPictureFile(const QString& name);

}  // namespace tavrin
