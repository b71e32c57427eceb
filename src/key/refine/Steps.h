#pragma once

#include "key/refine/RefineKey.h"
#include "key/refine/subject/FitAlpha.h"

namespace tavrin::refine {

/// The steps of a refinement in their order, with what they found. Run again for another key of the same picture, a
/// step whose own input is as it was is not taken again, so that the result is, byte for byte, that of steps that
/// know nothing.
class Steps {
  public:
    /// @param keeps they are run more than once; otherwise what no later step needs is given back on the way
    explicit Steps(bool keeps) : keeps_(keeps) {}

    /// As `refineKey`. After anything but `done` they know nothing.
    /// @param shot unless they know nothing, the picture of the last run: its size, its pixels, its screen
    Refined run(const RunContext& context, const Shot& shot, const RefineTaste& taste, std::uint8_t* result);
    /// The last run once more, with the very same shot and another taste.
    Refined runWith(const RunContext& context, const Shot& shot, const RefineTaste& taste, std::uint8_t* result);
    bool knowAnything() const { return known_; }

  private:
    // Each finds what it is named after. `still`: all that it goes by is as it was, then all that the next one goes
    // by. False: there is nothing to go by, or the run was superseded.
    bool findPlate(const RunContext& context, const Shot& shot, bool& still);
    bool findSubject(const RunContext& context, const Shot& shot, bool& still);
    bool findAlpha(const RunContext& context, const Shot& shot, bool& still);
    void clearHaze(const RunContext& context, const Shot& shot);
    // What alpha and colours go by.
    const Plate& behind() const { return isHazy_ ? clean_ : plate_; }

    const bool keeps_;
    bool known_ = false, isHazy_ = false;
    Plate seeds_, plate_, clean_;  // by the key's screen alone, mended, and without haze where there is any
    PlateLook look_;               // of the first one
    Core core_;
    Mask frame_;  // beside a source that does not fill the picture
    Mask marks_, clear_, open_, sure_;
    Cells nearer_;
    Separation first_, separation_;  // by the core's sure pixels, and by those of the first one
    AlphaPlane alpha_;
    float missingDetail_ = 0.0f, nearNoise_ = 0.0f;
};

}  // namespace tavrin::refine
