#include "pipeline/Layers.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <filesystem>
#include <utility>

#include "core/Log.h"
#include "core/raster/Rows.h"
#include "key/screen/BaseGreen.h"
#include "pipeline/LayerFit.h"
#include "pipeline/SourceRim.h"
#include "pipeline/Stages.h"

namespace tavrin {

namespace {

constexpr double kDegree = 0.017453292519943295;
constexpr double kMaxPixels = 400e6;

// Truncated to a whole number, as a screen coordinate; any double is accepted.
std::int64_t truncated(double value) {
    return static_cast<std::int64_t>(std::clamp(value, -1e15, 1e15));
}

double finiteOr(double value, double other) {
    return std::isfinite(value) ? value : other;
}

struct Size {
    std::int64_t width, height;
};

/// Bounding box of a picture turned by `angle`. Each product is truncated before it loses its sign.
Size boundingBox(double angle, int width, int height) {
    const double c = std::cos(angle), s = std::sin(angle);
    return {std::abs(truncated(c * width)) + std::abs(truncated(s * height)),
            std::abs(truncated(c * height)) + std::abs(truncated(s * width))};
}

/// Moves the coordinate system so that a picture of w * h, drawn at the origin, comes out turned by -angle with
/// its bounding box at the origin.
void turnContext(BitmapContext& context, double angle, double w, double h) {
    context.rotate(-angle);
    const double s = std::sin(-angle), c = std::cos(-angle);
    const double cornerX[] = {0.0, w * c, -h * s, w * c - h * s};
    const double cornerY[] = {0.0, w * s, h * c, w * s + h * c};
    const double mx = -*std::min_element(std::begin(cornerX), std::end(cornerX));
    const double my = -*std::min_element(std::begin(cornerY), std::end(cornerY));
    const double ca = std::cos(angle), sa = std::sin(angle);
    context.translate(mx * ca - my * sa, my * ca + mx * sa);
}

/// The source as the layer wants it. Null when memory is refused or the turned picture would be too large.
QImage turnedSource(const BitmapInfo& record, const QImage& pixels) {
    const double degrees = finiteOr(record.fRotate + record.fTilt, 0.0);
    const bool flip = record.bFlipHorz;
    if (degrees == 0.0 && !flip && !pixels.hasAlphaChannel()) return pixels;

    const double angle = degrees * kDegree;
    const Size box = boundingBox(angle, pixels.width(), pixels.height());
    if (box.width < 1 || box.height < 1 ||
        static_cast<double>(box.width) * static_cast<double>(box.height) > kMaxPixels) {
        return QImage();
    }
    QImage turned =
        newPicture(static_cast<int>(box.width), static_cast<int>(box.height), QImage::Format_RGBA8888_Premultiplied);
    if (turned.isNull()) return turned;
    turned.fill(QColor(10, 130, 60));
    BitmapContext context(turned.bits(), turned.width(), turned.height());
    if (flip) {
        context.scale(-1.0, 1.0);
        context.translate(-turned.width(), 0.0);
    }
    if (degrees != 0.0) {
        turnContext(context, angle, pixels.width(), pixels.height());
        context.drawImage(pixels, QRectF(0, 0, pixels.width(), pixels.height()));
    } else {
        context.drawImage(pixels, QRectF(0, 0, turned.width(), turned.height()));
    }
    return std::move(turned).convertToFormat(QImage::Format_RGBX8888);  // nothing of it is transparent
}

/// What a layer leaves empty has the colour of the screen, so that on the foreground it is keyed away. The base
/// colour is held in roles: on a blue screen its green level is that of the third channel.
LayerFill screenFill(const SystemInfo& info) {
    const bool blue = info.bUseBlueLogic;
    return {info.baseRed, blue ? info.baseBlue : info.baseGreen, blue ? info.baseGreen : info.baseBlue};
}

bool drawFill(BitmapContext& context, const LayerFill& fill, const RunContext& run) {
    return context.fillRect(QRectF(0, 0, context.width(), context.height()), fill.red / 255.0, fill.green / 255.0,
                            fill.blue / 255.0, 1.0, run);
}

bool isDrawable(const BitmapInfo& record) {
    return !record.orgImage.isNull() && record.iOrgWidth > 0 && record.iOrgHeight > 0;
}

/// Where an edge of the portrait lies inside the picture, lines of the file that break off from the screen would show
/// as a thin line beside the subject. They give way to the fill.
/// Only for a place that the program found: what a person or a state has placed is drawn as it is.
void coverRim(const SystemInfo& info, const QRectF& rect, BitmapContext& context, const LayerFill& fill) {
    const QRectF output(0, 0, context.width(), context.height());
    if (rect.contains(output)) return;
    const BitmapInfo& record = *info.pForegroundBitmapInfo;
    const SourceRim rim = findRim(record.orgImage, info.bUseBlueLogic);
    const double sx = rect.width() / record.iOrgWidth, sy = rect.height() / record.iOrgHeight;
    const auto cover = [&](const QRectF& strip) {
        const QRectF whole = QRectF(strip.toAlignedRect()) & output;  // what is covered in part goes, too
        context.fillRect(whole, fill.red / 255.0, fill.green / 255.0, fill.blue / 255.0, 1.0);
    };
    const auto deep = [](int lines, double scale) { return (lines + 1) * scale; };
    // Coordinates grow upward, so the source's upper edge is the rectangle's "bottom".
    if (rim.left > 0 && rect.left() > 0.0) cover({rect.left(), rect.top(), deep(rim.left, sx), rect.height()});
    if (rim.right > 0 && rect.right() < output.right())
        cover({rect.right() - deep(rim.right, sx), rect.top(), deep(rim.right, sx), rect.height()});
    if (rim.bottom > 0 && rect.top() > 0.0) cover({rect.left(), rect.top(), rect.width(), deep(rim.bottom, sy)});
    if (rim.top > 0 && rect.bottom() < output.bottom())
        cover({rect.left(), rect.bottom() - deep(rim.top, sy), rect.width(), deep(rim.top, sy)});
}

bool drawSource(const SystemInfo& info, const BitmapInfo& record, const LayerPlace& place, Resolution resolution,
                const LayerFill& fill, const RunContext& run) {
    BitmapContext& context = *record.context(resolution);
    const QRectF rect = placedRect(place, fitSource(info, record, resolution));
    if (!context.drawImage(record.orgImage, rect, 1.0, run)) return false;
    const bool isFound = place == info.placedLast && place != LayerPlace();
    if (isFound && record.iBitmapType == BitmapInfo::kForeground) coverRim(info, rect, context, fill);
    return true;
}

ReadPicture readSourceOf(const SystemInfo& info, const BitmapInfo& record) {
    const std::string path = record.sSourceImageFullPath;
    if (info.readSource) return info.readSource(path);
    ReadPicture picture = readPicture(path);
    if (!picture.damage.empty()) logWarning(path + ": " + picture.damage + ".");
    return picture;
}

}  // namespace

ReadSources readSources(SystemInfo& info, bool foreground, bool background) {
    ReadSources sources;
    if (!foreground && !background) return sources;
    // Whatever happens from here on: the old source is not that of the record's path.
    if (foreground) info.pForegroundBitmapInfo->sSourceProblem = "the foreground's file was not read";
    if (background) info.pBackgroundBitmapInfo->sSourceProblem = "the background's file was not read";
    runRows({}, 2, 1, [&](int layer) {
        if (layer == 0 && foreground) sources.foreground = readSourceOf(info, *info.pForegroundBitmapInfo);
        if (layer == 1 && background) sources.background = readSourceOf(info, *info.pBackgroundBitmapInfo);
    });
    return sources;
}

bool ChangeOrgBitmap(SystemInfo& info, BitmapInfo& record) {
    return ChangeOrgBitmap(info, record, readSourceOf(info, record));
}

bool ChangeOrgBitmap(SystemInfo& info, BitmapInfo& record, ReadPicture picture) {
    logTrace("**** Loading Org Image");
    QImage source;
    std::string problem = std::move(picture.error);
    if (problem.empty()) {
        source = turnedSource(record, picture.pixels);
        if (source.isNull()) {
            logError("Memory not allocated!");
            problem = "there is not enough memory for it";
        }
    }
    if (!problem.empty()) {
        const std::string name = std::filesystem::path(record.sSourceImageFullPath.load()).filename().string();
        record.sSourceProblem = (name.empty() ? "a source without a name" : name) + ": " + problem;
        info.alert("Cound not load file: " + name + ", check your file permissions", problem);
        return false;
    }
    picture.pixels = QImage();
    record.sSourceProblem = "";
    record.sSourceDamage = std::move(picture.damage);
    record.setSource(std::move(source));
    record.sourceExif = std::move(picture.exif);
    if (record.iBitmapType == BitmapInfo::kForeground) ComputeBaseColor(info, 2);
    return true;
}

LayerFill drawPreviewAt(SystemInfo& info, BitmapInfo& record, const LayerPlace& place) {
    const LayerFill fill = screenFill(info);
    if (!record.oBitmapRep || !record.oBitmapRepLowRes) return fill;
    drawFill(*record.oBitmapRepLowRes, fill, {});
    if (isDrawable(record)) drawSource(info, record, place, Resolution::preview, fill, {});
    return fill;
}

LayerFill drawPreviewLayer(SystemInfo& info, BitmapInfo& record) {
    const LayerFill fill = drawPreviewAt(info, record, placeOf(record));
    if (!record.oBitmapRep || !record.oBitmapRepLowRes) return fill;
    if (isDrawable(record)) record.fOrgScale = fitSource(info, record, Resolution::full).scale;
    if (info.pInterface) info.pInterface->updateScaleUI();
    return fill;
}

bool drawFullLayer(const SystemInfo& info, BitmapInfo& record, const LayerFill& fill, const RunContext& run) {
    if (!record.oBitmapRep) return true;
    BitmapContext& full = *record.oBitmapRep;
    if (!drawFill(full, fill, run)) return false;
    return !isDrawable(record) || drawSource(info, record, placeOf(record), Resolution::full, fill, run);
}

void emptyFullLayer(BitmapInfo& record, const LayerFill& fill) {
    if (record.oBitmapRep) drawFill(*record.oBitmapRep, fill, {});
}

void ChangeBitmapScale(SystemInfo& info, BitmapInfo& record) {
    const LayerFill fill = drawPreviewLayer(info, record);
    const bool dragged = info.pInterface && info.pInterface->mouseDown();
    if (dragged) {
        emptyFullLayer(record, fill);
    } else {
        drawFullLayer(info, record, fill);
    }
}

}  // namespace tavrin
