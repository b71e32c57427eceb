#pragma once

#include <QDialog>

#include "delivery/print/PrintService.h"

class QComboBox;
class QRadioButton;

namespace tavrin {

/// What printing remembers from start to start, for all pages.
struct PageLayout {
    QString paper;           ///< by name; "" for what the printer usually has
    bool landscape = false;  ///< the paper lies on its side

    static PageLayout kept();
    void keep() const;
    /// The paper that is meant, of those that there are.
    Paper among(const PrinterPapers& papers) const;
};

/// Asks for the paper to print on and how it lies.
class PageLayoutDialog : public QDialog {
    Q_OBJECT

  public:
    explicit PageLayoutDialog(const PrinterPapers& papers, QWidget* parent = nullptr);

  signals:
    /// Another layout is kept.
    void changed();

  private:
    void take();

    QComboBox* paper_;
    QRadioButton *upright_, *onSide_;
};

}  // namespace tavrin
