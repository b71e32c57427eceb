#include "effects/Reflection.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <vector>

#include "core/raster/Pixels.h"
#include "effects/Texture.h"
#include "key/pixel/ChannelRoles.h"
#include "key/spill/SpillKey.h"

namespace tavrin {

namespace {

constexpr double kScreenDistance = 4.0;  // nearer than this to the screen colour, a pixel is not mirrored
constexpr double kThin = 0.1;            // with a texture, pixels up to this amount stay clear
constexpr int kOpaque = 30;              // alpha from above which the mirrored subject is laid over the background
constexpr int kRippled = 99;             // and from above which the ripple moves a column
constexpr std::int64_t kBareRows = 10;   // below the line, before the texture begins
constexpr std::int64_t kFarAway = std::int64_t{1} << 24;
constexpr int kGrainRows = 8;

struct ReflectionParams {
    int width = 0, height = 0;
    bool preview = false;
    std::int64_t belowBase = 0;  // rows below the base line
    std::int64_t base = 0;       // row of the base line; may lie outside the picture
    double scale = 1.0, skew = 0.0, share = 0.0;
    std::int64_t rippleHeight = 0;
    double clipLeft = 0.0, clipRight = 0.0, clipTop = 0.0;  // least and most source column, least source row
    Rgb screen{0.0, 0.0, 0.0};
    ChannelRoles roles{false};
    bool textured = false;
};

ReflectionParams makeParams(SystemInfo& info, Resolution resolution) {
    for (Field<std::int32_t>* clip :
         {&info.iSliderClipTop, &info.iSliderClipBottom, &info.iSliderClipLeft, &info.iSliderClipRight}) {
        if (*clip < 0) *clip = 0;
    }
    const PassGeometry size = info.geometry(resolution);
    const auto percent = [](std::int64_t slider, std::int64_t length) { return slider * length / 100; };
    ReflectionParams params;
    params.width = size.width;
    params.height = size.height;
    params.preview = resolution == Resolution::preview;
    params.belowBase = percent(info.iSliderReflectionSkewBase, size.height);
    params.base = size.height - params.belowBase;
    params.scale = info.iSliderReflectionScale / 100.0;
    params.skew = (info.iSliderReflectionSkew - 50.0) / 100.0;
    params.share = info.iSliderReflectionTransparency / 100.0;
    params.rippleHeight = std::int64_t{info.iSliderReflectionRippleHeight} * size.height * 6 / 35000;
    params.clipLeft = static_cast<double>(percent(info.iSliderClipLeft, size.width));
    params.clipRight = static_cast<double>(size.width - percent(info.iSliderClipRight, size.width));
    params.clipTop = static_cast<double>(percent(info.iSliderClipTop, size.height));
    params.screen = {info.baseRed, info.baseGreen, info.baseBlue};
    params.roles = ChannelRoles(info.bUseBlueLogic);
    return params;
}

// The row of the foreground that an output row mirrors, -1 for none, and how far its columns are shifted.
struct SourceRow {
    int row = -1;
    double shift = 0.0;
};

SourceRow sourceRow(const ReflectionParams& params, int y) {
    if (params.scale == 0.0) return {};
    const auto below = static_cast<double>(params.belowBase);
    const double mirrored = below + 1.0 - (params.height - y + 1.0 - below) / params.scale;
    const double row = params.height - mirrored;
    const bool counts = row + 0.5 >= 0.0 && row + 0.5 < params.height && row >= params.clipTop &&
                        row <= static_cast<double>(params.base);
    return counts ? SourceRow{static_cast<int>(row + 0.5), (mirrored + 1.0 - below) * params.skew} : SourceRow{};
}

// The subject's pixels, mirrored: solid ones with alpha 255, all others with alpha 0.
class Mirror {
  public:
    /// @param refined the background's pixels, whose alpha is the refined key's; null: the key at one pixel decides
    Mirror(const ReflectionParams& params, const SpillKey& key, const std::uint8_t* refined)
        : params_(params), key_(key), refined_(refined), pixels_(PixelBuffer::cleared(params.width, params.height)) {
        if (pixels_.data()) first_ = findFirst();
    }
    const std::uint8_t* data() const { return pixels_.data(); }

    void fillRow(int y) {
        const SourceRow source = sourceRow(params_, y);
        std::uint8_t* out = pixels_.data() + pixelOffset(params_.width, 0, y);
        for (int x = 0; source.row >= 0 && x < params_.width; ++x, out += kPixelBytes) {
            Rgb color;
            int column;
            if (!subjectAt(source, x, column, color)) continue;
            const bool first = std::int64_t{y} * params_.width + x == first_;
            SpilledPixel pixel =
                key_.spillAt(column, source.row, color, first ? SpillCall::kFirst : SpillCall::kLater);
            if (refined_) pixel.amount = refined_[pixelOffset(params_.width, column, source.row) + 3] / 255.0;
            if (params_.textured && !(pixel.amount > kThin)) continue;
            write(out, pixel);
        }
    }

  private:
    // The foreground's pixel at an output column, in roles; false where there is none, or only screen.
    bool subjectAt(const SourceRow& source, int x, int& column, Rgb& color) const {
        const double from = x - source.shift;
        if (!(from + 0.5 >= 0.0 && from + 0.5 < params_.width)) return false;
        if (!(from >= params_.clipLeft && from <= params_.clipRight)) return false;
        column = static_cast<int>(from + 0.5);
        const std::uint8_t* p = key_.pFOrg + pixelOffset(params_.width, column, source.row);
        color = {static_cast<double>(p[0]), static_cast<double>(p[params_.roles.green]),
                 static_cast<double>(p[params_.roles.blue])};
        return distance(color, params_.screen) >= kScreenDistance;
    }

    // The key's first call, counted in scan order of the output.
    std::int64_t findFirst() const {
        for (int y = 0; y < params_.height; ++y) {
            const SourceRow source = sourceRow(params_, y);
            Rgb color;
            int column;
            for (int x = 0; source.row >= 0 && x < params_.width; ++x) {
                if (subjectAt(source, x, column, color)) return std::int64_t{y} * params_.width + x;
            }
        }
        return -1;
    }

    // The alpha byte is the amount, truncated and negated: only a whole 1 becomes opaque.
    void write(std::uint8_t* out, const SpilledPixel& pixel) const {
        const ChannelRoles roles = key_.showsSilhouette() ? ChannelRoles(false) : params_.roles;
        out[0] = toByte(pixel.color.r);
        out[roles.green] = toByte(pixel.color.g);
        out[roles.blue] = toByte(pixel.color.b);
        out[3] = static_cast<std::uint8_t>(-static_cast<int>(pixel.amount));
    }

    const ReflectionParams& params_;
    const SpillKey& key_;
    const std::uint8_t* const refined_;
    PixelBuffer pixels_;
    std::int64_t first_ = -1;
};

void setColor(std::uint8_t* pixel, std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    pixel[0] = red;
    pixel[1] = green;
    pixel[2] = blue;
}

// The mirrored subject over the background.
struct Composite {
    const ReflectionParams& params;
    const SpillKey& key;
    const std::uint8_t* mirror;
    const TextureParams* texture;  // null: none
    std::uint64_t seed;
    std::uint8_t *background, *combined;

    void row(int y) const {
        const bool below = y > params.base, line = params.preview && y == params.base;
        if (!below && !line && sourceRow(params, y).row < 0) return;
        RandomSource random(seed, static_cast<std::uint64_t>(y));
        for (int x = 0; x < params.width; ++x) {
            const std::size_t at = pixelOffset(params.width, x, y);
            std::uint8_t* out = combined + at;
            const bool mirrored = mirror[at + 3] > kOpaque;
            const QLXPixel behind = below || mirrored ? key.adjustedBackground(x, y) : QLXPixel();
            if (below) setColor(out, behind.red, behind.green, behind.blue);
            if (line) setColor(out, 255, 0, 0);
            if (mirrored) lay(mirror + at, behind, x, y, random);
            if (line) setColor(background + at, 255, 0, 0);
        }
    }

  private:
    // The texture is worked out in the output's own pixel, as other pixels may want to read the bare mirror.
    void lay(const std::uint8_t* bare, const QLXPixel& behind, int x, int y, RandomSource& random) const {
        std::uint8_t* out = combined + pixelOffset(params.width, x, y);
        const std::uint8_t was[3] = {out[0], out[1], out[2]};
        const int sum = bare[0] + bare[1] + bare[2];
        setColor(out, bare[0], bare[1], bare[2]);
        if (texture && y > params.base + kBareRows) SetTextureAtPoint(*texture, combined, mirror, x, y, random);
        if (!(out[0] + out[1] + out[2] > 5 || sum < 20)) return setColor(out, was[0], was[1], was[2]);
        const double m = bare[3] * params.share / 255.0;
        const auto mix = [&](std::uint8_t c, std::uint8_t back) { return toByte(c * m + back * (1.0 - m)); };
        setColor(out, mix(out[0], behind.red), mix(out[1], behind.green), mix(out[2], behind.blue));
    }
};

// How far each column is moved up or down at the base line: three waves on each other, each truncated.
std::vector<std::int64_t> rippleTable(const ReflectionParams& params) {
    std::vector<std::int64_t> table(static_cast<std::size_t>(params.width));
    const double width = params.width, height = static_cast<double>(params.rippleHeight);
    const auto whole = [](double value) {
        return static_cast<std::int64_t>(
            clampTo(value, -static_cast<double>(kFarAway), static_cast<double>(kFarAway)));
    };
    for (std::size_t x = 0; x < table.size(); ++x) {
        const double q = 1000.0 * static_cast<double>(x);
        const std::int64_t wide = whole(std::sin(q / (25.0 * width)) * height / 2.0);
        const std::int64_t both = whole(std::sin(q / (10.0 * width)) * height + static_cast<double>(wide));
        table[x] = whole(std::sin(q / (5.0 * width)) * height / 2.0 + static_cast<double>(both));
    }
    return table;
}

// Blends `from` into `to`, of which `keep` stays.
void blendInto(std::uint8_t* to, const std::uint8_t* from, double keep) {
    for (int c = 0; c < 3; ++c)
        to[c] = toByte(to[c] * keep + from[c] * (1.0 - keep));
}

// Softens the line in waves: a column's pixels beside the line are laid over those on its other side.
void addRipple(const ReflectionParams& params, const std::uint8_t* mirror, std::uint8_t* combined) {
    const std::int64_t base = params.base, height = params.height;
    if (base + 1 < 0 || base + 1 >= height) return;
    const std::vector<std::int64_t> table = rippleTable(params);
    for (int x = 0; x < params.width; ++x) {
        const auto at = [&](std::int64_t y) { return pixelOffset(params.width, x, static_cast<int>(y)); };
        if (mirror[at(base + 1) + 3] <= kRippled) continue;
        const std::int64_t r = table[static_cast<std::size_t>(x)];
        if (r < 0) {
            for (std::int64_t d = std::min({-r, base, height - 1 - base}); d >= 1; --d)
                blendInto(combined + at(base + d), combined + at(base - d),
                          static_cast<double>(d) / static_cast<double>(1 - r));
        } else {
            for (std::int64_t i = 0; i <= std::min({r, base, height - 2 - base}); ++i)
                blendInto(combined + at(base - i), combined + at(base + 1 + i),
                          static_cast<double>(i) / static_cast<double>(r + 1));
        }
    }
}

}  // namespace

void AddReflection(SystemInfo& info, int hiRes, const BitmapInfo& /*layer*/, const std::uint8_t* foreground,
                   std::uint8_t* background, std::uint8_t* combined) {
    ReflectionParams params = makeParams(info, fullIf(hiRes != 0));
    if (!foreground || !background || !combined || params.width < 1 || params.height < 1) return;
    std::optional<LoadedTexture> texture;
    if (info.oReflectionTexture->bHaveTexture)
        texture = loadTexture(info, *info.oReflectionTexture, {params.width, params.height},
                              "the reflection has no texture");
    params.textured = texture.has_value();

    const SpillKey key(info, {foreground, background, params.width, params.height});
    if (!key.isReady()) return;
    Mirror mirror(params, key, refinesKey(info) ? background : nullptr);
    if (!mirror.data()) throw std::bad_alloc();
    if (!runRows(info.rowsWhileCurrent(), params.height, kGrainRows, [&](int y) { mirror.fillRow(y); })) return;

    const Composite composite{params,
                              key,
                              mirror.data(),
                              texture ? &texture->params : nullptr,
                              texture ? info.randomSeeds.next() : 0,
                              background,
                              combined};
    const RunContext context = params.preview ? RunContext() : info.rowsWhileCurrent();
    if (runRows(context, params.height, kGrainRows, [&](int y) { composite.row(y); }))
        addRipple(params, mirror.data(), combined);
}

}  // namespace tavrin
