#pragma once

#include <QWidget>

#include "session/PrintPages.h"
#include "session/SettingEditor.h"
#include "ui/HeldLoop.h"
#include "ui/sizes/TemplateView.h"

class QComboBox;
class QHBoxLayout;
class QTableWidget;
class QToolButton;

namespace tavrin {

/// The print pages: one is chosen to print on, and shown with the picture; the user's own come, change and go here,
/// with their places for pictures.
class TemplatesPanel : public QWidget {
    Q_OBJECT

  public:
    /// @param picture asks for the combined picture; it may be null
    TemplatesPanel(SettingEditor& editor, HeldLoop& loop, std::function<QImage()> picture, QWidget* parent = nullptr);

    /// Shows the list and the chosen page as they are now.
    void refresh();
    TemplateView* view() const { return view_; }

  signals:
    /// Another page is chosen, which is a setting to keep.
    void pageChosen();
    void listChanged();
    /// The picture is to be printed on the chosen page.
    void printWanted();
    void failed(const QString& line, const QString& details);

  private:
    QToolButton* addButton(QHBoxLayout& line, const char* handler, const QString& text, const QString& toolTip,
                           void (TemplatesPanel::*clicked)());
    void addPageControls();
    void addSlotControls();
    std::int32_t page() const;
    const PrinterPage* present() const;
    int slot() const;
    void updatePrinterTemplateCombobox();
    void showSlots();
    void showButtons();
    void changeSelectedTemplate(int index);
    void showPrinterTemplate() { emit printWanted(); }
    void addCustomTemplate() { openPageDialog(-1); }
    void editCustomTemplate() { openPageDialog(page()); }
    void deleteTemplate();
    void addImageLocationToTemplate();
    void editTemplateImageLocation();
    void deleteTemplateImageLocation();
    void openPageDialog(std::int32_t index);
    void openSlotDialog(std::size_t slot, const SlotEntry& entry);
    void change(const QString& label, std::function<std::string()> work);

    SettingEditor& editor_;
    SystemInfo& info_;
    HeldLoop& loop_;
    QComboBox* combo_;
    TemplateView* view_;
    QTableWidget* slots_;
    QToolButton *editPage_ = nullptr, *deletePage_ = nullptr, *addSlot_ = nullptr, *editSlot_ = nullptr,
                *deleteSlot_ = nullptr;
};

}  // namespace tavrin
