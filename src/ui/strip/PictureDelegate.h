#pragma once

#include <QStyledItemDelegate>

namespace tavrin {

/// Paints a picture of a strip: the small picture whole, a frame about the one under work, its mark as a shape with a
/// colour in the corner. All have one size, so that a list of thousands is laid out at once.
class PictureDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    static constexpr QSize kItem{76, 84};  ///< logical pixels

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return kItem; }
};

}  // namespace tavrin
