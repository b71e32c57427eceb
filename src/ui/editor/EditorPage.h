#pragma once

#include <map>

#include "editor/EditorDoor.h"
#include "ui/bind/PanelPage.h"

class QAbstractButton;
class QAction;
class QButtonGroup;
class QCheckBox;
class QLabel;
class QToolButton;

namespace tavrin {

class BrushSlider;

/// The panel of the airbrush: the tools, what the active one can be set to, undo and replay. It shows how the editor
/// stands, and asks the door for everything.
class EditorPage : public PanelPage {
    Q_OBJECT

  public:
    EditorPage(EditorDoor& door, Binder& binder, QWidget* parent = nullptr);

    /// Shows how the editor stands: its controls are those of the active tool.
    void UpdateEditorUI(const EditorFace& face);
    /// Adds a button, or a box, for an action of the window.
    void addAction(QAction* action, const char* name, const char* handler);
    void addBox(QAction* action, const char* name, const char* handler);

  signals:
    /// What the pressure of a pen changes: 0 nothing, 1 the radius, 2 the strength.
    void penChosen(int what);
    /// A key that no control took.
    void keyPressed(QKeyEvent* event);
    /// Asks whether a key is wanted.
    void keyOffered(QKeyEvent* event, bool* wanted);

  protected:
    bool event(QEvent* event) override;

  private:
    QWidget* makeTools();
    QWidget* makeSliders();
    QWidget* makeColour();
    QWidget* makeSources();
    QWidget* makePen();
    QWidget* makeScaleBox();
    void editSliderChange();
    void chooseColour();
    void showTool(const EditorFace& face);

    EditorDoor& door_;
    GroupBox *tools_ = nullptr, *brush_ = nullptr, *steps_ = nullptr;
    QWidget* actions_ = nullptr;
    QLabel *state_, *undo_;
    QButtonGroup *brushes_, *sources_;
    QWidget *sourceRow_ = nullptr, *colourRow_ = nullptr;
    BrushSlider *general_, *radius_, *hardness_, *transparency_;
    QCheckBox *box_, *scaleBox_ = nullptr;
    QToolButton *well_ = nullptr, *eyeDropper_ = nullptr;
    QColor colour_;
};

}  // namespace tavrin
