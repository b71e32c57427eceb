#pragma once

#include <QWidget>

#include "core/state/QLXInfo.h"

class QLineEdit;
class QToolButton;

namespace tavrin {

/// A file or folder that the settings name. Texts are translated in the context "Panel".
struct PathSetting {
    enum class Kind { picture, state, folder };
    const char *control, *handler;  ///< of the button that asks for another
    Field<std::string> QLXInfo::*path;
    Kind kind;
    const char *label, *toolTip;
    const char* title;  ///< of the dialog that asks
};

/// A path of the settings, a button that asks for another and one that empties it.
class PathRow : public QWidget {
    Q_OBJECT

  public:
    /// @param setting and `settings` outlive the row
    PathRow(const PathSetting& setting, QLXInfo& settings, QWidget* parent = nullptr);

    const PathSetting& setting() const { return setting_; }
    /// Shows the path that stands in the settings.
    void refresh();
    /// Takes a path that was chosen. "" is none.
    void choose(const QString& path);

  signals:
    void changed();

  private:
    void ask();

    const PathSetting& setting_;
    QLXInfo& settings_;
    QLineEdit* shown_;
    QToolButton* clear_;
};

}  // namespace tavrin
