#pragma once

#include <cstdint>

#include <QImage>

namespace tavrin::quality {

/// Root mean square difference of a composite from the ideal one, in levels of 0 to 255.
struct CompositeErrors {
    double rmse = 0.0;   ///< over the picture
    double edges = 0.0;  ///< over the pixels near an edge (see `nearEdges`)
};

/// RGBA buffers of the truth's size.
struct Composite {
    const std::uint8_t* source;      ///< the picture in front of the screen
    const std::uint8_t* background;  ///< what was laid behind it
    const std::uint8_t* result;      ///< what the key made of both
};

/// Compares a result with source + (1 - alpha) * (background - screen), which exchanges the light of the screen for
/// that of the background in the share that the true alpha gives. The screen's colour at a place is the mean of the
/// pure screen pixels around it. No true subject colour is needed; what green light the subject reflects stays in the
/// ideal picture, so a key that takes it away scores worse for it. Compare settings with each other only.
CompositeErrors measureComposite(const Composite& composite, const QImage& truth);

}  // namespace tavrin::quality
