#pragma once

#include "ui/bind/PanelPage.h"
#include "ui/sizes/TemplatesPanel.h"

namespace tavrin {

/// The page of print sheets.
class PrintPage : public PanelPage {
    Q_OBJECT

  public:
    PrintPage(Binder& binder, TemplatesPanel* templates, QWidget* parent = nullptr);
};

}  // namespace tavrin
