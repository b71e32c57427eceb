#include "session/Recipe.h"

#include <algorithm>
#include <array>
#include <charconv>

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include "core/Lines.h"
#include "core/files/NameText.h"
#include "core/state/ChangeFlags.h"
#include "core/state/SettingNames.h"
#include "session/OutputSizes.h"
#include "session/SettingChanges.h"

namespace tavrin {

namespace {

constexpr std::string_view kPortrait = "foreground.sSourceImageFullPath";

/// Found out with the source and the size.
bool isMeasured(std::string_view name) {
    constexpr std::array<std::string_view, 6> kMeasured = {"foreground.iOrgWidth",  "foreground.iOrgHeight",
                                                           "foreground.fOrgScale",  "background.iOrgWidth",
                                                           "background.iOrgHeight", "background.fOrgScale"};
    return std::find(kMeasured.begin(), kMeasured.end(), name) != kMeasured.end();
}

std::string chooseSizeOf(SystemInfo& info, const SettingValues& settings) {
    const bool differs = std::any_of(settings.begin(), settings.end(), [&](const auto& setting) {
        const auto& [name, value] = setting;
        return (name == "sImageSizeName" || name == "iOutputPixelWidth" || name == "iOutputPixelHeight") &&
               fieldValue(info, name) != value;
    });
    return differs ? chooseStoredSize(info, sizeIn(settings)) : "";
}

QString text(const std::string& value) {
    return textOfName(value);
}

QJsonObject objectOf(const SettingValues& settings) {
    QJsonObject object;
    for (const auto& [name, value] : settings)
        object[text(name)] = text(value);
    return object;
}

SettingValues settingsOf(const QJsonObject& object) {
    SettingValues settings;
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        settings.emplace_back(nameOfText(entry.key()), nameOfText(entry.value().toString()));
    return settings;
}

QJsonArray arrayOf(const std::vector<SettingEditor::Step>& steps) {
    QJsonArray array;
    for (const SettingEditor::Step& step : steps) {
        QJsonArray changes;
        for (const auto& [setting, before, after] : step.changes)
            changes.append(QJsonArray{text(setting), text(before), text(after)});
        array.append(QJsonObject{
            {"label", text(step.label)}, {"number", static_cast<qint64>(step.number)}, {"changes", changes}});
    }
    return array;
}

std::vector<SettingEditor::Step> stepsOf(const QJsonArray& array) {
    std::vector<SettingEditor::Step> steps;
    for (const auto& entry : array) {
        const QJsonObject object = entry.toObject();
        SettingEditor::Step& step = steps.emplace_back();
        step.label = nameOfText(object["label"].toString());
        step.number = static_cast<std::uint64_t>(object["number"].toInteger());
        for (const auto& change : object["changes"].toArray()) {
            const QJsonArray parts = change.toArray();
            step.changes.push_back(
                {nameOfText(parts[0].toString()), nameOfText(parts[1].toString()), nameOfText(parts[2].toString())});
        }
    }
    return steps;
}

}  // namespace

std::string Recipe::portrait() const {
    const auto found =
        std::find_if(settings.begin(), settings.end(), [](const auto& entry) { return entry.first == kPortrait; });
    return found == settings.end() ? "" : found->second;
}

StoredSize sizeIn(const SettingValues& settings) {
    StoredSize stored;
    const auto number = [](const std::string& text, auto& value) {
        std::from_chars(text.data(), text.data() + text.size(), value);
    };
    for (const auto& [name, value] : settings) {
        if (name == "sImageSizeName") stored.name = value;
        if (name == "iSelecteImageSize") number(value, stored.index);
        if (name == "dOutputImageWidthInInches") number(value, stored.width);
        if (name == "dOutputImageHeightInInches") number(value, stored.height);
        if (name == "iOutputImageDPI") number(value, stored.dpi);
    }
    return stored;
}

SettingValues settingsOf(const SystemInfo& info) {
    SettingValues settings = listFields(info);
    settings.emplace_back(kItemCount, std::to_string(info.iFontObjectCount()));
    return settings;
}

Recipe presentRecipe(const SettingEditor& editor) {
    return {settingsOf(editor.info()), editor.history(), {}};
}

std::string useSettings(SystemInfo& info, const SettingValues& settings) {
    std::string problems;
    for (const auto& [name, value] : settings) {
        if (name == kItemCount && fieldValue(info, name) != value)
            addLine(problems, changeSetting(info, name, value));
    }
    for (const auto& [name, value] : settings) {
        if (name == kItemCount || isMeasured(name) || findLeaf(OutputGeometry::leaves(), name) ||
            fieldValue(info, name) == value)
            continue;
        addLine(problems, changeSetting(info, name, value));
        if (name == kPortrait) info.pCombinedBitmapInfo->bHaveBaseGreen = false;
    }
    addLine(problems, chooseSizeOf(info, settings));
    return problems;
}

std::string bytesOf(const Recipe& recipe) {
    QJsonArray pasted;
    for (const auto& [label, settings] : recipe.pasted)
        pasted.append(QJsonObject{{"label", text(label)}, {"settings", objectOf(settings)}});
    const QJsonObject whole{{"settings", objectOf(recipe.settings)},
                            {"steps", arrayOf(recipe.history.steps)},
                            {"done", static_cast<qint64>(recipe.history.done)},
                            {"saved", static_cast<qint64>(recipe.history.saved)},
                            {"pasted", pasted},
                            {"edits", text(recipe.edits)}};
    return QJsonDocument(whole).toJson(QJsonDocument::Compact).toStdString();
}

std::optional<Recipe> recipeOf(const std::string& bytes) {
    const QJsonDocument document = QJsonDocument::fromJson(QByteArray::fromStdString(bytes));
    if (!document.isObject() || !document["settings"].isObject()) return {};
    Recipe recipe;
    recipe.settings = settingsOf(document["settings"].toObject());
    recipe.history.steps = stepsOf(document["steps"].toArray());
    recipe.history.done = static_cast<std::size_t>(std::max<qint64>(document["done"].toInteger(), 0));
    recipe.history.saved = static_cast<std::uint64_t>(document["saved"].toInteger());
    for (const auto& entry : document["pasted"].toArray()) {
        const QJsonObject look = entry.toObject();
        recipe.pasted.emplace_back(nameOfText(look["label"].toString()), settingsOf(look["settings"].toObject()));
    }
    recipe.edits = nameOfText(document["edits"].toString());
    return recipe;
}

}  // namespace tavrin
