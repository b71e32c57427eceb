#include "pipeline/MatteMap.h"

#include <algorithm>
#include <cmath>

#include "pipeline/LayerFit.h"

namespace tavrin {

namespace {

constexpr int kLongerSide = 200;  // samples

/// Samples that lie wholly within the source as it was drawn.
QRect sourceSamples(const SystemInfo& info, Resolution resolution, const MatteMap& map) {
    const QRect all(0, 0, map.width, map.height);
    const BitmapInfo& portrait = *info.pForegroundBitmapInfo;
    if (portrait.orgImage.isNull()) return all;
    const LayerFit fit = fitSource(info, portrait, resolution);
    const QRectF rect = placedRect(placeOf(portrait), fit);
    const auto first = [&map](double from) { return static_cast<int>(std::ceil(from / map.step)); };
    const auto end = [&map](double to) { return static_cast<int>(std::floor(to / map.step)); };
    const int left = first(rect.left()), top = first(fit.outputHeight - rect.bottom());
    return QRect(left, top, end(rect.right()) - left, end(fit.outputHeight - rect.top()) - top) & all;
}

std::vector<std::uint8_t> previewAlpha(const SystemInfo& info, const MatteMap& map, ConstPixelView full) {
    const ConstPixelView preview = info.pixels(*info.pBackgroundBitmapInfo, Resolution::preview);
    if (preview.isEmpty() || !info.whyNotFinished(Resolution::preview).empty()) return {};
    std::vector<std::uint8_t> alpha;
    alpha.reserve(map.count());
    for (int y = 0; y < map.height; ++y) {
        const int row = std::min((y * map.step + map.step / 2) * preview.height / full.height, preview.height - 1);
        for (int x = 0; x < map.width; ++x) {
            const int column = (x * map.step + map.step / 2) * preview.width / full.width;
            alpha.push_back(preview.at(std::min(column, preview.width - 1), row)[3]);
        }
    }
    return alpha;
}

}  // namespace

std::optional<MatteMap> mapMatte(const SystemInfo& info, Resolution resolution) {
    const ConstPixelView portrait = info.pixels(*info.pForegroundBitmapInfo, resolution);
    const ConstPixelView under = info.pixels(*info.pBackgroundBitmapInfo, resolution);
    if (portrait.isEmpty() || under.isEmpty()) return std::nullopt;
    MatteMap map;
    map.step = std::max(1, std::max(portrait.width, portrait.height) / kLongerSide);
    map.width = portrait.width / map.step;
    map.height = portrait.height / map.step;
    map.blueByte = info.bUseBlueLogic ? 1 : 2;
    if (map.width < 1 || map.height < 1) return std::nullopt;
    map.pixels.reserve(map.count() * kPixelBytes);
    for (int y = 0; y < map.height; ++y) {
        for (int x = 0; x < map.width; ++x) {
            const int column = x * map.step + map.step / 2, row = y * map.step + map.step / 2;
            const std::uint8_t* pixel = portrait.at(column, row);
            map.pixels.insert(map.pixels.end(), pixel, pixel + 3);
            map.pixels.push_back(under.at(column, row)[3]);
        }
    }
    if (resolution == Resolution::full) map.preview = previewAlpha(info, map, portrait);
    map.source = sourceSamples(info, resolution, map);
    return map;
}

Marks::Marks(int width, int height)
    : width_(width),
      height_(height),
      sums_(static_cast<std::size_t>(width + 1) * static_cast<std::size_t>(height + 1)) {}

void Marks::sum() {
    for (int y = 1; y <= height_; ++y) {
        for (int x = 1; x <= width_; ++x)
            sums_[at(x, y)] += sums_[at(x - 1, y)] + sums_[at(x, y - 1)] - sums_[at(x - 1, y - 1)];
    }
}

int Marks::around(int x, int y, int reach) const {
    const int left = std::max(x - reach, 0), right = std::min(x + reach + 1, width_);
    const int top = std::max(y - reach, 0), bottom = std::min(y + reach + 1, height_);
    return sums_[at(right, bottom)] - sums_[at(left, bottom)] - sums_[at(right, top)] + sums_[at(left, top)];
}

QPoint Marks::densest(int side) const {
    QPoint best(width_ / 2, height_ / 2);
    int most = 0;
    for (int y = 0; y < height_; y += 2) {
        for (int x = 0; x < width_; x += 2) {
            const int here = around(x, y, side / 2);
            if (here <= most) continue;
            most = here;
            best = QPoint(x, y);
        }
    }
    return best;
}

}  // namespace tavrin
