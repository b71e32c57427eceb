#include "farm/JudgementText.h"

#include <algorithm>
#include <cmath>

#include <QJsonArray>
#include <QJsonObject>

#include "core/files/NameText.h"

namespace tavrin {

namespace {

// In the order of `MatteMeasure`.
constexpr const char* kMeasureNames[] = {"noScreen", "otherScreen", "nothing",   "clothes",    "unlike",
                                         "shades",   "room",        "seeds",     "undecided",  "residue",
                                         "shadow",   "specks",      "darkPlace", "darkScreen", "overexposed",
                                         "uneven",   "previews",    "cut",       "exposure"};
static_assert(std::size(kMeasureNames) == kMatteMeasures);

double rounded(double value) {
    return std::round(value * 1e5) / 1e5;
}

QJsonObject describe(const MatteMeasures& measures) {
    QJsonObject object;
    for (std::size_t i = 0; i < kMatteMeasures; ++i) {
        if (measures.values[i] != 0.0) object[kMeasureNames[i]] = rounded(measures.values[i]);
    }
    return object;
}

}  // namespace

void addJudgement(QJsonObject& object, const Judgement& judgement) {
    QJsonArray doubts;
    for (const Doubt& doubt : judgement.doubts)
        doubts.append(QJsonObject{
            {"kind", textOfName(doubt.kind)}, {"text", textOfName(doubt.text)}, {"loss", rounded(doubt.loss)}});
    const QRect& place = judgement.place;
    object["confidence"] = judgement.confidence;
    object["doubts"] = doubts;
    object["place"] =
        QJsonObject{{"x", place.x()}, {"y", place.y()}, {"width", place.width()}, {"height", place.height()}};
    const QJsonObject measures = describe(judgement.measures);
    if (!measures.isEmpty()) object["measures"] = measures;
}

std::optional<Judgement> judgementOf(const QJsonObject& object) {
    if (!object["confidence"].isDouble()) return std::nullopt;
    Judgement judgement;
    judgement.confidence = std::clamp(object["confidence"].toInt(), 0, 100);
    for (const auto& told : object["doubts"].toArray()) {
        const QJsonObject doubt = told.toObject();
        judgement.doubts.push_back(
            {nameOfText(doubt["kind"].toString()), nameOfText(doubt["text"].toString()), doubt["loss"].toDouble()});
    }
    const QJsonObject place = object["place"].toObject();
    judgement.place = QRect(place["x"].toInt(), place["y"].toInt(), place["width"].toInt(), place["height"].toInt());
    return judgement;
}

}  // namespace tavrin
