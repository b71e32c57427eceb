#pragma once

#include <QImage>

namespace tavrin::textures {

/// Materials to fill a frame with, square, in colour; opposite edges fit together.
QImage planeWalnut();   ///< upright grain with pores
QImage brushGold();     ///< brushed sideways, with a soft sheen
QImage polishMarble();  ///< white with grey veins
QImage drapeVelvet();   ///< dark red with a nap that catches light in soft folds

}  // namespace tavrin::textures
