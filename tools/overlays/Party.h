#pragma once

#include <QImage>

namespace tavrin::overlays {

/// Two strings of pennants across the top.
QImage drawPartyFrame();
/// Confetti in front of the subject, mostly beside and above it.
QImage drawPartyConfetti();
/// Coloured lights out of focus, for the background.
QImage drawPartyLights();

}  // namespace tavrin::overlays
