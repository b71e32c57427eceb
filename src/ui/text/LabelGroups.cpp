// Captions in one line: words, font, one of four sizes, one of nine places, white or black.
#include "ui/text/LabelGroups.h"

#include <array>

#include "core/files/NameText.h"
#include "core/text/TextLayers.h"
#include "ui/text/WordRows.h"

namespace tavrin {

namespace {

FontObject& labelOf(SystemInfo& info, int at) {
    return info.oFontLabelObject[static_cast<std::size_t>(at)];
}

/// The size in points and the fill follow from the words.
template <int at>
void followWords(SettingEditor& editor, const std::string&) {
    const std::string label = "label" + std::to_string(at) + '.';
    editor.apply({label + "iFontSize", label + "dFontFillRed", label + "dFontFillGreen", label + "dFontFillBlue"},
                 [](SystemInfo& info) {
                     useLabelSize(labelOf(info, at));
                     if (labelOf(info, at).sFontColor.load() != kColorByGround) useLabelColor(labelOf(info, at));
                 });
}

constexpr Handler kTitle{"changedTitle:", followWords<0>}, kNote{"changedNote:", followWords<1>},
    kEvent{"changedEventLabel:", followWords<2>}, kTyped{"controlTextDidChange:"},
    kTitleColour{"changedTitle:, blackTitle:, whiteTitle:", followWords<0>},
    kNoteColour{"changedNote:, blackNote:, whiteNote:", followWords<1>};

constexpr PickRow::Word kSizes[] = {{"Small", QT_TRANSLATE_NOOP("Panel", "Small")},
                                    {"Medium", QT_TRANSLATE_NOOP("Panel", "Medium")},
                                    {"Large", QT_TRANSLATE_NOOP("Panel", "Large")},
                                    {"X-Large", QT_TRANSLATE_NOOP("Panel", "Extra large")}};
constexpr PickRow::Word kPlaces[] = {{"Top Left", QT_TRANSLATE_NOOP("Panel", "Top left")},
                                     {"Top Center", QT_TRANSLATE_NOOP("Panel", "Top centre")},
                                     {"Top Right", QT_TRANSLATE_NOOP("Panel", "Top right")},
                                     {"Center Left", QT_TRANSLATE_NOOP("Panel", "Middle left")},
                                     {"Center Center", QT_TRANSLATE_NOOP("Panel", "Middle")},
                                     {"Center Right", QT_TRANSLATE_NOOP("Panel", "Middle right")},
                                     {"Bottom Left", QT_TRANSLATE_NOOP("Panel", "Bottom left")},
                                     {"Bottom Center", QT_TRANSLATE_NOOP("Panel", "Bottom centre")},
                                     {"Bottom Right", QT_TRANSLATE_NOOP("Panel", "Bottom right")}};
constexpr PickRow::Word kColours[] = {{"White", QT_TRANSLATE_NOOP("Panel", "White")},
                                      {"Black", QT_TRANSLATE_NOOP("Panel", "Black")},
                                      {kColorByGround, QT_TRANSLATE_NOOP("Panel", "By the ground")}};

/// A label is on while it has words, and they stand on its chip.
template <int at>
QString wordsOn(const SystemInfo& info) {
    return textOfName(info.oFontLabelObject[at].sText);
}
const PanelActs kActs[] = {{"fold", "updateLabelUI", {{"label0.sText", ""}}, wordsOn<0>},
                           {"fold", "updateLabelUI", {{"label1.sText", ""}}, wordsOn<1>},
                           {"fold", "updateLabelUI", {{"label2.sText", ""}}, wordsOn<2>}};

/// What the controls of one label are called, and which settings they drive.
struct LabelNames {
    const char *group, *title;
    const Handler *handler, *colourHandler;
    const char *text, *font, *size, *place, *colour, *shadow;
    const char *sText, *sFontName, *sLabelSize, *sLocation, *sFontColor, *bDropShadow;
};

constexpr LabelNames kLabels[] = {
    {"groupTitle", QT_TRANSLATE_NOOP("Panel", "Title"), &kTitle, &kTitleColour, "textTitle", "fontTitle",
     "comboTitleSize", "comboTitleLocation", "comboTitleColor", "checkTitleShadow", "label0.sText",
     "label0.sFontName", "label0.sLabelSize", "label0.sLocation", "label0.sFontColor", "label0.bDropShadow"},
    {"groupNote", QT_TRANSLATE_NOOP("Panel", "Note"), &kNote, &kNoteColour, "textNote", "fontNote", "comboNoteSize",
     "comboNoteLocation", "comboNoteColor", "checkNoteShadow", "label1.sText", "label1.sFontName",
     "label1.sLabelSize", "label1.sLocation", "label1.sFontColor", "label1.bDropShadow"},
    {"groupEventLabel", QT_TRANSLATE_NOOP("Panel", "Event"), &kEvent, &kEvent, "textEventLabel", "fontEventLabel",
     "comboEventLabelSize", "comboEventLabelLocation", "comboEventLabelColor", "checkEventLabelShadow",
     "label2.sText", "label2.sFontName", "label2.sLabelSize", "label2.sLocation", "label2.sFontColor",
     "label2.bDropShadow"},
};

BindingGroup groupOf(const LabelNames& names) {
    return {names.group,
            names.title,
            nullptr,
            {{names.shadow, names.handler, Owner::state, names.bDropShadow, &kState, 0, 1, 0,
              QT_TRANSLATE_NOOP("Panel", "Shadow of the words"),
              QT_TRANSLATE_NOOP("Panel", "Makes the words stand out from an unquiet ground.")}},
            names.handler == &kEvent,
            &kActs[&names - kLabels]};
}

std::vector<QWidget*> wordsOf(const LabelNames& names, Binder& binder) {
    const auto word = [](const char* control, const Handler* handler, const char* setting, const char* label,
                         const char* toolTip) {
        return WordSetting{control, handler, Owner::state, setting, label, toolTip};
    };
    return {
        new LineRow(word(names.text, &kTyped, names.sText, QT_TRANSLATE_NOOP("Panel", "Words"),
                         QT_TRANSLATE_NOOP("Panel", "One line on the picture; @filename puts the portrait's name.")),
                    binder),
        new FontRow(word(names.font, names.handler, names.sFontName, QT_TRANSLATE_NOOP("Panel", "Font"),
                         QT_TRANSLATE_NOOP("Panel", "The typeface of the words")),
                    binder),
        new PickRow(word(names.size, names.handler, names.sLabelSize, QT_TRANSLATE_NOOP("Panel", "Size"),
                         QT_TRANSLATE_NOOP("Panel", "How large the words are")),
                    kSizes, binder),
        new PickRow(word(names.place, names.handler, names.sLocation, QT_TRANSLATE_NOOP("Panel", "Place"),
                         QT_TRANSLATE_NOOP("Panel", "Where the words stand")),
                    kPlaces, binder),
        new PickRow(word(names.colour, names.colourHandler, names.sFontColor, QT_TRANSLATE_NOOP("Panel", "Colour"),
                         QT_TRANSLATE_NOOP("Panel", "White, black, or what can be read best on the ground")),
                    kColours, binder),
    };
}

}  // namespace

std::vector<GroupBox*> makeLabelGroups(Binder& binder, QWidget* parent) {
    static const std::vector<BindingGroup> groups = [] {
        std::vector<BindingGroup> made;
        for (const LabelNames& names : kLabels)
            made.push_back(groupOf(names));
        return made;
    }();
    std::vector<GroupBox*> boxes;
    for (std::size_t i = 0; i < groups.size(); ++i)
        boxes.push_back(new GroupBox(groups[i], binder, parent, wordsOf(kLabels[i], binder)));
    return boxes;
}

}  // namespace tavrin
