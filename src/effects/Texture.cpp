#include "effects/Texture.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <new>

#include "core/raster/ColorMath.h"
#include "core/raster/Pixels.h"
#include "core/state/NamedPictures.h"

namespace tavrin {

namespace {

constexpr int kGrainRows = 8;
constexpr double kFarthestShift = 1e9;  // beyond any picture, and a position plus it still fits an int

// Offsets of `count` pixels over `size` texels that lie `step` bytes apart.
std::vector<std::size_t> stretch(int count, int size, std::size_t step) {
    std::vector<std::size_t> offsets(static_cast<std::size_t>(count));
    for (std::int64_t i = 0; i < count; ++i)
        offsets[static_cast<std::size_t>(i)] = static_cast<std::size_t>(i * size / count) * step;
    return offsets;
}

// What the settings make of each texture value.
void setShades(TextureParams& params, double contrast, double offsetPercent) {
    const int scale = std::max(params.width, params.height) / 10;
    for (int i = 0; i < 256; ++i) {
        const double t = params.white ? 255 - i : i;
        const double v = std::min(255.0, (t * params.brightness / 50.0 - 128.0) * contrast + 128.0);
        const double shift = offsetPercent / 100.0 * (127.0 - v) * scale / 500.0;
        params.shade[static_cast<std::size_t>(i)] = v;
        params.shift[static_cast<std::size_t>(i)] = static_cast<int>(clampTo(shift, -kFarthestShift, kFarthestShift));
        if (params.shift[static_cast<std::size_t>(i)] != 0) params.displaces = true;
    }
}

// Where the colour of a pixel comes from. Deep places scatter, so that a displaced edge frays instead of doubling.
const std::uint8_t* displaced(const TextureParams& params, const std::uint8_t* copy, int x, int y, int shift,
                              RandomSource& random) {
    if (shift > 1) {
        const int half = shift / 2;
        shift = static_cast<int>(random.below(static_cast<std::uint32_t>(half))) + half;
    }
    const int fromX = std::clamp(x + shift, 0, params.width - 1), fromY = std::clamp(y + shift, 0, params.height - 1);
    return copy + pixelOffset(params.width, fromX, fromY);
}

// The relief's light on a colour; t is the texture's value (inverted if wanted), v the shade it stands for.
Rgb reliefColor(const Rgb& color, double t, double v) {
    const double largest = std::max({color.r, color.g, color.b});
    const double m = largest == 0.0 ? 1.0 : largest;
    const double strength = m > 127.0 && m <= 200.0 ? 2.0 : 1.0;
    const double e = m >= 40.0 ? (v - 127.0) * strength * 0.25 : 0.0;
    const double g = atLeast(m + e, 0.0);
    const double q = (m + g * 255.0 / m) * 0.5;
    const double u = m < 40.0 ? m : t;
    const double s = std::sqrt(m * (u * 0.5 + 63.0));
    const Rgb lit{s * (q * color.r / 255.0) / m, s * (q * color.g / 255.0) / m, s * (q * color.b / 255.0) / m};
    // The largest channel leaves the range first, and none can be negative.
    return std::max({lit.r, lit.g, lit.b}) > 255.0 ? color : lit;
}

// Brightness and contrast of the textured colour; what is too bright keeps its hue.
Rgb tonedColor(const TextureParams& params, const Rgb& c) {
    const auto tone = [&](double channel) {
        return atLeast(params.gain * (channel * params.brightness / 50.0 - 128.0) + 128.0, 0.0);
    };
    Rgb toned{tone(c.r), tone(c.g), tone(c.b)};
    const double largest = std::max({toned.r, toned.g, toned.b});
    if (largest > 255.0) {
        const double scale = 255.0 / largest;
        toned = {toned.r * scale, toned.g * scale, toned.b * scale};
    }
    return toned;
}

}  // namespace

std::optional<LoadedTexture> loadTexture(SystemInfo& info, const ImageTexture& texture, const PassGeometry& size,
                                         const char* leftOut) {
    const auto [width, height, dpi] = size;
    if (width < 1 || height < 1) return {};
    LoadedTexture loaded;
    loaded.picture = readNamedPicture(info, texture.sTextureFileName, leftOut);
    if (loaded.picture.isNull()) return {};

    const int tw = loaded.picture.width(), th = loaded.picture.height();
    const auto rowBytes = static_cast<std::size_t>(loaded.picture.bytesPerLine());
    // A square picture counts as wide.
    const bool turned = (height > width && tw > th) || (height <= width && tw < th);
    TextureParams& params = loaded.params;
    params.width = width;
    params.height = height;
    params.texture = loaded.picture.constBits();
    params.columnOffset = turned ? stretch(width, th, rowBytes) : stretch(width, tw, kPixelBytes);
    params.rowOffset = turned ? stretch(height, tw, kPixelBytes) : stretch(height, th, rowBytes);

    const double contrast = texture.iTextureContrast / 50.0;
    params.white = texture.bWhite;
    params.gain = (contrast + 1.0) * 0.5;
    params.brightness = texture.iTextureBrightness;
    params.share = texture.iTexturePercent / 100.0;
    setShades(params, contrast, texture.iTextureOffsetPercent);
    return loaded;
}

int GetTexture(const TextureParams& params, int x, int y) {
    const std::uint8_t* texel = params.texture + params.columnOffset[static_cast<std::size_t>(x)] +
                                params.rowOffset[static_cast<std::size_t>(y)];
    return std::max({texel[0], texel[1], texel[2]});
}

void SetTextureAtPoint(const TextureParams& params, std::uint8_t* buffer, const std::uint8_t* copy, int x, int y,
                       RandomSource& random) {
    const auto value = static_cast<std::size_t>(GetTexture(params, x, y));
    const std::uint8_t* from = displaced(params, copy, x, y, params.shift[value], random);
    const Rgb source{static_cast<double>(from[0]), static_cast<double>(from[1]), static_cast<double>(from[2])};
    const double t = params.white ? 255.0 - static_cast<double>(value) : static_cast<double>(value);
    const Rgb textured = tonedColor(params, reliefColor(source, t, params.shade[value]));

    std::uint8_t* to = buffer + pixelOffset(params.width, x, y);
    const double p = params.share;
    to[0] = toByte(textured.r * p + (1.0 - p) * source.r);
    to[1] = toByte(textured.g * p + (1.0 - p) * source.g);
    to[2] = toByte(textured.b * p + (1.0 - p) * source.b);
}

void AddTexture(SystemInfo& info, std::uint8_t* buffer, int res) {
    const PassGeometry size = info.geometry(fullIf(res == 1));
    if (!buffer || size.width < 2 || size.height < 2) return;
    const std::optional<LoadedTexture> texture =
        loadTexture(info, *info.oImageTexture, size, "the texture is left out");
    if (!texture) return;

    // Where nothing is displaced each pixel reads itself alone, and the picture is its own copy.
    const TextureParams& params = texture->params;
    PixelBuffer copy;
    if (params.displaces) {
        copy = PixelBuffer(size.width, size.height);
        if (!copy.data()) throw std::bad_alloc();
        std::memcpy(copy.data(), buffer, pixelBytes(size.width, size.height));
    }
    const std::uint8_t* source = params.displaces ? copy.data() : buffer;
    const std::uint64_t seed = info.randomSeeds.next();
    runRows(info.rowsWhileWanted(), size.height - 1, kGrainRows, [&](int y) {
        RandomSource random(seed, static_cast<std::uint64_t>(y));
        for (int x = 0; x < size.width - 1; ++x)
            SetTextureAtPoint(params, buffer, source, x, y, random);
    });
}

}  // namespace tavrin
