#pragma once

#include <array>
#include <cstdint>

#include "key/KeyOverrides.h"
#include "key/pixel/CombineParams.h"

namespace tavrin {

/// Which test of the key decided on a pixel.
enum class KeyReason {
    noKey,        ///< the portrait is shown as it is
    screenView,   ///< the colour that the key takes as screen is shown instead
    guardView,    ///< the green guard's map is shown instead
    margin,       ///< clipped away
    darkNeutral,  ///< a dark grey of the subject
    screenLine,   ///< the screen's colour, brighter or darker
    screenNear,   ///< the screen's colour itself
    otherColor,   ///< plainly not the screen's
    mixed,        ///< a mix of subject and screen
    refined,      ///< the second look at the matte, which goes by the neighbourhood
};

/// A measure of the key and the limit that it was compared with, on the scale of 0 to 255.
struct KeyMeasure {
    double value = 0.0, limit = 0.0;
};

/// How one pixel of the finished full picture came about. Bytes are those of the buffers, colours are in real
/// channels, 0 to 255.
struct PixelStory {
    int x = 0, y = 0;  ///< from the left and from the top
    std::array<std::uint8_t, 4> source{}, result{};
    std::array<std::uint8_t, 3> background{};
    std::uint8_t alpha = 0;  ///< the key's alpha, as it stands beside the background

    KeyReason reason = KeyReason::mixed;
    Rgb seen{};        ///< the portrait's colour as the key saw it, white balanced
    Rgb screen{};      ///< the screen's colour here, as the key compared with it
    KeyMeasure grey;   ///< how far from grey; below its limit a dark pixel is the subject's
    KeyMeasure dark;   ///< largest channel; below its limit the pixel is dark
    KeyMeasure line;   ///< distance from the line of black through the screen's colour; below its limit it is screen
    KeyMeasure light;  ///< lightness that screen on this line has at least
    KeyMeasure nearest;          ///< distance from the screen's colour
    double keyAlpha = 0.0;       ///< what key and hair correction decided, 0 to 1; not told of the refined key
    bool hairCorrected = false;  ///< explained as a mix of a hair colour and the screen
    std::uint8_t guardByte = 0;  ///< of the green guard's bitmap; 0 without a guard
    bool guarded = false;        ///< the guard made it opaque
    Rgb own{};                   ///< the subject's own colour
    bool ownWorkedBack = false;  ///< from the result, since the refined key keeps none
    int spillTaken = 0;          ///< how much the screen's channel leads the others less in `own` than in the source
};

/// Tells about pixels of the full picture that stands. For the loop's thread, between passes; it reads the buffers
/// and belongs to this picture alone.
class PixelProbe {
  public:
    /// Builds the guard's bitmap again, when there is a guard. Throws std::bad_alloc.
    explicit PixelProbe(const SystemInfo& info);

    /// Whether no newer picture was asked for since.
    bool isFor(const SystemInfo& info) const { return picture_ == info.iNewThreadCount; }
    /// Whether (x, y) lies in the picture, and there are buffers to tell from.
    bool covers(int x, int y) const;
    PixelStory tell(int x, int y) const;

  private:
    void decide(KeyedRun& run, PixelStory& story) const;
    void measure(KeyedRun& run, PixelStory& story) const;
    KeyReason reasonOf(const PixelStory& story, const Rgb& seen) const;
    void workBack(PixelStory& story) const;
    bool plainKeyStands() const;
    Rgb inRoles(const std::uint8_t* bytes) const;
    Rgb inChannels(const Rgb& roles) const;

    std::int32_t picture_;
    CombineParams params_;
    KeyOverrides overrides_;
    bool refined_ = false, screenView_ = false;
};

}  // namespace tavrin
