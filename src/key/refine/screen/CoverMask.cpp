#include "key/refine/screen/CoverMask.h"

#include <vector>

#include "key/refine/screen/ScreenRatio.h"

namespace tavrin::refine {

void maskByCover(const RunContext& context, const Shot& shot, const Plate& plate, const Area& area,
                 const CoverRule& rule, Mask& mask) {
    constexpr int kHalo = 4;  // columns beyond an area that its windows look at
    const Strip strip = area.strip(shot, kHalo);
    ScreenRatio ratio(strip, plate);
    std::vector<float> light(static_cast<std::size_t>(strip.width)), least(light);
    std::vector<std::uint8_t> flags(light.size() + 8);
    for (int y = area.top; y < area.bottom && !context.isSuperseded(); ++y) {
        ratio.cover(y, light.data(), least.data());
        rule.compare(least.data(), rule.limit, strip.width, flags.data());
        mask.pack(y, area.left, area.width(), flags.data() + (area.left - strip.left));
    }
}

}  // namespace tavrin::refine
