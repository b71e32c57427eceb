#pragma once

#include <string>
#include <vector>

#include <QImage>

namespace tavrin::judgement {

inline constexpr int kWidth = 960, kHeight = 1200;

/// A person, or what stands for one: colours that go on under the soft edge, and the alpha (straight).
struct Cutout {
    std::string name;
    QImage picture;  ///< ARGB32
};

/// The cut-outs of a folder: `X_rgba.png`, or `X_image` with `X_alpha.png`.
std::vector<Cutout> readCutouts(const std::string& folder);

/// A picture that a camera could have taken of a cut-out before a screen.
struct Shot {
    QImage picture;        ///< RGB32, kWidth x kHeight
    QImage truth;          ///< its alpha, 8-bit grey
    bool blueSwitch;       ///< what the person at the program says of the screen
    const char* spoiltBy;  ///< "" for one that is as it should be
};

/// @param number tells the picture from all others: cut-out, screen, light, noise and fault follow from it
Shot takeShot(const std::vector<Cutout>& cutouts, int number);

/// Whether one of ten, which is spoilt in one of the ways that happen in a studio.
bool isSpoilt(int number);

}  // namespace tavrin::judgement
