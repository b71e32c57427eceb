#include "core/text/TextLayers.h"

#include <cmath>

#include <QDateTime>

#include "core/raster/ColorMath.h"
#include "core/state/NamedPictures.h"
#include "core/text/ClearLayer.h"
#include "core/text/TextMacros.h"
#include "core/text/TextPaint.h"

namespace tavrin {

namespace {

// The pass that items are drawn for.
struct Page {
    PassGeometry size;
    double pictureScale = 1.0;  // pixels of this resolution in a pixel of the full picture
    std::string sourcePath;
    QDateTime now;
};

Page pageOf(const SystemInfo& info, int res) {
    Page page;
    page.size = info.geometry(res);
    if (res != 1) {
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

// The flipped coordinates of the items, y downward from the top of the picture.
QTransform fromTopLeft(const QPainter& painter, const Page& page) {
    return QTransform(1, 0, 0, -1, 0, page.size.height) * painter.transform();
}

void drawTextItem(BitmapContext& context, const FontObject& item, const Page& page, const RunContext& run) {
    const double dpi = page.size.dpi;
    const double sx = dpi / 72.0 * item.dGlobalScaleX, sy = dpi / 72.0 * item.dGlobalScaleY;
    const std::string string = expandMacros(item.sText, page.sourcePath, page.now);
    if (string.empty() || item.iFontSize < 1 || sx == 0.0 || sy == 0.0 || !haveFonts()) return;
    const LaidOutText text = layOutText(string, settingOf(item));
    const TextStyle style = styleOf(item);

    const auto painter = context.painter();
    const double toPoints = item.iFontSize / LaidOutText::kSize;
    // The box starts at the text's own left edge, so its origin in the dialog cancels out.
    const QTransform place = QTransform::fromScale(toPoints * sx, toPoints * sy) *
                             QTransform::fromTranslate(item.xPos * dpi, item.yPos * dpi) *
                             fromTopLeft(*painter, page);
    if (hasShadow(item)) paintTextShadow(*painter, text, place, style, shadowOf(item, sx, sy), run);
    paintText(*painter, text, place, style, run);
}

void drawPictureItem(SystemInfo& info, BitmapContext& context, const FontObject& item, const Page& page,
                     const RunContext& run) {
    const double dpi = page.size.dpi;
    const double width = item.imageSizeWidth * item.dGlobalScaleX * page.pictureScale;
    const double height = item.imageSizeHeight * item.dGlobalScaleY * page.pictureScale;
    const QRectF rect(item.xPos * dpi, page.size.height - item.yPos * dpi - height, width, height);
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
    const Page page = pageOf(info, myRes);
    if (items.empty() || page.size.dpi < 1) return;
    drawInto(info, *context, [&](BitmapContext& target) {
        for (const FontObject& item : items) {
            if (run.isSuperseded()) return;
            item.isImage ? drawPictureItem(info, target, item, page, run) : drawTextItem(target, item, page, run);
        }
    });
}

void DrawOverlayImage(SystemInfo& info, BitmapContext* context, const std::string& myImage, int myRes,
                      const RunContext& run) {
    const PassGeometry size = info.geometry(myRes);
    if (!context || size.width < 1 || size.height < 1) return;
    const QImage picture = readNamedPicture(info, myImage, "the overlay is left out", size.width, size.height);
    if (picture.isNull()) return;
    drawInto(info, *context, [&](BitmapContext& target) {
        target.drawImage(picture, QRectF(0, 0, size.width, size.height), 1.0, run);
    });
}

}  // namespace tavrin
