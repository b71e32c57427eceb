#include "ui/picture/StoryText.h"

#include <QCoreApplication>

#include "key/guard/GreenGuard.h"

namespace tavrin {

namespace {

struct Story {
    Q_DECLARE_TR_FUNCTIONS(Story)
};

QString bytes(const std::uint8_t* c) {
    return QString("%1 %2 %3").arg(c[0]).arg(c[1]).arg(c[2]);
}

QString rounded(double value) {
    return QString::number(value, 'f', 1);
}

QString color(const Rgb& c) {
    return rounded(c.r) + "  " + rounded(c.g) + "  " + rounded(c.b);
}

Rgb colorOfBytes(const std::uint8_t* c) {
    return {double(c[0]), double(c[1]), double(c[2])};
}

QString percent(double share) {
    return Story::tr("%1 %").arg(rounded(100.0 * share));
}

QString against(const KeyMeasure& measure) {
    return Story::tr("%1, limit %2").arg(rounded(measure.value), rounded(measure.limit));
}

/// What the key decided, and by which measure.
QString decision(const PixelStory& s) {
    switch (s.reason) {
        case KeyReason::noKey:
            return Story::tr("Nothing is keyed: the portrait is shown as it is.");
        case KeyReason::screenView:
            return Story::tr("The colour that the key takes as screen is shown instead.");
        case KeyReason::guardView:
            return Story::tr("The map of the green guard is shown instead.");
        case KeyReason::margin:
            return Story::tr("Clipped away.");
        case KeyReason::darkNeutral:
            return Story::tr("Subject: dark (%1) and near grey (%2).").arg(against(s.dark), against(s.grey));
        case KeyReason::screenLine:
            return Story::tr("Screen, brighter or darker: its hue fits (distance %1), and it is light enough (%2).")
                .arg(against(s.line), against(s.light));
        case KeyReason::screenNear:
            return Story::tr("Screen: nearly its very colour (distance %1).").arg(against(s.nearest));
        case KeyReason::otherColor:
            return Story::tr("Subject: red or blue leads green by more than 40, which no screen does.");
        case KeyReason::mixed:
            return Story::tr("A mix of subject and screen (distance from the screen's hue %1).").arg(against(s.line));
        case KeyReason::refined:
            break;
    }
    return Story::tr("The refined key decided, by what lies around the pixel.");
}

QString guardText(const PixelStory& s) {
    if (s.guarded) return Story::tr("Protected: it keeps the portrait's own colour.");
    switch (s.guardByte) {
        case guard::kScreen:
            return Story::tr("Not protected: it is connected to the screen at the border.");
        case guard::kScreenColor:
            return Story::tr("Not protected: the screen's colour inside of the subject.");
        case guard::kShirt:
            return Story::tr("The colour of the protected clothes.");
        case guard::kBand:
        case guard::kEdge:
            return Story::tr("Not protected: at the edge of the subject.");
        case guard::kSubject:
            return Story::tr("Not the screen's colour.");
        default:
            return Story::tr("Off.");
    }
}

QString alphaText(const PixelStory& s) {
    return Story::tr("%1 of 255, %2").arg(s.alpha).arg(percent(s.alpha / 255.0));
}

QString ownText(const PixelStory& s) {
    if (s.alpha == 0) return Story::tr("Nothing of the subject is left here.");
    return s.ownWorkedBack ? Story::tr("about %1, worked back from the result").arg(color(s.own)) : color(s.own);
}

}  // namespace

std::vector<StoryLine> storyLines(const PixelStory& s) {
    std::vector<StoryLine> lines{
        {Story::tr("Place"), Story::tr("x %1, y %2").arg(s.x).arg(s.y)},
        {Story::tr("Portrait"), bytes(s.source.data()), colorOfBytes(s.source.data())},
        {Story::tr("Seen by the key"), color(s.seen), s.seen},
        {Story::tr("Screen here"), color(s.screen), s.screen},
        {Story::tr("The key"), decision(s)},
    };
    if (s.reason != KeyReason::refined) {
        const QString share = percent(s.keyAlpha);
        lines.push_back({Story::tr("Its share"),
                         s.hairCorrected ? Story::tr("%1, as a mix of hair and screen").arg(share) : share});
    }
    lines.push_back({Story::tr("Green guard"), guardText(s)});
    lines.push_back({Story::tr("Alpha"), alphaText(s)});
    lines.push_back({Story::tr("Own colour"), ownText(s), s.alpha > 0 ? std::optional(s.own) : std::nullopt});
    lines.push_back({Story::tr("Spill taken away"), QString::number(s.spillTaken)});
    lines.push_back({Story::tr("Background"), bytes(s.background.data()), colorOfBytes(s.background.data())});
    lines.push_back({Story::tr("Result"), bytes(s.result.data()), colorOfBytes(s.result.data())});
    return lines;
}

QString readOut(const PixelStory& s) {
    return Story::tr("x %1  y %2    %3    alpha %4 %    spill %5")
        .arg(s.x)
        .arg(s.y)
        .arg(bytes(s.result.data()))
        .arg(qRound(100.0 * s.alpha / 255.0))
        .arg(s.spillTaken > 0 ? QString(QChar(0x2212)) + QString::number(s.spillTaken) : QString("0"));
}

}  // namespace tavrin
