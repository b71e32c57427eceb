// Makes the sample pictures that come with the program: a painted portrait as a camera would see it before a green
// screen, its true alpha, and a background. The same pictures every time, on every machine.

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

#include <QDir>
#include <QImageWriter>

#include "sample/Landscape.h"
#include "sample/Plane.h"
#include "sample/Portrait.h"
#include "sample/Random.h"

namespace tavrin::sample {

namespace {

using Channels = std::array<Plane, 3>;

// A green cloth, lit from the upper left: a soft hot spot, fall-off to the corners, slow folds.
Channels paintScreen(int width, int height) {
    Channels screen{Plane(width, height), Plane(width, height), Plane(width, height)};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = static_cast<double>(x) / width, v = static_cast<double>(y) / height;
            const double corner = (u - 0.42) * (u - 0.42) + 0.8 * (v - 0.40) * (v - 0.40);
            const double spot = std::exp(-((u - 0.30) * (u - 0.30) + (v - 0.24) * (v - 0.24)) / 0.045);
            const double folds =
                0.016 * std::sin(11.0 * u + 1.5 * std::sin(4.0 * v)) + 0.009 * std::sin(29.0 * u + 3.0 * v);
            const double light = 1.0 - 0.52 * corner + 0.13 * spot + folds;
            screen[0].at(x, y) = 0.245 * light + 0.050 * spot;
            screen[1].at(x, y) = 0.690 * light;
            screen[2].at(x, y) = 0.290 * light + 0.035 * spot;
        }
    }
    return screen;
}

// The screen's light on the subject: strongest on the rim, where the surface turns away from the camera.
void addSpill(Layers& subject) {
    Plane rim = subject.alpha, room = subject.alpha;
    blur(rim, 11.0);
    blur(room, 60.0);
    for (std::size_t i = 0; i < rim.values.size(); ++i) {
        const double alpha = subject.alpha.values[i];
        const double amount = 0.14 * (1.0 - rim.values[i]) + 0.06 * (1.0 - room.values[i]);
        subject.green.values[i] = std::min(alpha, subject.green.values[i] + amount * alpha);
        subject.blue.values[i] = std::min(alpha, subject.blue.values[i] + 0.22 * amount * alpha);
    }
}

// Photon noise grows with the light; the noise of the electronics is always there. Neighbours share some of it.
void addNoise(Channels& picture, std::uint64_t seed) {
    Random random(seed);
    for (Plane& plane : picture) {
        Plane noise(plane.width, plane.height);
        for (double& value : noise.values)
            value = random.normal();
        blur(noise, 0.55);
        for (std::size_t i = 0; i < plane.values.size(); ++i)
            plane.values[i] += noise.values[i] * std::sqrt(0.00004 + 0.00013 * std::max(0.0, plane.values[i]));
    }
}

uchar toByte(double value) {
    return static_cast<uchar>(std::clamp(255.0 * value + 0.5, 0.0, 255.0));
}

struct Photograph {
    QImage picture, alpha;
};

// subject * alpha + screen * (1 - alpha) on the encoded values, so that the alpha is the true one for a key, which
// works on those. The lens comes after, so that it softens both alike.
Photograph takePhotograph() {
    Layers subject = reduce(paintPortrait(2), 2);
    addSpill(subject);
    Channels picture = paintScreen(kWidth, kHeight);
    const std::array<const Plane*, 3> color{&subject.red, &subject.green, &subject.blue};
    for (std::size_t c = 0; c < 3; ++c) {
        for (std::size_t i = 0; i < picture[c].values.size(); ++i)
            picture[c].values[i] = color[c]->values[i] + picture[c].values[i] * (1.0 - subject.alpha.values[i]);
    }
    constexpr double kLens = 0.6;
    for (Plane& plane : picture)
        blur(plane, kLens);
    blur(subject.alpha, kLens);
    addNoise(picture, 1);

    Photograph out{QImage(kWidth, kHeight, QImage::Format_RGB888),
                   QImage(kWidth, kHeight, QImage::Format_Grayscale8)};
    for (int y = 0; y < kHeight; ++y) {
        for (int x = 0; x < kWidth; ++x) {
            for (std::size_t c = 0; c < 3; ++c)
                out.picture.scanLine(y)[3 * x + static_cast<int>(c)] = toByte(picture[c].at(x, y));
            out.alpha.scanLine(y)[x] = toByte(subject.alpha.at(x, y));
        }
    }
    return out;
}

bool write(const QImage& image, const QString& path, int quality) {
    QImageWriter writer(path);
    writer.setQuality(quality);
    if (writer.write(image)) return true;
    std::fprintf(stderr, "make_sample: %s: %s\n", qPrintable(path), qPrintable(writer.errorString()));
    return false;
}

}  // namespace

}  // namespace tavrin::sample

int main(int argc, char** argv) {
    using namespace tavrin::sample;
    if (argc != 2) {
        std::fprintf(stderr,
                     "usage: make_sample FOLDER\nwrites portrait.jpg, portrait_alpha.png and background.jpg\n");
        return 2;
    }
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    const Photograph photograph = takePhotograph();
    const bool written = write(photograph.picture, folder.filePath("portrait.jpg"), 88) &&
                         write(photograph.alpha, folder.filePath("portrait_alpha.png"), 0) &&
                         write(paintLandscape(kWidth, kHeight), folder.filePath("background.jpg"), 88);
    return written ? 0 : 1;
}
