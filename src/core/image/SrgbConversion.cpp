#include "core/image/SrgbConversion.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <lcms2.h>
#include <vector>

#include "core/Log.h"

namespace tavrin {

namespace {

enum class Profile { none, broken, srgb, other };

bool isCmyk(const VipsImage* image) {
    return image->Type == VIPS_INTERPRETATION_CMYK && image->Bands >= 4;
}

bool isFloat(const VipsImage* image) {
    return image->BandFmt == VIPS_FORMAT_FLOAT || image->BandFmt == VIPS_FORMAT_DOUBLE;
}

bool isGrey(const VipsImage* image) {
    return image->Bands < 3;
}

VipsRef convert(VipsImage* image, VipsInterpretation space) {
    VipsImage* out = nullptr;
    return takeVips(vips_colourspace(image, &out, space, nullptr), out);
}

VipsRef castTo(VipsImage* image, VipsBandFormat format, bool shift) {
    VipsImage* out = nullptr;
    return takeVips(vips_cast(image, &out, format, "shift", shift ? TRUE : FALSE, nullptr), out);
}

VipsRef relabel(VipsImage* image, VipsInterpretation space) {
    VipsImage* out = nullptr;
    return takeVips(vips_copy(image, &out, "interpretation", space, nullptr), out);
}

// `fallback` is the profile for a picture that has none: a file or a built-in name.
VipsRef transform(VipsImage* image, const char* fallback) {
    VipsImage* out = nullptr;
    const gboolean embedded = fallback ? FALSE : TRUE;
    const int status =
        vips_icc_transform(image, &out, "srgb", "embedded", embedded, "input_profile", fallback, "depth", 8, "intent",
                           VIPS_INTENT_RELATIVE, "black_point_compensation", TRUE, nullptr);
    return takeVips(status, out);
}

// Colours spread evenly over all channels.
std::vector<std::uint8_t> sampleColours(int bands) {
    constexpr std::array<int, 5> levels = {0, 64, 128, 192, 255};
    int count = 1;
    for (int b = 0; b < bands; ++b)
        count *= static_cast<int>(levels.size());
    std::vector<std::uint8_t> colours;
    for (int i = 0; i < count; ++i) {
        for (int b = 0, rest = i; b < bands; ++b, rest /= static_cast<int>(levels.size()))
            colours.push_back(static_cast<std::uint8_t>(levels[rest % levels.size()]));
    }
    return colours;
}

// The image library puts sRGB in the place of a profile that it cannot use, and takes a grey profile for a coloured
// picture: both are told from good ones here.
bool fits(const void* profile, std::size_t size, int bands) {
    const cmsHPROFILE handle = cmsOpenProfileFromMem(profile, static_cast<cmsUInt32Number>(size));
    if (!handle) return false;
    const cmsColorSpaceSignature wanted = bands == 1 ? cmsSigGrayData : bands == 4 ? cmsSigCmykData : cmsSigRgbData;
    const bool fit = cmsGetColorSpace(handle) == wanted &&
                     cmsIsIntentSupported(handle, INTENT_RELATIVE_COLORIMETRIC, LCMS_USED_AS_INPUT);
    cmsCloseProfile(handle);
    return fit;
}

/// The test colours through the picture's profile; null when the profile cannot be used.
VipsRef sampleTransform(VipsImage* image, const std::vector<std::uint8_t>& colours, int bands) {
    VipsRef samples(vips_image_new_from_memory(
        colours.data(), colours.size(), static_cast<int>(colours.size()) / bands, 1, bands, VIPS_FORMAT_UCHAR));
    const auto space = bands == 1   ? VIPS_INTERPRETATION_B_W
                       : bands == 4 ? VIPS_INTERPRETATION_CMYK
                                    : VIPS_INTERPRETATION_sRGB;
    if (samples) samples = relabel(samples.get(), space);
    const void* profile = nullptr;
    std::size_t size = 0;
    if (!samples || vips_image_get_blob(image, VIPS_META_ICC_NAME, &profile, &size) != 0) return nullptr;
    if (!fits(profile, size, bands)) return nullptr;
    vips_image_set_blob_copy(samples.get(), VIPS_META_ICC_NAME, profile, size);
    return transform(samples.get(), nullptr);
}

// A profile is judged by what it does to some colours: many files carry sRGB under other names, and some carry a
// profile that parses but does not work.
Profile judgeProfile(VipsImage* image) {
    if (!vips_image_get_typeof(image, VIPS_META_ICC_NAME) || isFloat(image)) return Profile::none;
    const int bands = isCmyk(image) ? 4 : isGrey(image) ? 1 : 3;
    const std::vector<std::uint8_t> colours = sampleColours(bands);
    const VipsRef out = sampleTransform(image, colours, bands);
    std::size_t size = 0;
    auto* bytes = out ? static_cast<std::uint8_t*>(vips_image_write_to_memory(out.get(), &size)) : nullptr;
    if (!bytes) {
        vips_error_clear();
        logError("The picture's colour profile is broken or not made for it, so it is ignored.");
        return Profile::broken;
    }
    int difference = 0;
    for (std::size_t i = 0; i < size; ++i)
        difference = std::max(difference, std::abs(bytes[i] - colours[bands == 1 ? i / 3 : i % colours.size()]));
    g_free(bytes);
    constexpr int kRoundingOfTables = 2;
    return bands != 4 && difference <= kRoundingOfTables ? Profile::srgb : Profile::other;
}

/// Linear light with 1.0 as white, as floating point pictures hold it, grey ones included.
VipsRef floatToSrgb(VipsImage* image) {
    VipsRef colour = castTo(image, VIPS_FORMAT_FLOAT, false);
    if (colour && isGrey(image)) {
        VipsImage* grey = nullptr;
        if (vips_extract_band(colour.get(), &grey, 0, nullptr) != 0) return nullptr;
        const VipsRef held(grey);
        std::array<VipsImage*, 4> bands = {grey, grey, grey, nullptr};
        VipsImage *alpha = nullptr, *joined = nullptr;
        if (image->Bands == 2 && vips_extract_band(colour.get(), &alpha, 1, nullptr) != 0) return nullptr;
        const VipsRef heldAlpha(alpha);
        bands[3] = alpha;
        colour = takeVips(vips_bandjoin(bands.data(), &joined, alpha ? 4 : 3, nullptr), joined);
    }
    const bool device = image->Type != VIPS_INTERPRETATION_LAB && image->Type != VIPS_INTERPRETATION_XYZ;
    if (colour && device) colour = relabel(colour.get(), VIPS_INTERPRETATION_scRGB);
    return colour ? convert(colour.get(), VIPS_INTERPRETATION_sRGB) : nullptr;
}

// Integers of other widths become 8 or 16 bits without a sign, labelled so that a conversion scales them.
VipsRef plainIntegers(VipsImage* image) {
    const bool eight = image->BandFmt == VIPS_FORMAT_UCHAR || image->BandFmt == VIPS_FORMAT_CHAR;
    const bool wide = image->BandFmt == VIPS_FORMAT_UINT || image->BandFmt == VIPS_FORMAT_INT;
    VipsRef out = castTo(image, eight ? VIPS_FORMAT_UCHAR : VIPS_FORMAT_USHORT, wide);
    if (!out || eight) return out;
    if (image->Type == VIPS_INTERPRETATION_B_W) return relabel(out.get(), VIPS_INTERPRETATION_GREY16);
    if (image->Type == VIPS_INTERPRETATION_sRGB) return relabel(out.get(), VIPS_INTERPRETATION_RGB16);
    return out;
}

VipsRef integersToSrgb(VipsImage* image) {
    const Profile profile = judgeProfile(image);
    if (profile == Profile::other) return transform(image, nullptr);
    if (isCmyk(image)) return transform(image, "cmyk");
    return convert(image, isGrey(image) ? VIPS_INTERPRETATION_B_W : VIPS_INTERPRETATION_sRGB);
}

}  // namespace

VipsRef toSrgb(VipsImage* image) {
    if (vips_band_format_iscomplex(image->BandFmt)) {
        vips_error("tavrin", "complex numbers are not a picture");
        return nullptr;
    }
    VipsRef out;
    if (isFloat(image)) {
        out = floatToSrgb(image);
    } else if (const VipsRef plain = plainIntegers(image)) {
        out = integersToSrgb(plain.get());
    }
    return out ? castTo(out.get(), VIPS_FORMAT_UCHAR, false) : nullptr;
}

bool isSrgb(VipsImage* image) {
    return image->Bands == 3 && image->BandFmt == VIPS_FORMAT_UCHAR && image->Type == VIPS_INTERPRETATION_sRGB &&
           judgeProfile(image) != Profile::other;
}

}  // namespace tavrin
