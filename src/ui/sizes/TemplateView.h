#pragma once

#include <functional>
#include <optional>

#include <QImage>
#include <QWidget>

#include "core/state/SystemInfo.h"
#include "delivery/print/SheetLayout.h"

namespace tavrin {

/// A print page as it will come out of the printer, with the present picture in its places.
class TemplateView : public QWidget {
    Q_OBJECT

  public:
    /// @param picture asks for the combined picture; it may be null
    TemplateView(const SystemInfo& info, std::function<QImage()> picture, QWidget* parent = nullptr);

    /// Shows a page of the list; -1 shows nothing.
    void setTemplate(std::int32_t index);
    /// Shows a page that is in no list.
    void setPage(const PrinterPage& page);
    /// How the sheet is printed, the caption as it is to be read.
    void setLook(const SheetLook& look);
    /// The picture, the page or the list is another one.
    void refresh();

    QSize sizeHint() const override { return {260, 280}; }
    /// The sheet as it is shown.
    const QImage& sheet() const { return sheet_; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent*) override { sheet_ = QImage(); }

  private:
    const PrinterPage* page() const;
    void makeSheet();

    const SystemInfo& info_;
    std::function<QImage()> picture_;
    std::int32_t iSelectedTemplate_ = -1;
    std::optional<PrinterPage> ownPage_;
    SheetLook look_;
    QImage sheet_;
};

}  // namespace tavrin
