#include "ui/sizes/PrintPage.h"

namespace tavrin {

namespace {

const BindingGroup kPages{"groupPrintPages", QT_TRANSLATE_NOOP("Panel", "Print pages"), nullptr, {}};

}  // namespace

PrintPage::PrintPage(Binder& binder, TemplatesPanel* templates, QWidget* parent)
    : PanelPage({"panelPrint", "TabPrint", 6, QT_TRANSLATE_NOOP("Panel", "Print"),
                 QT_TRANSLATE_NOOP("Panel", "Pages to print on, with places for pictures")},
                parent) {
    addGroup(kPages, binder)->addItem(templates);
}

}  // namespace tavrin
