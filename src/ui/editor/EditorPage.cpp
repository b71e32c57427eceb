#include "ui/editor/EditorPage.h"

#include <cmath>

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QColorDialog>
#include <QComboBox>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLocale>
#include <QRadioButton>
#include <QToolButton>
#include <QVBoxLayout>

#include "ui/WindowSettings.h"
#include "ui/bind/WheelGuard.h"
#include "ui/editor/BrushSlider.h"

namespace tavrin {

namespace {

constexpr int kToolColumns = 2;
constexpr QSize kSwatch(32, 18);
constexpr char kScaleRadius[] = "editsScaleRadius";  // among what the window remembers

/// The tools as their buttons stand, and what each does in a photographer's words.
struct ToolButton {
    int brush;
    const char *label, *toolTip;
};
constexpr ToolButton kTools[] = {
    {kEraseForeground, QT_TRANSLATE_NOOP("Panel", "Erase Foreground"),
     QT_TRANSLATE_NOOP("Panel", "Takes the portrait away, so that the background shows")},
    {kRestoreForeground, QT_TRANSLATE_NOOP("Panel", "Restore Foreground"),
     QT_TRANSLATE_NOOP("Panel", "Brings back what the key took from the portrait")},
    {kBlendForeground, QT_TRANSLATE_NOOP("Panel", "Blend Foreground"),
     QT_TRANSLATE_NOOP("Panel", "Mixes portrait and background as the slider says")},
    {kRestoreHair, QT_TRANSLATE_NOOP("Panel", "Restore Hair"),
     QT_TRANSLATE_NOOP("Panel", "Brings hair of the chosen colour back, without the screen in it")},
    {kRemoveGreenSpill, QT_TRANSLATE_NOOP("Panel", "Remove Green Spill"),
     QT_TRANSLATE_NOOP("Panel", "Takes the screen's light off skin, hair and clothes")},
    {kFilterColor, QT_TRANSLATE_NOOP("Panel", "Filter Color"),
     QT_TRANSLATE_NOOP("Panel", "Keeps what is near the chosen colour, and takes the screen out of it")},
    {kBlendEdge, QT_TRANSLATE_NOOP("Panel", "Blend Edge"),
     QT_TRANSLATE_NOOP("Panel", "Softens an edge where green is near")},
    {kRestoreBlack, QT_TRANSLATE_NOOP("Panel", "Restore Black"),
     QT_TRANSLATE_NOOP("Panel", "Makes dark places grey again that turned green")},
    {kMakeWhiter, QT_TRANSLATE_NOOP("Panel", "Make Whiter"),
     QT_TRANSLATE_NOOP("Panel", "Takes a tint off what is nearly white, such as a veil")},
    {kBrightness, QT_TRANSLATE_NOOP("Panel", "Brightness"), QT_TRANSLATE_NOOP("Panel", "Makes darker or brighter")},
    {kContrast, QT_TRANSLATE_NOOP("Panel", "Contrast"), QT_TRANSLATE_NOOP("Panel", "Less or more contrast")},
    {kBlur, QT_TRANSLATE_NOOP("Panel", "Blur"), QT_TRANSLATE_NOOP("Panel", "Makes a place unsharp")},
    {kSmooth, QT_TRANSLATE_NOOP("Panel", "Smooth"),
     QT_TRANSLATE_NOOP("Panel", "Evens out the light of skin and cloth, and leaves its colour")},
    {kPaint, QT_TRANSLATE_NOOP("Panel", "Paint"), QT_TRANSLATE_NOOP("Panel", "Paints with the chosen colour")},
    {kCopy, QT_TRANSLATE_NOOP("Panel", "Copy"),
     QT_TRANSLATE_NOOP("Panel", "Copies from the place where A was pressed on the picture")},
    {kSelection, QT_TRANSLATE_NOOP("Panel", "Select"),
     QT_TRANSLATE_NOOP("Panel", "Protects what is near a colour from all the other tools")},
};

/// Words of the tools' own table.
[[maybe_unused]] constexpr const char* kTableWords[] = {
    QT_TRANSLATE_NOOP("Panel", "Keep Grayscale"),
    QT_TRANSLATE_NOOP("Panel", "Erase only if green"),
    QT_TRANSLATE_NOOP("Panel", "Restore Green Areas"),
    QT_TRANSLATE_NOOP("Panel", "Lock Anchor"),
    QT_TRANSLATE_NOOP("Panel", "Invert Selection"),
    QT_TRANSLATE_NOOP("Panel", "Blend"),
    QT_TRANSLATE_NOOP("Panel", "Background"),
    QT_TRANSLATE_NOOP("Panel", "Foreground"),
    QT_TRANSLATE_NOOP("Panel", "Darker"),
    QT_TRANSLATE_NOOP("Panel", "Brighter"),
    QT_TRANSLATE_NOOP("Panel", "Less"),
    QT_TRANSLATE_NOOP("Panel", "More"),
    QT_TRANSLATE_NOOP("Panel", "Tolerance"),
    QT_TRANSLATE_NOOP("Panel", "Low"),
    QT_TRANSLATE_NOOP("Panel", "High"),
    QT_TRANSLATE_NOOP("Panel", "Edge Sample"),
    QT_TRANSLATE_NOOP("Panel", "Blur Radius"),
    QT_TRANSLATE_NOOP("Panel", "Smooth Radius"),
};

/// What the check box of a tool does.
QString boxTip(int brush) {
    switch (brush) {
        case kPaint:
            return EditorPage::tr("Keeps light and dark, and changes only the colour");
        case kEraseForeground:
            return EditorPage::tr("Leaves what has another hue than the screen");
        case kRestoreForeground:
            return EditorPage::tr("Brings back also what is as green as the screen");
        case kCopy:
            return EditorPage::tr("Every stroke begins at the anchor again");
        default:
            return EditorPage::tr("Protects what is not near the colour");
    }
}

QString translatedWord(const std::string& word) {
    return word.empty() ? QString() : ControlRow::translated(word.c_str());
}

int percent(double share) {
    return static_cast<int>(std::lround(100.0 * share));
}

}  // namespace

EditorPage::EditorPage(EditorDoor& door, Binder& binder, QWidget* parent)
    : PanelPage({"panelAirbrush", "TabAirbrush", 2, QT_TRANSLATE_NOOP("Panel", "Airbrush"),
                 QT_TRANSLATE_NOOP("Panel", "Mends the finished picture by hand")},
                parent),
      door_(door),
      state_(new QLabel(tr("The airbrush opens when the full picture is there."))),
      undo_(new QLabel),
      brushes_(new QButtonGroup(this)),
      sources_(new QButtonGroup(this)),
      general_(new BrushSlider("editSlider")),
      radius_(new BrushSlider("editSliderRadius")),
      hardness_(new BrushSlider("editSliderHard")),
      transparency_(new BrushSlider("editSliderTrans")),
      box_(new QCheckBox) {
    static const BindingGroup tools{"groupTools", QT_TRANSLATE_NOOP("Panel", "Tools"), nullptr, {}};
    static const BindingGroup brush{"groupBrush", QT_TRANSLATE_NOOP("Panel", "Brush"), nullptr, {}};
    static const BindingGroup steps{"groupEdits", QT_TRANSLATE_NOOP("Panel", "Steps and edits"), nullptr, {}};
    state_->setWordWrap(true);
    addWidget(state_);
    tools_ = addGroup(tools, binder);
    tools_->addItem(makeTools());
    brush_ = addGroup(brush, binder);
    brush_->addItem(makeSliders());
    steps_ = addGroup(steps, binder);
    actions_ = new QWidget;
    actions_->setAccessibleName(tr("Undo, replay and files of edits"));
    auto* grid = new QGridLayout(actions_);
    grid->setContentsMargins(0, 0, 0, 0);
    steps_->addItem(actions_);
    steps_->addItem(makeScaleBox());
    steps_->addItem(makePen());
    undo_->setObjectName("editorUndoSize");
    undo_->setWordWrap(true);
    steps_->addStatus(undo_);
    UpdateEditorUI(EditorFace());
    if (windowSettings().value(kScaleRadius).toBool()) door_.scaleRadius(true);
}

QWidget* EditorPage::makeTools() {
    auto* tools = new QWidget;
    tools->setObjectName("brushButtons");
    tools->setAccessibleName(tr("Tool"));
    auto* grid = new QGridLayout(tools);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(2);
    int place = 0;
    for (const ToolButton& tool : kTools) {
        const char key = keyOfBrush(tool.brush);
        QToolButton* button =
            makeButton("", "selectBrush:", ControlRow::translated(tool.label),
                       tr("%1 (key %2)").arg(ControlRow::translated(tool.toolTip)).arg(QChar(key).toUpper()));
        button->setObjectName(QString("buttonBrush%1").arg(tool.brush));
        button->setCheckable(true);
        button->setProperty("segment", true);
        brushes_->addButton(button, tool.brush);
        grid->addWidget(button, place / kToolColumns, place % kToolColumns);
        ++place;
    }
    connect(brushes_, &QButtonGroup::idClicked, this, [this](int brush) {
        door_.apply({kBrushChosen, keyOfBrush(brush)});
    });
    return tools;
}

/// One item for the search: what of it is seen is the active tool's matter.
QWidget* EditorPage::makeSliders() {
    auto* all = new QWidget;
    all->setObjectName("brushControls");
    all->setAccessibleName(tr("Radius, hardness, transparency, colour"));
    auto* column = new QVBoxLayout(all);
    column->setContentsMargins(0, 0, 0, 0);
    column->addWidget(makeSources());
    column->addWidget(makeColour());
    box_->setObjectName("editCheckbox");
    box_->setProperty("handler", "editCheckboxChange:");
    connect(box_, &QCheckBox::clicked, this, [this](bool on) { door_.apply({kCheckBox, on}); });
    column->addWidget(box_);
    radius_->setTexts(tr("Radius"), tr("Small"), tr("Large"));
    radius_->setTip(tr("How wide the brush is; [ and ] on the picture"));
    hardness_->setTexts(tr("Hardness"), tr("Soft"), tr("Hard"));
    hardness_->setTip(tr("How far from its middle the brush has its full strength"));
    transparency_->setTexts(tr("Transparency"), tr("Faint"), tr("Full"));
    transparency_->setTip(tr("How much a stroke does in the middle of the brush"));
    general_->setTexts(tr("Tool"), {}, {});
    general_->setTip(tr("What this tool does, from its least to its most"));
    for (BrushSlider* slider : {general_, radius_, hardness_, transparency_}) {
        column->addWidget(slider);
        connect(slider, &BrushSlider::moved, this, &EditorPage::editSliderChange);
    }
    return all;
}

QWidget* EditorPage::makeColour() {
    colourRow_ = new QWidget;
    auto* line = new QHBoxLayout(colourRow_);
    line->setContentsMargins(0, 0, 0, 0);
    well_ = makeButton("editColorWell", "observeValueForKeyPath:ofObject:change:context:", tr("Colour..."),
                       tr("The colour of this tool"));
    well_->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    well_->setIconSize(kSwatch);
    connect(well_, &QToolButton::clicked, this, &EditorPage::chooseColour);
    eyeDropper_ = makeButton("buttonGetColorFromImage", "getColorFromImage:", tr("From the picture"),
                             tr("The next click on the picture takes its colour"));
    eyeDropper_->setCheckable(true);
    connect(eyeDropper_, &QToolButton::clicked, this, [this](bool on) { door_.armEyeDropper(on); });
    line->addWidget(well_);
    line->addWidget(eyeDropper_);
    return colourRow_;
}

/// Whose colours a selection compares.
QWidget* EditorPage::makeSources() {
    const struct {
        const char *name, *handler;
        int mode;
        QString text, toolTip;
    } sources[] = {{"radioNoSelect", "clickedRadioNoSelect:", ColorSelection::kNone, tr("No selection"),
                    tr("Nothing is protected")},
                   {"radioForegroundSelect", "clickedRadioForegroundSelect:", ColorSelection::kForegroundColor,
                    tr("Colours of the portrait"), tr("Protects by the colours that the portrait was taken with")},
                   {"radioCombineSelect", "clickedRadioCombineSelect:", ColorSelection::kCombinedColor,
                    tr("Colours of the result"), tr("Protects by the colours that are seen")}};
    sourceRow_ = new QWidget;
    auto* column = new QVBoxLayout(sourceRow_);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(2);
    for (const auto& source : sources) {
        auto* radio = new QRadioButton(source.text);
        radio->setObjectName(source.name);
        radio->setProperty("handler", source.handler);
        radio->setToolTip(source.toolTip);
        sources_->addButton(radio, source.mode);
        column->addWidget(radio);
    }
    connect(sources_, &QButtonGroup::idClicked, this, [this](int mode) {
        door_.apply({kSelectionChanged, general_->value(), general_->value(), mode});
    });
    return sourceRow_;
}

QWidget* EditorPage::makeScaleBox() {
    scaleBox_ = new QCheckBox(tr("Radius follows the picture's size"));
    scaleBox_->setObjectName("boxScaleRadius");
    scaleBox_->setProperty("handler", "scaleRadius");
    scaleBox_->setAccessibleName(scaleBox_->text());
    scaleBox_->setToolTip(
        tr("Strokes that are replayed at another size of the picture become as much thicker or thinner"));
    connect(scaleBox_, &QCheckBox::clicked, this, [this](bool on) {
        windowSettings().setValue(kScaleRadius, on);
        door_.scaleRadius(on);
    });
    return scaleBox_;
}

QWidget* EditorPage::makePen() {
    auto* line = new QWidget;
    line->setObjectName("penRow");
    auto* layout = new QHBoxLayout(line);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* label = new QLabel(tr("Pressure of a pen"), line);
    auto* pen = new QComboBox(line);
    pen->setObjectName("comboPenPressure");
    pen->setProperty("handler", "penChosen");
    pen->addItems({tr("Changes nothing"), tr("Changes the radius"), tr("Changes the strength")});
    pen->setAccessibleName(label->text());
    pen->setToolTip(tr("What a pen on a tablet changes by how hard it is pressed"));
    line->setAccessibleName(label->text());
    label->setBuddy(pen);
    new WheelGuard(pen);
    connect(pen, &QComboBox::currentIndexChanged, this, &EditorPage::penChosen);
    layout->addWidget(label);
    layout->addWidget(pen, 1);
    return line;
}

void EditorPage::addAction(QAction* action, const char* name, const char* handler) {
    QToolButton* button = makeButton(name, handler, action->text().remove('&'), action->toolTip());
    auto* grid = static_cast<QGridLayout*>(actions_->layout());
    const int place = grid->count();
    grid->addWidget(button, place / 2, place % 2);
    const auto follow = [button, action] {
        button->setEnabled(action->isEnabled());
        button->setToolTip(action->toolTip());
    };
    connect(action, &QAction::changed, button, follow);
    connect(button, &QToolButton::clicked, action, &QAction::trigger);
    follow();
}

void EditorPage::addBox(QAction* action, const char* name, const char* handler) {
    auto* box = new QCheckBox(tr("Show alpha"));
    box->setObjectName(name);
    box->setProperty("handler", handler);
    box->setAccessibleName(box->text());
    box->setToolTip(action->toolTip());
    box->setChecked(action->isChecked());
    connect(action, &QAction::toggled, box, &QCheckBox::setChecked);
    connect(box, &QCheckBox::clicked, action, &QAction::setChecked);
    steps_->addItem(box);
}

void EditorPage::editSliderChange() {
    door_.apply({kBrushSliders, general_->value(), radius_->value(), hardness_->value(), transparency_->value()});
}

void EditorPage::chooseColour() {
    auto* dialog = new QColorDialog(colour_, this);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setObjectName("editColorWellDialog");
    dialog->setWindowTitle(tr("Colour of the Tool"));
    connect(dialog, &QColorDialog::colorSelected, this, [this](const QColor& c) {
        door_.apply({kColorWell, c.red(), c.green(), c.blue()});
    });
    dialog->open();
}

void EditorPage::UpdateEditorUI(const EditorFace& face) {
    state_->setVisible(!face.open);
    for (GroupBox* group : groups())
        group->setEnabled(face.open && !face.replaying);
    const double megabytes = static_cast<double>(face.undoBytes) / 1e6;
    undo_->setText(face.replaying ? tr("The edits are replayed...")
                                  : tr("%1 steps to take back, %2 MB on the disk; %3 of %4 items recorded")
                                        .arg(face.step)
                                        .arg(QLocale().toString(megabytes, 'f', 1))
                                        .arg(face.recorded)
                                        .arg(kMostEditItems));
    scaleBox_->setChecked(face.scalesRadius);
    showTool(face);
}

void EditorPage::showTool(const EditorFace& face) {
    const GUI_BrushInfo& brush = face.brush;
    const bool selects = face.iActiveButton == kSelection;
    if (QAbstractButton* button = brushes_->button(face.iActiveButton)) button->setChecked(true);
    brush_->setTitle(translatedWord(brush.sBrushName));
    sourceRow_->setVisible(selects);
    if (QAbstractButton* source = sources_->button(static_cast<int>(face.iSelectionMode))) source->setChecked(true);
    box_->setVisible(brush.bCheckBoxEnabled);
    box_->setText(translatedWord(brush.sCheckBoxName));
    box_->setToolTip(boxTip(face.iActiveButton));
    box_->setAccessibleName(box_->text());
    box_->setChecked(brush.bCheckBoxValue);
    colourRow_->setVisible(brush.bColorEnabled);
    eyeDropper_->setChecked(face.picksColor);
    colour_ = QColor(face.red, face.green, face.blue);
    QPixmap swatch(kSwatch);
    swatch.fill(colour_);
    well_->setIcon(swatch);
    general_->setVisible(brush.bSliderEnabled);
    if (brush.bSliderEnabled)
        general_->setTexts(translatedWord(brush.sSliderText), translatedWord(brush.sSliderMin),
                           translatedWord(brush.sSliderMax));
    for (BrushSlider* slider : {radius_, hardness_, transparency_})
        slider->setVisible(!selects);
    general_->showValue(percent(brush.dBrushSlider));
    radius_->showValue(percent(brush.dRadius));
    hardness_->showValue(percent(brush.dHardness));
    transparency_->showValue(percent(brush.dTransparency));
}

/// Keys of the tools act wherever no text is typed; the controls' own keys come first.
bool EditorPage::event(QEvent* event) {
    const auto type = event->type();
    if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress) return PanelPage::event(event);
    bool wanted = false;
    emit keyOffered(static_cast<QKeyEvent*>(event), &wanted);
    if (!wanted) return PanelPage::event(event);
    event->accept();
    if (type == QEvent::KeyPress) emit keyPressed(static_cast<QKeyEvent*>(event));
    return true;
}

}  // namespace tavrin
