#pragma once

#include <functional>

#include <QDialog>

#include "core/state/SystemInfo.h"

class QComboBox;

namespace tavrin {

class TemplateView;

/// The names and the settings of a panel that chooses a print page.
struct TemplateFamily {
    const char *panel, *view, *combo;
    const char *hide, *change, *update;  ///< operations of its controls, without the colon
    const char* choose;                  ///< a second button that only hides; null where there is none
    Field<std::int32_t> QLXInfo::*index;
    Field<std::string> QLXInfo::*title;
};

/// The page that folders are printed on, and the one of events.
const TemplateFamily& batchTemplates();
const TemplateFamily& eventTemplates();

/// Shows the print pages with the present picture in their places, and keeps the one that is chosen in the settings.
class TemplatePanel : public QDialog {
    Q_OBJECT

  public:
    /// @param family outlives the panel
    /// @param picture asks for the combined picture; it may be null
    TemplatePanel(const TemplateFamily& family, SystemInfo& info, std::function<QImage()> picture, QWidget* parent);

    /// Shows the page of the settings, in front. The event's form is `showEventPrinterTemplate:`, that of folders
    /// `showBatchPrinterTemplate:`.
    void showPrinterTemplate();
    /// `updateBatchPrinterTemplateCombobox`, `updateEventPrinterTemplateCombobox`: fills the list anew, finds the
    /// page of the settings by its title, and takes the first where there is none of it. Whenever the list of pages
    /// may have changed, also while the panel is hidden.
    void updatePrinterTemplateCombobox();
    /// The title of the page that is chosen; "" without pages.
    QString title() const;
    /// The picture is another one.
    void refresh();

  signals:
    /// Another page is chosen: its title is to be shown and the settings are to be saved.
    void templateChosen(const QString& title);

  private:
    void changeSelectedTemplate(int index);

    const TemplateFamily& family_;
    SystemInfo& info_;
    TemplateView* view_;
    QComboBox* combo_;
};

}  // namespace tavrin
