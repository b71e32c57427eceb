#pragma once

#include "ui/bind/PanelPage.h"
#include "ui/print/BatchPrintPanel.h"
#include "ui/print/WaitingSheets.h"
#include "ui/sizes/TemplatesPanel.h"

namespace tavrin {

/// The page of print sheets: the pages to print on, whole folders, and the sheets that are not printed yet.
class PrintPage : public PanelPage {
    Q_OBJECT

  public:
    PrintPage(Binder& binder, TemplatesPanel* templates, WaitingSheets* sheets, BatchPrintPanel* folder,
              QWidget* parent = nullptr);
};

}  // namespace tavrin
