#pragma once

#include <vector>

#include <QDockWidget>

#include "ui/adjust/ScaleView.h"
#include "ui/bind/GroupBox.h"

class QLineEdit;
class QLabel;

namespace tavrin {

/// The controls beside the picture. It stands left, right or by itself, and finds any control by words.
class SidePanel : public QDockWidget {
    Q_OBJECT

  public:
    SidePanel(Binder& binder, QWidget* parent = nullptr);

    QLineEdit* searchField() const { return search_; }
    const std::vector<GroupBox*>& groups() const { return groups_; }

    /// The small maps of the layer and of the selected item.
    ScaleView* scaleView() const { return scaleView_; }
    TextScaleView* textScaleView() const { return textScaleView_; }

  private:
    void addMaps(GroupBox& place);
    QWidget* makeLayerSwitch();
    void find(const QString& text);
    void chooseLayer(int layer);

    Binder& binder_;
    QLineEdit* search_;
    QLabel* nothing_;
    QWidget* layerSwitch_ = nullptr;
    ScaleView* scaleView_ = nullptr;
    TextScaleView* textScaleView_ = nullptr;
    std::vector<GroupBox*> groups_;
};

}  // namespace tavrin
