#pragma once

#include <vector>

#include <QTimer>
#include <QWidget>

#include "ui/bind/Binder.h"

namespace tavrin {

/// What is set here: a chip for every control away from its default. A click on its words leads to the control, its
/// cross puts the default back.
class Chips : public QWidget {
    Q_OBJECT

  public:
    explicit Chips(Binder& binder, QWidget* parent = nullptr);

    QSize sizeHint() const override;
    bool hasHeightForWidth() const override { return true; }
    int heightForWidth(int width) const override { return layOut(width, false); }

  signals:
    void wanted(const ControlRow* row);

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void refresh();
    void placeInTabOrder();
    QWidget* makeChip(ControlRow* row);
    int layOut(int width, bool place) const;

    Binder& binder_;
    QTimer due_;
    bool all_ = false;  ///< more than the first few
    std::vector<ControlRow*> rows_;
    std::vector<QWidget*> chips_;
};

}  // namespace tavrin
