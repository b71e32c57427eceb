#pragma once

#include <QWidget>

#include "batch/BatchEngine.h"

class QLineEdit;
class QToolButton;

namespace tavrin {

/// A folder of the batch. Texts are translated in the context "Panel".
struct FolderSetting {
    const char* stem;  ///< of its operations: "choose" and "clear" stand before it
    Field<std::string> QLXInfo::*path;
    void (BatchEngine::*choose)();
    void (BatchEngine::*clear)();
    const char *label, *toolTip;
};

/// A folder of the batch, a button that asks for another and one for none.
class FolderRow : public QWidget {
    Q_OBJECT

  public:
    /// @param setting outlives the row
    FolderRow(const FolderSetting& setting, const QLXInfo& settings, QWidget* parent = nullptr);

    const FolderSetting& setting() const { return setting_; }
    QString folder() const;
    QString label() const;
    /// Shows the folder that stands in the settings, and whether it is there.
    void refresh();
    /// Why it cannot be used; "" for none.
    QString problem() const;

  signals:
    void chooseWanted();
    void clearWanted();

  private:
    const FolderSetting& setting_;
    const QLXInfo& settings_;
    QLineEdit* shown_;
    QToolButton* clear_;
};

/// Portraits, backgrounds, states, pictures.
const std::vector<FolderSetting>& batchFolders();

}  // namespace tavrin
