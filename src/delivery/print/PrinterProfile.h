#pragma once

#include <array>
#include <memory>
#include <string>

#include <QImage>

namespace tavrin {

/// What becomes of colours that the printer does not have.
enum class Intent { perceptual, relative, saturation, absolute };

/// Brings sRGB pictures to the colours of a printer, by its ICC profile. Safe on any thread.
class PrinterProfile {
  public:
    /// @param path an ICC file for a printer that takes red, green and blue
    /// @param problem set to one plain line where there is no use of it
    /// @return null then
    static std::shared_ptr<const PrinterProfile> load(const std::string& path, Intent intent, std::string& problem);
    ~PrinterProfile();
    PrinterProfile(const PrinterProfile&) = delete;
    PrinterProfile& operator=(const PrinterProfile&) = delete;

    /// @param picture 4 bytes a pixel, opaque
    QImage converted(const QImage& picture) const;
    /// A colour, channels 0 to 1.
    std::array<double, 3> converted(const std::array<double, 3>& colour) const;

  private:
    explicit PrinterProfile(void* transform) : transform_(transform) {}

    void* transform_;
};

}  // namespace tavrin
