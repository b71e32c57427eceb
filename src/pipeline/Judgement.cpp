#include "pipeline/Judgement.h"

#include <algorithm>
#include <cmath>

namespace tavrin {

namespace {

/// Up to `from` a measure costs nothing, from `to` on `most` of the certainty, between them a part of it.
struct Rule {
    MatteMeasure measure;
    const char* kind;
    const char* text;
    double from, to, most;
    bool hasPlace;  ///< it can be pointed at
};

// Set by one half of the pictures that docs/key-quality.md tells of.
constexpr Rule kRules[] = {
    {MatteMeasure::noScreen, "no-screen", "there may be no green or blue screen", 0.0, 1.0, 1.0, false},
    {MatteMeasure::otherScreen, "other-screen", "the screen has another colour than was keyed", 0.0, 1.0, 0.97,
     false},
    {MatteMeasure::nothing, "empty", "next to nothing is left of the subject", 0.0, 1.0, 1.0, false},
    {MatteMeasure::clothes, "clothes", "clothes have the screen's colour", 0.01, 0.05, 0.7, true},
    {MatteMeasure::unlike, "holes", "parts were removed that do not look like the screen", 0.002, 0.03, 0.8, true},
    {MatteMeasure::shades, "shades", "removed parts do not look like a smooth screen", 0.03, 0.08, 0.85, true},
    {MatteMeasure::room, "room", "something beside the screen was kept", 0.1, 0.6, 0.8, true},
    {MatteMeasure::seeds, "gaps", "the screen shows through within the subject", 0.02, 0.1, 0.3, true},
    {MatteMeasure::undecided, "half-solid", "large parts are half transparent", 0.01, 0.08, 0.5, true},
    {MatteMeasure::residue, "residue", "parts of the screen are left", 0.002, 0.03, 0.7, true},
    {MatteMeasure::shadow, "shadow", "part of the subject's shadow is left", 0.0, 0.002, 0.7, true},
    {MatteMeasure::specks, "specks", "bits are left that do not belong to the subject", 0.01, 0.1, 0.6, true},
    {MatteMeasure::darkPlace, "dark-place", "the screen is very dark", 0.45, 0.8, 0.6, true},
    {MatteMeasure::darkScreen, "dark-screen", "the screen is very dark", 145.0, 205.0, 0.8, false},
    {MatteMeasure::overexposed, "overexposed-screen", "the screen is overexposed", 0.02, 0.22, 0.8, false},
    {MatteMeasure::uneven, "uneven-screen", "the screen is lit very unevenly", 0.5, 1.0, 0.6, false},
    {MatteMeasure::previews, "previews", "preview and picture differ", 0.002, 0.02, 0.5, true},
    {MatteMeasure::cut, "cut", "the picture cuts the subject", 0.0, 3.0, 0.3, true},
    {MatteMeasure::exposure, "exposure", "much of the subject is black or white without detail", 0.1, 0.5, 0.4, true},
};

double lossOf(const Rule& rule, double value) {
    return rule.most * std::clamp((value - rule.from) / (rule.to - rule.from), 0.0, 1.0);
}

std::string darkPlace(const MatteMeasures& measures) {
    static const char* const kRows[] = {"upper", "middle", "lower"};
    static const char* const kColumns[] = {"left", "middle", "right"};
    const char *const row = kRows[measures.darkRow], *const column = kColumns[measures.darkColumn];
    if (measures.darkRow == 1) return std::string(" on the ") + column + (measures.darkColumn == 1 ? "" : " side");
    if (measures.darkColumn == 1) return std::string(" in the ") + row + " part";
    return std::string(" in the ") + row + " " + column + " corner";
}

QRect squareAround(QPoint middle, QSize size) {
    constexpr int kSide = 400;
    const int width = std::min(kSide, size.width()), height = std::min(kSide, size.height());
    return QRect(std::clamp(middle.x() - width / 2, 0, size.width() - width),
                 std::clamp(middle.y() - height / 2, 0, size.height() - height), width, height);
}

}  // namespace

Judgement judge(const MatteMeasures& measures, QSize size, int step) {
    Judgement judgement;
    judgement.measures = measures;
    judgement.place = QRect(QPoint(0, 0), size);
    double certainty = 1.0, heaviest = 0.0;
    for (const Rule& rule : kRules) {
        const double loss = lossOf(rule, measures[rule.measure]);
        if (loss <= 0.0) continue;
        certainty *= 1.0 - loss;
        const bool isDark = rule.measure == MatteMeasure::darkPlace;
        judgement.doubts.push_back({rule.kind, rule.text + (isDark ? darkPlace(measures) : ""), loss});
        if (loss <= heaviest) continue;
        heaviest = loss;
        const QPoint middle = measures.places[static_cast<std::size_t>(rule.measure)] * step;
        const bool hasPlace = rule.hasPlace && !middle.isNull();
        judgement.place = hasPlace ? squareAround(middle, size) : QRect(QPoint(0, 0), size);
    }
    std::stable_sort(judgement.doubts.begin(), judgement.doubts.end(),
                     [](const Doubt& a, const Doubt& b) { return a.loss > b.loss; });
    judgement.confidence = static_cast<int>(std::lround(100.0 * certainty));
    return judgement;
}

}  // namespace tavrin
