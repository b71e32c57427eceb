#pragma once

#include <QWidget>

#include "session/SettingEditor.h"
#include "ui/HeldLoop.h"

class QTableWidget;
class QToolButton;

namespace tavrin {

struct SizeEntry;

/// The list of output sizes: the user's own come, change and go here.
class SizesPanel : public QWidget {
    Q_OBJECT

  public:
    SizesPanel(SettingEditor& editor, HeldLoop& loop, QWidget* parent = nullptr);

    /// Shows the list as it is now.
    void refresh();

  signals:
    /// The list is another one; perhaps also the size in force, and the pages.
    void listChanged();
    void failed(const QString& line, const QString& details);

  private:
    QToolButton* addButton(const char* name, const char* handler, const QString& text, const QString& toolTip);
    std::int32_t selected() const;
    void clickedAddImageSizes();
    void clickedEditImageSizes();
    void clickedDeleteImageSizes();
    void openDialog(std::int32_t index);
    void change(const QString& label, std::function<std::string()> work);
    void showButtons();

    SettingEditor& editor_;
    SystemInfo& info_;
    HeldLoop& loop_;
    QTableWidget* table_;
    QToolButton *edit_ = nullptr, *delete_ = nullptr;
};

}  // namespace tavrin
