#pragma once

#include <cstdint>

namespace tavrin {

/// Which byte of a pixel plays green and which blue: with a blue screen they change places. Red is always byte 0.
struct ChannelRoles {
    int green, blue;

    explicit constexpr ChannelRoles(bool blueLogic) : green(blueLogic ? 2 : 1), blue(blueLogic ? 1 : 2) {}
};

}  // namespace tavrin
