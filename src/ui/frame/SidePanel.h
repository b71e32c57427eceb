#pragma once

#include <vector>

#include <QDockWidget>

#include "ui/adjust/ScaleView.h"
#include "ui/bind/GroupBox.h"
#include "ui/look/Chips.h"

class QAction;
class QLabel;
class QLineEdit;
class QScrollArea;

namespace tavrin {

/// The controls beside the picture. It stands left, right or by itself, and finds any control by words.
class SidePanel : public QDockWidget {
    Q_OBJECT

  public:
    SidePanel(Binder& binder, QWidget* parent = nullptr);

    QLineEdit* searchField() const { return search_; }
    const std::vector<GroupBox*>& groups() const { return groups_; }
    /// Shows a control, whatever is folded or searched for, and gives it the focus.
    void reveal(const ControlRow* row);
    /// What the search finds besides controls.
    void setActions(std::vector<QAction*> actions) { actions_ = std::move(actions); }
    /// Puts every default of both layers back, as one step.
    void resetAll();

    /// The small maps of the layer and of the selected item.
    ScaleView* scaleView() const { return scaleView_; }
    TextScaleView* textScaleView() const { return textScaleView_; }

  private:
    void addMaps(GroupBox& place);
    QWidget* makeLayerSwitch();
    void find(const QString& text);
    void chooseLayer(int layer);
    bool showActions(const QStringList& words, Slips slips);
    void goToFirstFound();

    Binder& binder_;
    QLineEdit* search_;
    QLabel* nothing_;
    QWidget* found_;  ///< buttons of the actions that were found
    QScrollArea* scroll_;
    std::vector<QAction*> actions_;
    QWidget* layerSwitch_ = nullptr;
    ScaleView* scaleView_ = nullptr;
    TextScaleView* textScaleView_ = nullptr;
    std::vector<GroupBox*> groups_;
};

}  // namespace tavrin
