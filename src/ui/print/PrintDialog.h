#pragma once

#include <functional>

#include <QDialog>

#include "core/state/SystemInfo.h"
#include "ui/print/PageLayout.h"
#include "ui/print/PrintDesk.h"
#include "ui/sizes/TemplateView.h"

class QCheckBox;
class QComboBox;
class QFormLayout;
class QLabel;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QToolButton;

namespace tavrin {

/// Asks how the picture is printed, and shows the sheet as it will come: the page and its look, the printer, the
/// paper and the number of copies. What was chosen last stands there again.
class PrintDialog : public QDialog {
    Q_OBJECT

  public:
    /// @param picture asks for the combined picture; it may be null
    PrintDialog(SystemInfo& info, PrintDesk& desk, std::function<QImage()> picture, QWidget* parent = nullptr);

    /// The picture is another one.
    void refresh();

  signals:
    /// Another page is chosen, which is a setting to keep.
    void pageChosen();
    /// The picture is to be printed, or to become a PDF.
    void printWanted(const tavrin::PrintOrder& order);
    void pdfWanted(const tavrin::SheetPlan& plan);

  private:
    void addPrinter(QFormLayout& form);
    void addSheet(QFormLayout& form);
    void addLook(QFormLayout& form);
    void addColours(QFormLayout& form);
    QWidget* makeButtons();
    template <class Control>
    Control* named(Control* control, const char* name, const QString& label, const QString& toolTip);
    void showPrinters(const PrinterList& list);
    void choosePrinter();
    void takePapers(const QString& printer, const PrinterPapers& papers);
    void updatePrinterTemplateCombobox();
    void changeSelectedTemplate(int index);
    void showSheet();
    void showPaper();
    void runPageLayout();
    void askForProfile();
    void setProfile(const QString& path);
    PrinterPage page() const;
    SheetLook look() const;
    Paper paper() const { return PageLayout::kept().among(papers_); }
    bool plan(SheetPlan& plan);
    void keep() const;
    void PrintTemplate();
    void tell(const QString& line);

    SystemInfo& info_;
    PrintDesk& desk_;
    TemplateView* view_;
    QComboBox *printer_ = nullptr, *page_ = nullptr, *fit_ = nullptr, *intent_ = nullptr;
    QSpinBox* copies_ = nullptr;
    QCheckBox *alone_ = nullptr, *cutMarks_ = nullptr, *mirrored_ = nullptr;
    QLineEdit *caption_ = nullptr, *profile_ = nullptr;
    QToolButton *layout_ = nullptr, *clearProfile_ = nullptr;
    QLabel *state_ = nullptr, *paperText_ = nullptr, *told_ = nullptr;
    QPushButton* print_ = nullptr;
    PrinterPapers papers_{usualPapers(), usualPaper(), ""};
    std::vector<Printer> printers_;
};

}  // namespace tavrin
