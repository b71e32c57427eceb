#include "support/Pictures.h"

#include <algorithm>
#include <cmath>
#include <random>

#include "session/OutputSizes.h"

namespace tavrin::test {

QImage discOnScreen(int width, int height, QColor screen, QColor disc) {
    QImage image(width, height, QImage::Format_RGB888);
    const double radius = std::min(width, height) * 0.3;
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double distance = std::hypot(x + 0.5 - width / 2.0, y + 0.5 - height / 2.0);
            const double a = std::clamp(radius - distance + 0.5, 0.0, 1.0);
            const auto mix = [a](int d, int s) { return static_cast<int>(std::lround(a * d + (1 - a) * s)); };
            image.setPixelColor(x, y,
                                QColor(mix(disc.red(), screen.red()), mix(disc.green(), screen.green()),
                                       mix(disc.blue(), screen.blue())));
        }
    }
    return image;
}

QImage noisePicture(int width, int height, unsigned seed) {
    QImage image(width, height, QImage::Format_RGB888);
    std::mt19937 random(seed);
    for (int y = 0; y < height; ++y) {
        std::uint8_t* row = image.scanLine(y);
        for (int i = 0; i < width * 3; ++i)
            row[i] = static_cast<std::uint8_t>(random() >> 24);
    }
    return image;
}

std::string savePng(const QImage& image, const std::string& path) {
    return image.save(QString::fromStdString(path), "PNG") ? path : std::string();
}

void addSize(SystemInfo& info, const std::string& name, double widthInches, double heightInches, int dpi) {
    ImageSize& size = info.oImageSize.emplace_back();
    size.sName = name;
    size.dWidth = widthInches;
    size.dHeight = heightInches;
    size.dotsPerInch = dpi;
    chooseSizeByName(info, name);
}

std::unique_ptr<SystemInfo> stateForOutput(int width, int height, int dpi) {
    auto info = std::make_unique<SystemInfo>();
    addSize(*info, "test", static_cast<double>(width) / dpi, static_cast<double>(height) / dpi, dpi);
    useChosenSize(*info);
    return info;
}

}  // namespace tavrin::test
