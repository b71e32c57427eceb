#include "ui/print/PrintPage.h"

namespace tavrin {

namespace {

const BindingGroup kPages{"groupPrintPages", QT_TRANSLATE_NOOP("Panel", "Print pages"), nullptr, {}};
const BindingGroup kFolder{"groupBatchPrint", QT_TRANSLATE_NOOP("Panel", "Print a folder"), nullptr, {}};
const BindingGroup kSheets{"groupWaitingSheets", QT_TRANSLATE_NOOP("Panel", "Sheets to be printed"), nullptr, {}};

}  // namespace

PrintPage::PrintPage(Binder& binder, TemplatesPanel* templates, WaitingSheets* sheets, BatchPrintPanel* folder,
                     QWidget* parent)
    : PanelPage({"panelPrint", "TabPrint", 6, QT_TRANSLATE_NOOP("Panel", "Print"),
                 QT_TRANSLATE_NOOP("Panel", "Pages to print on, with places for pictures")},
                parent) {
    addGroup(kPages, binder)->addItem(templates);
    addGroup(kFolder, binder)->addItem(folder);
    addGroup(kSheets, binder)->addItem(sheets);
}

}  // namespace tavrin
