#pragma once

#include <cstdint>

#include <QImage>

namespace tavrin::quality {

/// Root mean square difference of a composite from the ideal one, in levels of 0 to 255.
struct CompositeErrors {
    double rmse = 0.0;   ///< over the picture
    double edges = 0.0;  ///< over the pixels near an edge (see `nearEdges`)
    double color = 0.0;  ///< mean difference of colour near an edge (see `colorDifference`)

    /// The same as `edges` in decibels below 255 levels; 99 at most.
    double psnrEdges() const;
};

/// RGBA buffers of the truth's size.
struct Composite {
    const std::uint8_t* source;             ///< the picture in front of the screen
    const std::uint8_t* background;         ///< what was laid behind it
    const std::uint8_t* result;             ///< what the key made of both
    const std::uint8_t* subject = nullptr;  ///< the subject's own colours, if they are known
};

/// Compares a result with alpha * subject + (1 - alpha) * background where the subject's own colours are known.
///
/// Elsewhere it compares with source + (1 - alpha) * (background - screen), which exchanges the light of the screen
/// for that of the background in the share that the true alpha gives. The screen's colour at a place is the mean of
/// the pure screen pixels around it. No true subject colour is needed; what green light the subject reflects stays in
/// the ideal picture, so a key that takes it away scores worse for it. Such figures compare settings with each other
/// only.
CompositeErrors measureComposite(const Composite& composite, const QImage& truth);

}  // namespace tavrin::quality
