#include "ui/picture/StoryText.h"

#include <QCoreApplication>

#include "key/guard/GreenGuard.h"

namespace tavrin {

namespace {

QString say(const char* text) {
    return QCoreApplication::translate("Story", text);
}

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
    return say("%1 %").arg(rounded(100.0 * share));
}

QString against(const KeyMeasure& measure) {
    return say("%1, limit %2").arg(rounded(measure.value), rounded(measure.limit));
}

/// What the key decided, and by which measure.
QString decision(const PixelStory& s) {
    switch (s.reason) {
        case KeyReason::noKey:
            return say("Nothing is keyed: the portrait is shown as it is.");
        case KeyReason::screenView:
            return say("The colour that the key takes as screen is shown instead.");
        case KeyReason::guardView:
            return say("The map of the green guard is shown instead.");
        case KeyReason::margin:
            return say("Clipped away.");
        case KeyReason::darkNeutral:
            return say("Subject: dark (%1) and near grey (%2).").arg(against(s.dark), against(s.grey));
        case KeyReason::screenLine:
            return say("Screen, brighter or darker: its hue fits (distance %1), and it is light enough (%2).")
                .arg(against(s.line), against(s.light));
        case KeyReason::screenNear:
            return say("Screen: nearly its very colour (distance %1).").arg(against(s.nearest));
        case KeyReason::otherColor:
            return say("Subject: red or blue leads green by more than 40, which no screen does.");
        case KeyReason::mixed:
            return say("A mix of subject and screen (distance from the screen's hue %1).").arg(against(s.line));
        case KeyReason::refined:
            break;
    }
    return say("The refined key decided, by what lies around the pixel.");
}

QString guardText(const PixelStory& s) {
    if (s.guarded) return say("Protected: it keeps the portrait's own colour.");
    switch (s.guardByte) {
        case guard::kScreen:
            return say("Not protected: it is connected to the screen at the border.");
        case guard::kScreenColor:
            return say("Not protected: the screen's colour inside of the subject.");
        case guard::kShirt:
            return say("The colour of the protected clothes.");
        case guard::kBand:
        case guard::kEdge:
            return say("Not protected: at the edge of the subject.");
        case guard::kSubject:
            return say("Not the screen's colour.");
        default:
            return say("Off.");
    }
}

QString alphaText(const PixelStory& s) {
    return say("%1 of 255, %2").arg(s.alpha).arg(percent(s.alpha / 255.0));
}

QString ownText(const PixelStory& s) {
    if (s.alpha == 0) return say("Nothing of the subject is left here.");
    return s.ownWorkedBack ? say("about %1, worked back from the result").arg(color(s.own)) : color(s.own);
}

}  // namespace

std::vector<StoryLine> storyLines(const PixelStory& s) {
    std::vector<StoryLine> lines{
        {say("Place"), say("x %1, y %2").arg(s.x).arg(s.y)},
        {say("Portrait"), bytes(s.source.data()), colorOfBytes(s.source.data())},
        {say("Seen by the key"), color(s.seen), s.seen},
        {say("Screen here"), color(s.screen), s.screen},
        {say("The key"), decision(s)},
    };
    if (s.reason != KeyReason::refined) {
        const QString share = percent(s.keyAlpha);
        lines.push_back(
            {say("Its share"), s.hairCorrected ? say("%1, as a mix of hair and screen").arg(share) : share});
    }
    lines.push_back({say("Green guard"), guardText(s)});
    lines.push_back({say("Alpha"), alphaText(s)});
    lines.push_back({say("Own colour"), ownText(s), s.alpha > 0 ? std::optional(s.own) : std::nullopt});
    lines.push_back({say("Spill taken away"), QString::number(s.spillTaken)});
    lines.push_back({say("Background"), bytes(s.background.data()), colorOfBytes(s.background.data())});
    lines.push_back({say("Result"), bytes(s.result.data()), colorOfBytes(s.result.data())});
    return lines;
}

QString readOut(const PixelStory& s) {
    return say("x %1  y %2    %3    alpha %4 %    spill %5")
        .arg(s.x)
        .arg(s.y)
        .arg(bytes(s.result.data()))
        .arg(qRound(100.0 * s.alpha / 255.0))
        .arg(s.spillTaken > 0 ? QString(QChar(0x2212)) + QString::number(s.spillTaken) : QString("0"));
}

}  // namespace tavrin
