#include "ui/text/ItemControls.h"

#include <QAction>
#include <QDateTime>
#include <QMenu>
#include <QToolButton>

#include "core/files/NameText.h"
#include "core/text/TextLayers.h"
#include "core/text/TextMacros.h"
#include "ui/bind/ColourRow.h"
#include "ui/text/WordRows.h"

namespace tavrin {

namespace {

/// The box of the text is as large as its lines.
void fitBox(SettingEditor& editor, const std::string& owner) {
    if (!selectedItem(editor.info())) return;
    editor.apply({owner + "rectSizeWidth", owner + "rectSizeHeight"}, [](SystemInfo& info) {
        fitTextBox(info, info.oFontObject[static_cast<std::size_t>(info.iSelectedFontObject)]);
    });
}

constexpr Handler kWords{"controlTextDidChange:", fitBox}, kFont{"fontChanged:", fitBox};
constexpr Handler kFill{"clickedFillRadiobutton:"}, kJustify{"clickedJustifyRadiobutton:"};
constexpr Handler kShadow{"shadowSliders:"}, kScaleItem{"textViewScaleSlider:"};
constexpr Handler kTextLevel{"changedLevel:"}, kImageLevel{"changedImageLevel:"}, kFade{"imageTrasparencySlider:"};

// The list of items tells of all of them at once.
const PanelActs kTextPanel{"addText:, closeAddTextDialog:", "updateTextUI", {}};
const PanelActs kImagePanel{"addImage:, closeImageTextDialog:", "updateTextUI", {}};

constexpr Mapping kHundredths{"value / 100", [](double v) { return v / 100.0; }, [](double s) { return s * 100.0; },
                              1, 100.0};

constexpr PickRow::Word kLevels[] = {
    {"Background", QT_TRANSLATE_NOOP("Panel", "Behind the subject")},
    {"Background Layer", QT_TRANSLATE_NOOP("Panel", "Behind the subject, over the background's overlay")},
    {"Foreground", QT_TRANSLATE_NOOP("Panel", "Over the subject")},
    {"Foreground Layer", QT_TRANSLATE_NOOP("Panel", "Over the subject's overlay")},
    {"Frame Layer", QT_TRANSLATE_NOOP("Panel", "Over everything but frames")}};

std::vector<Binding> scales(const char* x, const char* y) {
    return {{x, &kScaleItem, Owner::item, "dGlobalScaleX", &kHundredths, 1, 800, 1,
             QT_TRANSLATE_NOOP("Panel", "Width"), QT_TRANSLATE_NOOP("Panel", "How wide the item is, in percent.")},
            {y, &kScaleItem, Owner::item, "dGlobalScaleY", &kHundredths, 1, 800, 1,
             QT_TRANSLATE_NOOP("Panel", "Height"), QT_TRANSLATE_NOOP("Panel", "How high the item is, in percent.")}};
}

BindingGroup textGroup() {
    constexpr auto kItem = Owner::item;
    std::vector<Binding> bindings = {
        {"sliderFontSize", &kFont, kItem, "iFontSize", &kPlain, 6, 300, 40, QT_TRANSLATE_NOOP("Panel", "Size"),
         QT_TRANSLATE_NOOP("Panel", "Of the letters, in points.")},
        {"checkBold", &kFont, kItem, "isBold", &kState, 0, 1, 0, QT_TRANSLATE_NOOP("Panel", "Bold"),
         QT_TRANSLATE_NOOP("Panel", "Heavier letters")},
        {"checkItalic", &kFont, kItem, "isItallic", &kState, 0, 1, 0, QT_TRANSLATE_NOOP("Panel", "Italic"),
         QT_TRANSLATE_NOOP("Panel", "Slanted letters")},
        {"radioJustify",
         &kJustify,
         kItem,
         "iJustify",
         &kPlain,
         0,
         2,
         0,
         QT_TRANSLATE_NOOP("Panel", "Lines"),
         QT_TRANSLATE_NOOP("Panel", "Where shorter lines stand"),
         {{"radioJustifyLeft", "1", 0, QT_TRANSLATE_NOOP("Panel", "Left")},
          {"radioJustifyCenter", "2", 1, QT_TRANSLATE_NOOP("Panel", "Centre")},
          {"radioJustifyRight", "3", 2, QT_TRANSLATE_NOOP("Panel", "Right")}}},
        {"radioFill",
         &kFill,
         kItem,
         "iFontOutlineThickness",
         &kPlain,
         -3,
         3,
         0,
         QT_TRANSLATE_NOOP("Panel", "Letters"),
         QT_TRANSLATE_NOOP("Panel", "What is drawn of them"),
         {{"radioFillOnly", "1", 0, QT_TRANSLATE_NOOP("Panel", "Filled")},
          {"radioOutlineOnly", "2", 3, QT_TRANSLATE_NOOP("Panel", "Outline")},
          {"radioFillAndOutline", "3", -3, QT_TRANSLATE_NOOP("Panel", "Both")}}},
        {"sliderShadowRadius", &kShadow, kItem, "iFontDropShadowRadius", &kPlain, 0, 50, 0,
         QT_TRANSLATE_NOOP("Panel", "Softness of the shadow"),
         QT_TRANSLATE_NOOP("Panel", "How soft the edge of the letters' shadow is.")},
        {"sliderShadowHorz", &kShadow, kItem, "iFontDropShadowHorz", &kPlain, -50, 50, 0,
         QT_TRANSLATE_NOOP("Panel", "Shadow to the right"),
         QT_TRANSLATE_NOOP("Panel", "How far the letters' shadow stands to the right; below 0 to the left.")},
        {"sliderShadowVert", &kShadow, kItem, "iFontDropShadowVert", &kPlain, -50, 50, 0,
         QT_TRANSLATE_NOOP("Panel", "Shadow upward"),
         QT_TRANSLATE_NOOP("Panel", "How far the letters' shadow stands above them; below 0 under them.")}};
    for (Binding& scale : scales("sliderTextScaleX", "sliderTextScaleY"))
        bindings.push_back(std::move(scale));
    return {"MyTextPanel", QT_TRANSLATE_NOOP("Panel", "Selected text"), nullptr, std::move(bindings), false,
            &kTextPanel};
}

BindingGroup imageGroup() {
    std::vector<Binding> bindings = scales("sliderImageScaleX", "sliderImageScaleY");
    bindings.push_back(
        {"sliderImageTransparency", &kFade, Owner::item, "dTransparency", &kHundredths, 0, 100, 1,
         QT_TRANSLATE_NOOP("Panel", "Opacity"),
         QT_TRANSLATE_NOOP("Panel", "At 0 the picture cannot be seen, at 100 it hides what is below.")});
    return {"MyImagePanel", QT_TRANSLATE_NOOP("Panel", "Selected picture"), nullptr, std::move(bindings), false,
            &kImagePanel};
}

constexpr ColourSetting kColours[] = {
    {"colorFontFill", "colorChangedFontFill:", "dFontFillRed", "dFontFillGreen", "dFontFillBlue",
     QT_TRANSLATE_NOOP("Panel", "Colour of the letters"), QT_TRANSLATE_NOOP("Panel", "Fills the letters"),
     QT_TRANSLATE_NOOP("Panel", "Select Font Fill Color"), 1.0, Owner::item},
    {"colorFontOutline", "colorChangedFontOutline:", "dFontOutlineRed", "dFontOutlineGreen", "dFontOutlineBlue",
     QT_TRANSLATE_NOOP("Panel", "Colour of the outline"), QT_TRANSLATE_NOOP("Panel", "Goes round the letters"),
     QT_TRANSLATE_NOOP("Panel", "Select Font Outline Color"), 1.0, Owner::item},
    {"colorFontShadow", "colorChangedShadow:", "dFontDropshadowGlowRed", "dFontDropshadowGlowGreen",
     "dFontDropshadowGlowBlue", QT_TRANSLATE_NOOP("Panel", "Colour of the shadow"),
     QT_TRANSLATE_NOOP("Panel", "Of the letters' shadow"), QT_TRANSLATE_NOOP("Panel", "Select Font Shadow Color"),
     1.0, Owner::item}};

/// A menu of what the text can hold that is filled in for each portrait, with what that would be now.
QToolButton* makeMacros(Binder& binder, TextRow* words) {
    auto* button = new QToolButton;
    button->setObjectName("buttonMacros");
    button->setProperty("handler", "insertMacro");
    button->setText(ControlRow::translated(QT_TRANSLATE_NOOP("Panel", "Insert...")));
    button->setAccessibleName(
        ControlRow::translated(QT_TRANSLATE_NOOP("Panel", "Insert what is filled in for each portrait")));
    button->setToolTip(ControlRow::translated(
        QT_TRANSLATE_NOOP("Panel", "File name, number, date or time, filled in for each portrait")));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setFocusPolicy(Qt::StrongFocus);
    auto* menu = new QMenu(button);
    QObject::connect(menu, &QMenu::aboutToShow, menu, [menu, words, &binder] {
        menu->clear();
        const std::string portrait = binder.editor().info().pForegroundBitmapInfo->sSourceImageFullPath;
        for (const char* macro : {"<<filename>>", "<<filenumber>>", "<<date>>", "<<time>>"}) {
            const QString now = textOfName(expandMacros(macro, portrait, QDateTime::currentDateTime()));
            QAction* action = menu->addAction(QString(macro) + "   " + now);
            QObject::connect(action, &QAction::triggered, words, [words, macro] { words->insert(macro); });
        }
    });
    button->setMenu(menu);
    return button;
}

WordSetting levelOf(const char* control, const Handler* handler) {
    return {control,
            handler,
            Owner::item,
            "sLevel",
            QT_TRANSLATE_NOOP("Panel", "Layer"),
            QT_TRANSLATE_NOOP("Panel", "What the item lies over, and what covers it")};
}

void showOnlyFor(GroupBox* box, Binder& binder, bool isImage) {
    const auto refresh = [box, &binder, isImage] {
        const FontObject* item = selectedItem(binder.editor().info());
        const bool is = item && item->isImage == isImage;
        if (is == box->isEnabled()) return;
        box->setEnabled(is);
        box->setFolded(!is);
    };
    QObject::connect(&binder, &Binder::shown, box, refresh);
    refresh();
}

}  // namespace

const FontObject* selectedItem(const SystemInfo& info) {
    const int at = info.iSelectedFontObject;
    return at >= 0 && at < info.iFontObjectCount() ? &info.oFontObject[static_cast<std::size_t>(at)] : nullptr;
}

GroupBox* makeTextControls(Binder& binder, QWidget* parent) {
    static const BindingGroup group = textGroup();
    auto* words =
        new TextRow({"textItemWords", &kWords, Owner::item, "sText", QT_TRANSLATE_NOOP("Panel", "Words"),
                     QT_TRANSLATE_NOOP("Panel", "What stands on the picture, in as many lines as you like")},
                    binder);
    auto* font = new FontRow({"fontPicker", &kFont, Owner::item, "sFontName", QT_TRANSLATE_NOOP("Panel", "Font"),
                              QT_TRANSLATE_NOOP("Panel", "The typeface of the words")},
                             binder);
    auto* level = new PickRow(levelOf("comboTextLevel", &kTextLevel), kLevels, binder);
    auto* box = new GroupBox(group, binder, parent, {words, makeMacros(binder, words), font});
    for (const ColourSetting& colour : kColours)
        box->addItem(new ColourRow(colour, binder));
    box->addItem(level);
    showOnlyFor(box, binder, false);
    return box;
}

GroupBox* makeImageControls(Binder& binder, QWidget* parent) {
    static const BindingGroup group = imageGroup();
    auto* box = new GroupBox(group, binder, parent);
    box->addItem(new PickRow(levelOf("comboImageLevel", &kImageLevel), kLevels, binder));
    showOnlyFor(box, binder, true);
    return box;
}

}  // namespace tavrin
