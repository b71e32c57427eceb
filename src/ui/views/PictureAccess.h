#pragma once

namespace tavrin {

/// Gives every view of the picture a role and a value for screen readers. Once is enough; more does nothing.
void makePictureAccessible();

}  // namespace tavrin
