#include "judgement/Shots.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <filesystem>
#include <random>
#include <stdexcept>

namespace tavrin::judgement {

namespace {

namespace fs = std::filesystem;
using Color = std::array<double, 3>;

enum class Fault { none, clothes, darkCorner, under, over, wrongScreen, cut, creases, shadow, wall, warmLight };
constexpr const char* kFaultNames[] = {"",
                                       "clothes in the screen's colour",
                                       "dark corner",
                                       "underexposed",
                                       "overexposed",
                                       "blue as green",
                                       "cut",
                                       "creases",
                                       "hard shadow",
                                       "wall beside the screen",
                                       "warm light"};

constexpr Color kGreens[] = {{52, 148, 74}, {25, 118, 57}, {88, 170, 92}, {7, 211, 23}, {60, 185, 90}};
constexpr Color kBlues[] = {{36, 62, 177}, {23, 51, 140}, {40, 90, 200}};

/// All that is chosen for a picture before it is painted.
struct Scene {
    Fault fault = Fault::none;
    bool blue = false;
    Color screen{};
    double exposure = 1.0, fallOff = 0.0, direction = 0.0, creases = 0.0, creaseWidth = 60.0, spill = 0.0,
           noise = 0.0;
    double height = 0.7, middle = 0.5, top = 0.0;  // of the subject, parts of the picture
    bool mirrored = false, leftCorner = false;
};

class Choice {
  public:
    explicit Choice(int number) : engine_(static_cast<std::uint64_t>(number) * 7919 + 17) {}

    double between(double low, double high) {
        return low + (high - low) * static_cast<double>(engine_() >> 11) / 9007199254740992.0;
    }
    bool chance(double part) { return between(0.0, 1.0) < part; }
    template <std::size_t N>
    const Color& of(const Color (&colors)[N]) {
        return colors[engine_() % N];
    }
    double noise() { return between(-1.0, 1.0) + between(-1.0, 1.0) + between(-1.0, 1.0); }

  private:
    std::mt19937_64 engine_;
};

Scene chooseScene(int number, Choice& choice) {
    Scene scene;
    if (isSpoilt(number)) scene.fault = static_cast<Fault>(1 + number / 20 % 10);
    scene.blue = choice.chance(0.3);
    if (scene.fault == Fault::wrongScreen) scene.blue = true;
    scene.screen = scene.blue ? choice.of(kBlues) : choice.of(kGreens);
    scene.exposure = choice.between(0.85, 1.15);
    scene.fallOff = choice.between(0.0, 0.35);
    scene.direction = choice.between(0.0, 6.28);
    scene.creases = choice.between(0.0, 0.03);
    scene.spill = choice.between(0.0, 0.25);
    scene.noise = choice.between(0.4, 2.5);
    scene.height = choice.between(0.6, 0.85);
    scene.middle = choice.between(0.42, 0.58);
    scene.top = 1.0 - scene.height;
    scene.mirrored = choice.chance(0.5);
    scene.leftCorner = choice.chance(0.5);
    switch (scene.fault) {
        case Fault::under:
            scene.exposure = choice.between(0.12, 0.3);
            scene.noise = 4.0;
            break;
        case Fault::over:
            scene.exposure = choice.between(1.9, 2.8);
            break;
        case Fault::cut:
            scene.middle = scene.leftCorner ? 0.12 : 0.88;
            scene.top = -0.12;
            break;
        case Fault::creases:
            scene.creases = choice.between(0.35, 0.6);
            scene.creaseWidth = choice.between(15.0, 40.0);
            break;
        case Fault::warmLight:
            for (std::size_t c = 0; c < 3; ++c)
                scene.screen[c] = 0.4 * scene.screen[c] + 0.6 * std::array{150.0, 140.0, 90.0}[c];
            break;
        default:
            break;
    }
    return scene;
}

/// The cut-out at its place, straight alpha.
QImage placed(const Cutout& cutout, const Scene& scene) {
    QImage canvas(kWidth, kHeight, QImage::Format_ARGB32);
    canvas.fill(0);
    const int height = static_cast<int>(scene.height * kHeight);
    QImage subject = cutout.picture.scaledToHeight(height, Qt::SmoothTransformation);
    if (subject.width() > kWidth * 1.15)
        subject = cutout.picture.scaledToWidth(static_cast<int>(kWidth * 1.15), Qt::SmoothTransformation);
    if (scene.mirrored) subject = subject.mirrored(true, false);
    const int left = static_cast<int>(scene.middle * kWidth) - subject.width() / 2;
    const int top = scene.fault == Fault::cut ? static_cast<int>(scene.top * kHeight) : kHeight - subject.height();
    for (int y = std::max(top, 0); y < std::min(top + subject.height(), kHeight); ++y) {
        const auto* from = reinterpret_cast<const QRgb*>(subject.constScanLine(y - top));
        auto* to = reinterpret_cast<QRgb*>(canvas.scanLine(y));
        for (int x = std::max(left, 0); x < std::min(left + subject.width(), kWidth); ++x)
            to[x] = from[x - left];
    }
    return canvas;
}

/// How much light falls on the screen at a place.
double lightAt(const Scene& scene, const QImage& shadow, int x, int y) {
    const double u = static_cast<double>(x) / kWidth - 0.5, v = static_cast<double>(y) / kHeight - 0.5;
    double light = 1.0 - scene.fallOff * (u * std::cos(scene.direction) + v * std::sin(scene.direction) + 0.5);
    const double bend = 40.0 * std::sin(y / 170.0) + 25.0 * std::sin(y / 61.0 + scene.direction);
    light *= 1.0 - scene.creases * std::pow(std::sin((x + bend) / scene.creaseWidth), 4.0);
    if (scene.fault == Fault::darkCorner) {
        const double fromCorner = std::hypot(scene.leftCorner ? u + 0.5 : 0.5 - u, 0.5 - v);
        light *= std::clamp((fromCorner - 0.25) / 0.6, 0.06, 1.0);
    }
    if (scene.fault == Fault::shadow) light *= 1.0 - 0.75 * qAlpha(shadow.pixel(x, y)) / 255.0;
    return light;
}

/// Clothes take the colour of the screen, with the folds that they had.
Color clothes(const Scene& scene, const Color& own) {
    const double fold = 0.75 + 0.5 * (own[0] + own[1] + own[2]) / 765.0;
    return {scene.screen[0] * fold, scene.screen[1] * fold, scene.screen[2] * fold};
}

QImage shifted(const QImage& picture, int right) {
    return picture.copy(-right, -8, picture.width(), picture.height());
}

QImage blurred(const QImage& picture) {
    return picture
        .scaled(picture.width() / 16, picture.height() / 16, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .scaled(picture.width(), picture.height(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QRgb exposed(const Scene& scene, Choice& choice, const Color& color) {
    std::array<int, 3> levels;
    for (std::size_t c = 0; c < 3; ++c) {
        const double level = color[c] * scene.exposure + scene.noise * choice.noise();
        levels[c] = static_cast<int>(std::clamp(level + 0.5, 0.0, 255.0));
    }
    return qRgb(levels[0], levels[1], levels[2]);
}

}  // namespace

bool isSpoilt(int number) {
    return number % 20 == 7 || number % 20 == 14;
}

std::vector<Cutout> readCutouts(const std::string& folder) {
    std::vector<Cutout> cutouts;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder)) {
        const std::string stem = entry.path().stem().string();
        const std::string name = stem.substr(0, stem.rfind('_'));
        QImage picture(QString::fromStdString(entry.path().string()));
        picture = picture.convertToFormat(QImage::Format_ARGB32);
        if (stem.ends_with("_image")) {
            const QImage alpha = QImage(QString::fromStdString(folder + "/" + name + "_alpha.png"))
                                     .convertToFormat(QImage::Format_Grayscale8);
            if (alpha.size() != picture.size())
                throw std::runtime_error(name + ": picture and alpha differ in size.");
            picture.setAlphaChannel(alpha);
        } else if (!stem.ends_with("_rgba")) {
            continue;
        }
        cutouts.push_back({name, picture});
    }
    std::sort(cutouts.begin(), cutouts.end(), [](const Cutout& a, const Cutout& b) { return a.name < b.name; });
    if (cutouts.size() < 2) throw std::runtime_error(folder + ": there are no cut-outs.");
    return cutouts;
}

Shot takeShot(const std::vector<Cutout>& cutouts, int number) {
    Choice choice(number);
    const Scene scene = chooseScene(number, choice);
    // Even numbers and odd ones share no cut-out.
    const std::size_t half = cutouts.size() / 2, which = static_cast<std::size_t>(number / 2 + number / 20) % half;
    const QImage subject = placed(cutouts[2 * which + static_cast<std::size_t>(number % 2)], scene);
    // Colours that go on under the soft edge: the picture's own ones were mixed with what stood behind.
    const QImage wide = blurred(subject.convertToFormat(QImage::Format_ARGB32_Premultiplied));
    const QImage shadow = blurred(shifted(subject, scene.leftCorner ? 60 : -60));
    Shot shot{QImage(kWidth, kHeight, QImage::Format_RGB32), QImage(kWidth, kHeight, QImage::Format_Grayscale8),
              scene.blue && scene.fault != Fault::wrongScreen, kFaultNames[static_cast<int>(scene.fault)]};
    const double clothesFrom = (1.0 - scene.height * choice.between(0.4, 0.55)) * kHeight;
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            const QRgb pixel = subject.pixel(x, y), far = wide.pixel(x, y);
            const double alpha = qAlpha(pixel) / 255.0, near = qAlpha(far) / 255.0;
            const double inside = std::clamp((alpha - 0.9) / 0.1, 0.0, 1.0);
            const Color under = {double(qRed(far)), double(qGreen(far)), double(qBlue(far))};
            Color own = {double(qRed(pixel)), double(qGreen(pixel)), double(qBlue(pixel))}, mixed;
            const double light = lightAt(scene, shadow, x, y);
            for (std::size_t c = 0; c < 3; ++c)
                own[c] = inside * own[c] + (1.0 - inside) * under[c];
            if (scene.fault == Fault::clothes && y > clothesFrom) own = clothes(scene, own);
            const bool wall = scene.fault == Fault::wall && (scene.leftCorner ? x < kWidth / 4 : x > kWidth * 3 / 4);
            for (std::size_t c = 0; c < 3; ++c) {
                const double behind = wall ? 170.0 * light : scene.screen[c] * light;
                own[c] += scene.spill * (1.0 - near) * (scene.screen[c] * 0.5 - own[c] * 0.2);
                mixed[c] = alpha * own[c] + (1.0 - alpha) * behind;
            }
            reinterpret_cast<QRgb*>(shot.picture.scanLine(y))[x] = exposed(scene, choice, mixed);
            shot.truth.scanLine(y)[x] = static_cast<uchar>(qAlpha(pixel));
        }
    }
    return shot;
}

}  // namespace tavrin::judgement
