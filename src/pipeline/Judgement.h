#pragma once

#include <optional>
#include <string>
#include <vector>

#include <QRect>

#include "pipeline/MatteMeasures.h"

namespace tavrin {

/// A reason to look at a picture.
struct Doubt {
    std::string kind;   ///< one word for programs; where a warning says the same, that one's
    std::string text;   ///< plain words without a full stop: "the screen is very dark in the lower left corner"
    double loss = 0.0;  ///< of certainty, 0 to 1
};

/// How sure the program is that a matte is good.
struct Judgement {
    int confidence = 100;       ///< 0 to 100
    std::vector<Doubt> doubts;  ///< the heaviest first; none for most pictures
    QRect place;                ///< of the heaviest doubt, in pixels of the picture; all of it where it is everywhere
    MatteMeasures measures;
};

/// @param size of the picture in pixels
/// @param step pixels from one sample of the measures to the next
Judgement judge(const MatteMeasures& measures, QSize size, int step);

}  // namespace tavrin
