#pragma once

#include <QStyledItemDelegate>

namespace tavrin {

/// Paints a picture of a strip: the small picture whole, a frame about the one under work, its mark as a shape with a
/// colour in the corner. All have one size, so that a list of thousands is laid out at once.
class PictureDelegate : public QStyledItemDelegate {
    Q_OBJECT

  public:
    static constexpr QSize kItem{76, 84};  ///< logical pixels

    explicit PictureDelegate(QObject* parent = nullptr, QSize item = kItem)
        : QStyledItemDelegate(parent), item_(item) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override { return item_; }

  private:
    const QSize item_;
};

}  // namespace tavrin
