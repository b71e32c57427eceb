#include "ui/print/PrintPage.h"

namespace tavrin {

namespace {

const BindingGroup kPages{"groupPrintPages", QT_TRANSLATE_NOOP("Panel", "Print pages"), nullptr, {}};
const BindingGroup kSheets{"groupWaitingSheets", QT_TRANSLATE_NOOP("Panel", "Sheets to be printed"), nullptr, {}};

}  // namespace

PrintPage::PrintPage(Binder& binder, TemplatesPanel* templates, WaitingSheets* sheets, QWidget* parent)
    : PanelPage({"panelPrint", "TabPrint", 6, QT_TRANSLATE_NOOP("Panel", "Print"),
                 QT_TRANSLATE_NOOP("Panel", "Pages to print on, with places for pictures")},
                parent) {
    addGroup(kPages, binder)->addItem(templates);
    addGroup(kSheets, binder)->addItem(sheets);
}

}  // namespace tavrin
