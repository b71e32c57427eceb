#include "core/text/TextLayers.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QDateTime>

#include "core/raster/ColorMath.h"
#include "core/state/NamedPictures.h"
#include "core/text/ClearLayer.h"
#include "core/text/Fonts.h"
#include "core/text/TextMacros.h"
#include "core/text/TextPaint.h"

namespace tavrin {

namespace {

constexpr std::array kLevels = {"Background", "Background Layer", "Foreground", "Foreground Layer", "Frame Layer"};

// The pass that items are drawn for.
struct Page {
    PassGeometry size;
    double pictureScale = 1.0;  // pixels of this resolution in a pixel of the full picture
    std::string sourcePath;
    QDateTime now;
};

Page pageOf(const SystemInfo& info, Resolution resolution) {
    Page page;
    page.size = info.geometry(resolution);
    if (resolution == Resolution::preview) {
        page.pictureScale = info.iOutputPixelHeight > 0
                                ? static_cast<double>(info.iOutputPixelLowResHeight) / info.iOutputPixelHeight
                                : 0.0;
    }
    page.sourcePath = info.pForegroundBitmapInfo->sSourceImageFullPath;
    page.now = QDateTime::currentDateTime();
    return page;
}

TextSetting settingOf(const FontObject& item) {
    TextSetting setting;
    setting.fontName = item.sFontName;
    setting.bold = item.isBold;
    setting.italic = item.isItallic;
    setting.width = item.rectSizeWidth / item.iFontSize * LaidOutText::kSize;
    setting.justify = item.iJustify;
    return setting;
}

TextStyle styleOf(const FontObject& item) {
    constexpr int kOutlineOnly = 3;
    TextStyle style;
    const int thickness = item.iFontOutlineThickness;
    if (thickness != kOutlineOnly) style.fill = colorOf(item.dFontFillRed, item.dFontFillGreen, item.dFontFillBlue);
    if (thickness != 0) {
        style.outline = colorOf(item.dFontOutlineRed, item.dFontOutlineGreen, item.dFontOutlineBlue);
        style.outlineWidth = std::min(1.0, std::abs(thickness / 100.0));  // percent of the font's size
    }
    return style;
}

bool hasShadow(const FontObject& item) {
    return item.iFontDropShadowRadius > 0 || item.iFontDropShadowHorz != 0 || item.iFontDropShadowVert != 0;
}

// Offsets and radius are in points at the item's scale, upward and to the right.
TextShadow shadowOf(const FontObject& item, double scaleX, double scaleY) {
    TextShadow shadow;
    shadow.color = colorOf(item.dFontDropshadowGlowRed, item.dFontDropshadowGlowGreen, item.dFontDropshadowGlowBlue);
    shadow.offset = QPointF(item.iFontDropShadowHorz * scaleX, item.iFontDropShadowVert * -scaleY);
    const double radius = atLeast(item.iFontDropShadowRadius, 0.0);
    shadow.sigma = radius / 2.0 * (std::abs(scaleX) + std::abs(scaleY)) / 2.0;
    return shadow;
}

// What a text item shows; "" when that is nothing.
std::string stringOf(const FontObject& item, const Page& page) {
    if (item.isImage || item.iFontSize < 1 || item.dGlobalScaleX == 0.0 || item.dGlobalScaleY == 0.0) return "";
    return expandMacros(item.sText, page.sourcePath, page.now);
}

// Where the layout of a text starts, in its flipped coordinates: they count points at the item's scale, y downward
// from the top of the picture. The box hangs from there, so its lower left corner is what `xPos` and `yPos` tell.
QPointF startOf(const FontObject& item, const PassGeometry& size, double sx, double sy) {
    const double d = size.dpi, h = size.height;
    const double x = (item.xPos - item.rectSizeX * item.dGlobalScaleX / 72.0) * d / sx;
    const double y = h / sy - item.yPos * d / sy - (item.rectSizeHeight * item.dGlobalScaleY / 72.0) * d / sy;
    return {x + item.rectSizeX, y};  // the text stands in its box, wherever the dialog had that
}

void drawTextItem(BitmapContext& context, const FontObject& item, const Page& page, const RunContext& run) {
    const double dpi = page.size.dpi;
    const double sx = dpi / 72.0 * item.dGlobalScaleX, sy = dpi / 72.0 * item.dGlobalScaleY;
    const LaidOutText text = layOutText(stringOf(item, page), settingOf(item));
    const TextStyle style = styleOf(item);

    const auto painter = context.painter();
    const double toPoints = item.iFontSize / LaidOutText::kSize;
    const QPointF start = startOf(item, page.size, sx, sy);
    const QTransform flipped =
        QTransform::fromScale(sx, -sy) * QTransform::fromTranslate(0.0, page.size.height) * painter->transform();
    const QTransform place =
        QTransform::fromScale(toPoints, toPoints) * QTransform::fromTranslate(start.x(), start.y()) * flipped;
    if (hasShadow(item)) paintTextShadow(*painter, text, place, style, shadowOf(item, sx, sy), run);
    paintText(*painter, text, place, style, run);
}

void drawPictureItem(SystemInfo& info, BitmapContext& context, const FontObject& item, const Page& page,
                     const RunContext& run) {
    const double dpi = page.size.dpi;
    const double width = item.imageSizeWidth * item.dGlobalScaleX * page.pictureScale;
    const double height = item.imageSizeHeight * item.dGlobalScaleY * page.pictureScale;
    const QRectF rect(item.xPos * dpi, item.yPos * dpi, width, height);  // of the context: y upward
    if (item.sText.empty() || !(width > 0.0) || !(height > 0.0)) return;
    const double opacity = clampTo(item.dTransparency, 0.0, 1.0);
    const bool larger = width > page.size.width || height > page.size.height;
    // Of one that is larger than the page no more is scaled than can be seen.
    const int w = larger ? 0 : static_cast<int>(std::ceil(width)),
              h = larger ? 0 : static_cast<int>(std::ceil(height));
    context.drawImage(readNamedPicture(info, item.sText, "the picture item is left out", w, h), rect, opacity, run);
}

}  // namespace

void DrawTextAtLevel(SystemInfo& info, BitmapContext* context, const std::string& sLevel, int myRes,
                     const RunContext& run) {
    if (!context) return;
    if (sLevel == "Frame Layer") {
        for (const FontObject& label : info.oFontLabelObject) {
            if (!label.sText.empty()) DrawText(info, context, label, myRes, run);
        }
    }
    if (info.bTextPanelOpen) return;
    std::vector<FontObject> items;
    for (const FontObject& item : info.oFontObject) {
        if (item.sLevel.load() == sLevel) items.push_back(item);
    }
    const Page page = pageOf(info, fullIf(myRes == 1));
    if (items.empty() || page.size.dpi < 1) return;
    drawInto(info, *context, [&](BitmapContext& target) {
        for (const FontObject& item : items) {
            if (run.isSuperseded()) return;
            if (item.isImage) drawPictureItem(info, target, item, page, run);
            if (!stringOf(item, page).empty() && canDrawText(info)) drawTextItem(target, item, page, run);
        }
    });
}

void fitTextBox(const SystemInfo& info, FontObject& item) {
    if (item.isImage || item.iFontSize < 1 || !whyNoFonts().empty()) return;
    TextSetting setting = settingOf(item);
    setting.width = 0.0;
    const LaidOutText text = layOutText(stringOf(item, pageOf(info, Resolution::full)), setting);
    const double perUnit = item.iFontSize / LaidOutText::kSize;
    // A hair wider than the lines: broken at exactly their width, rounding may part them.
    item.rectSizeWidth = std::ceil(text.width * perUnit) + 1.0;
    item.rectSizeHeight = std::ceil(text.height * perUnit);
}

std::string textProblem(const SystemInfo& info) {
    const Page page = pageOf(info, Resolution::full);
    const bool labels = std::any_of(info.oFontLabelObject.begin(), info.oFontLabelObject.end(),
                                    [&](const FontObject& label) { return !labelString(info, label).empty(); });
    const bool items = std::any_of(info.oFontObject.begin(), info.oFontObject.end(), [&](const FontObject& item) {
        const bool onLevel = std::find(kLevels.begin(), kLevels.end(), item.sLevel.load()) != kLevels.end();
        return onLevel && !stringOf(item, page).empty();
    });
    const std::string reason = labels || (items && !info.bTextPanelOpen) ? whyNoFonts() : "";
    return reason.empty() ? "" : std::string(kTextMissing) + " (" + reason + ")";
}

void DrawOverlayImage(SystemInfo& info, BitmapContext* context, const std::string& myImage, int myRes,
                      const RunContext& run) {
    const PassGeometry size = info.geometry(fullIf(myRes == 1));
    if (!context || size.width < 1 || size.height < 1) return;
    const QImage picture = readNamedPicture(info, myImage, "the overlay is left out", size.width, size.height);
    if (picture.isNull()) return;
    drawInto(info, *context, [&](BitmapContext& target) {
        target.drawImage(picture, QRectF(0, 0, size.width, size.height), 1.0, run);
    });
}

}  // namespace tavrin
