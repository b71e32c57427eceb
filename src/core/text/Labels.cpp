#include <algorithm>
#include <cctype>
#include <iterator>

#include "core/files/StandardPath.h"
#include "core/text/ClearLayer.h"
#include "core/text/Fonts.h"
#include "core/text/TextLayers.h"
#include "core/text/TextMacros.h"
#include "core/text/TextPaint.h"

namespace tavrin {

namespace {

enum class Side { low, middle, high };

struct LabelPlace {
    const char* name;
    Side x, y;  // y upward
};

constexpr LabelPlace kPlaces[] = {
    {"Top Left", Side::low, Side::high},           {"Top Center", Side::middle, Side::high},
    {"Top Right", Side::high, Side::high},         {"Center Left", Side::low, Side::middle},
    {"Center Center", Side::middle, Side::middle}, {"Center Right", Side::high, Side::middle},
    {"Bottom Left", Side::low, Side::low},         {"Bottom Center", Side::middle, Side::low},
    {"Bottom Right", Side::high, Side::low},
};

struct NamedSize {
    const char* name;
    int points;
};

constexpr double kMarginInches = 0.25;

constexpr NamedSize kSizes[] = {{"X-Large", 60}, {"Large", 40}, {"Medium", 25}, {"Small", 12}};

// Where the base line of a label starts, in pixels from the bottom left of the picture.
QPointF startOf(const FontObject& label, const PassGeometry& size, double textWidth, double capHeight) {
    const double w = size.width, h = size.height, margin = size.dpi * kMarginInches;
    const std::string location = label.sLocation;
    if (location == "ABSOLUTE") return {label.xPos * w, label.yPos * h};
    const auto* place =
        std::find_if(std::begin(kPlaces), std::end(kPlaces), [&](const LabelPlace& p) { return location == p.name; });
    // Both from the width: saved pictures depend on it.
    if (place == std::end(kPlaces)) return {w * 0.1, w * 0.9};
    const double x = place->x == Side::low      ? margin
                     : place->x == Side::middle ? (w - textWidth) / 2.0
                                                : w - textWidth - margin;
    const double y = place->y == Side::low ? margin : place->y == Side::middle ? h * 0.5 : h - capHeight - margin;
    return {x, y};
}

LaidOutText layOutLabel(const SystemInfo& info, const FontObject& label) {
    TextSetting setting;
    setting.fontName = label.sFontName;
    setting.singleLine = true;
    return layOutText(labelString(info, label), setting);
}

/// Whether what lies under a label is dark, by its mean brightness.
bool isDarkUnder(const SystemInfo& info, const FontObject& label, const std::uint8_t* pixels, Resolution resolution) {
    const PassGeometry size = info.geometry(resolution);
    const LaidOutText text = layOutLabel(info, label);
    const double scale = size.dpi / 72.0 * label.iFontSize / LaidOutText::kSize;
    const QPointF start = startOf(label, size, text.width * scale, text.capHeight * scale);
    const QRectF line(start.x(), size.height - start.y() - text.capHeight * scale, text.width * scale,
                      text.capHeight * scale);
    const QRect under = line.toAlignedRect() & QRect(0, 0, size.width, size.height);
    double sum = 0.0;
    for (int y = under.top(); y <= under.bottom(); ++y) {
        for (int x = under.left(); x <= under.right(); ++x) {
            const std::uint8_t* p = pixels + pixelOffset(size.width, x, y);
            sum += 0.299 * p[0] + 0.587 * p[1] + 0.114 * p[2];
        }
    }
    return sum < 128.0 * under.width() * under.height();
}

}  // namespace

void chooseLabelColors(SystemInfo& info, const std::uint8_t* pixels, Resolution resolution) {
    if (!pixels) return;
    for (FontObject& label : info.oFontLabelObject) {
        if (label.sFontColor.load() != kColorByGround || labelString(info, label).empty() || !canDrawText(info))
            continue;
        label.bDropShadow = isDarkUnder(info, label, pixels, resolution);
        label.sFontColor = label.bDropShadow ? "White" : "Black";
        useLabelColor(label);
    }
}

void shrinkToFit(const SystemInfo& info, FontObject& label, double inches) {
    constexpr int kSmallest = 6;
    const double room = (inches - 2.0 * kMarginInches) * 72.0, width = layOutLabel(info, label).width;
    if (width <= 0.0 || room <= 0.0) return;
    const int largest = std::max(kSmallest, static_cast<int>(room * LaidOutText::kSize / width));
    if (label.iFontSize > largest) label.iFontSize = largest;
}

std::string labelString(const SystemInfo& info, const FontObject& label) {
    if (label.iFontSize < 1) return "";
    std::string text = label.sText, lower = text;
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    if (lower == "@filename") text = lastPathComponent(info.pForegroundBitmapInfo->sSourceImageFullPath);
    return text;
}

void DrawText(SystemInfo& info, BitmapContext* context, const FontObject& myFontObject, int myRes,
              const RunContext& run) {
    const PassGeometry size = info.geometry(fullIf(myRes == 1));
    const double pixels = size.dpi / 72.0 * myFontObject.iFontSize;
    const std::string string = labelString(info, myFontObject);
    if (!context || string.empty() || !(pixels > 0.0) || !canDrawText(info)) return;
    const LaidOutText text = layOutLabel(info, myFontObject);
    const double scale = pixels / LaidOutText::kSize;
    const QPointF start = startOf(myFontObject, size, text.width * scale, text.capHeight * scale);
    const double red = myFontObject.dFontFillRed, green = myFontObject.dFontFillGreen,
                 blue = myFontObject.dFontFillBlue;

    drawInto(info, *context, [&](BitmapContext& target) {
        const auto painter = target.painter();
        const QTransform upright = QTransform(1, 0, 0, -1, 0, 0) * painter->transform();
        const auto draw = [&](double right, double down, const TextStyle& style) {
            const QTransform place =
                QTransform::fromScale(scale, scale) *
                QTransform::fromTranslate(start.x() + right, -start.y() - text.ascent * scale + down);
            paintText(*painter, text, place * upright, style, run);
        };
        if (myFontObject.bDropShadow) {
            const QColor shadow = red + green + blue < 0.5 ? Qt::white : Qt::black;
            // Steps of whole pixels, whatever the resolution.
            for (const double step : {1.0, 2.0, 3.0})
                draw(step, step, {shadow, {}, 0.0, shadow});
        }
        draw(0.0, 0.0, {colorOf(red, green, blue), {}, 0.0, {}});
    });
}

void useLabelSize(FontObject& label) {
    const std::string name = label.sLabelSize;
    for (const NamedSize& size : kSizes) {
        if (name == size.name) label.iFontSize = size.points;
    }
}

void useLabelColor(FontObject& label) {
    const double level = label.sFontColor.load() == "White" ? 1.0 : 0.0;
    label.dFontFillRed = label.dFontFillGreen = label.dFontFillBlue = level;
}

void updateLabelSettings(SystemInfo& info) {
    for (FontObject& label : info.oFontLabelObject) {
        useLabelSize(label);
        useLabelColor(label);
    }
}

}  // namespace tavrin
