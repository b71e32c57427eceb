#pragma once

#include <utility>

#include <QListView>
#include <QTimer>

namespace tavrin {

/// A row of pictures to click on and to walk through.
class StripView : public QListView {
    Q_OBJECT

  public:
    explicit StripView(QWidget* parent = nullptr);

    /// The first and the last row that can be seen; (0, -1) for none.
    std::pair<int, int> visibleRows() const;
    /// Brings a row into view with one of its neighbours on either side.
    void showRow(int row);

    void reset() override;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {80, sizeHint().height()}; }

  signals:
    void opened(int row);
    /// Left or Right.
    void walked(int step);
    /// Other rows may be in view.
    void viewChanged();

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void rowsInserted(const QModelIndex& parent, int start, int end) override;
    void showEvent(QShowEvent* event) override;

  private:
    QTimer soon_;  // many changes are one
};

}  // namespace tavrin
