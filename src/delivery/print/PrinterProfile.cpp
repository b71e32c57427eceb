#include "delivery/print/PrinterProfile.h"

#include <lcms2.h>

#include "core/raster/Rows.h"
#include "delivery/words/Says.h"

namespace tavrin {

namespace {

/// A profile of the library, closed with the object.
class Profile {
  public:
    explicit Profile(cmsHPROFILE handle) : handle_(handle) {}
    ~Profile() {
        if (handle_) cmsCloseProfile(handle_);
    }
    Profile(const Profile&) = delete;
    Profile& operator=(const Profile&) = delete;
    cmsHPROFILE get() const { return handle_; }

  private:
    cmsHPROFILE handle_;
};

std::string whyUnfit(cmsHPROFILE profile, cmsUInt32Number intent) {
    if (!profile) return said(Says::noProfile);
    if (cmsGetColorSpace(profile) == cmsSigCmykData) return said(Says::fourInks);
    if (cmsGetColorSpace(profile) != cmsSigRgbData) return said(Says::notRgb);
    if (!cmsIsIntentSupported(profile, intent, LCMS_USED_AS_OUTPUT) && !cmsIsMatrixShaper(profile))
        return said(Says::noWayToPrint);
    return "";
}

}  // namespace

std::shared_ptr<const PrinterProfile> PrinterProfile::load(const std::string& path, Intent intent,
                                                           std::string& problem) {
    constexpr cmsUInt32Number kIntents[] = {INTENT_PERCEPTUAL, INTENT_RELATIVE_COLORIMETRIC, INTENT_SATURATION,
                                            INTENT_ABSOLUTE_COLORIMETRIC};
    const cmsUInt32Number wanted = kIntents[static_cast<int>(intent)];
    const Profile printer(cmsOpenProfileFromFile(path.c_str(), "r"));
    problem = whyUnfit(printer.get(), wanted);
    if (problem.empty()) {
        const Profile srgb(cmsCreate_sRGBProfile());
        const cmsUInt32Number black = intent == Intent::absolute ? 0 : cmsFLAGS_BLACKPOINTCOMPENSATION;
        // Without its cache a transform may be used by many threads.
        cmsHTRANSFORM transform =
            cmsCreateTransform(srgb.get(), TYPE_RGBA_8, printer.get(), TYPE_RGBA_8, wanted,
                               black | cmsFLAGS_COPY_ALPHA | cmsFLAGS_NOCACHE | cmsFLAGS_HIGHRESPRECALC);
        if (transform) return std::shared_ptr<const PrinterProfile>(new PrinterProfile(transform));
        problem = said(Says::profileDamaged);
    }
    problem = said(Says::profileUnusable, {path, problem});
    return nullptr;
}

PrinterProfile::~PrinterProfile() {
    cmsDeleteTransform(transform_);
}

QImage PrinterProfile::converted(const QImage& picture) const {
    QImage result(picture.size(), QImage::Format_RGBX8888);
    if (result.isNull()) throw std::bad_alloc();
    constexpr int kGrain = 16;
    std::uint8_t* rows = result.bits();
    const auto pitch = static_cast<std::ptrdiff_t>(result.bytesPerLine());
    runRows({}, picture.height(), kGrain, [&](int y) {
        cmsDoTransform(transform_, picture.constScanLine(y), rows + y * pitch,
                       static_cast<cmsUInt32Number>(picture.width()));
    });
    return result;
}

std::array<double, 3> PrinterProfile::converted(const std::array<double, 3>& colour) const {
    constexpr double kFull = 255.0;
    std::array<std::uint8_t, 4> pixel{0, 0, 0, 255};
    for (std::size_t i = 0; i < colour.size(); ++i)
        pixel[i] = static_cast<std::uint8_t>(colour[i] * kFull + 0.5);
    std::array<std::uint8_t, 4> out{};
    cmsDoTransform(transform_, pixel.data(), out.data(), 1);
    return {out[0] / kFull, out[1] / kFull, out[2] / kFull};
}

}  // namespace tavrin
