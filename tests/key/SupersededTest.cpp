#include <gtest/gtest.h>

#include "key/guard/GreenGuard.h"
#include "key/hair/HairDetect.h"
#include "support/Portrait.h"
#include "support/Superseded.h"

namespace tavrin {
namespace {

using namespace test;

TEST(Superseded, StagesReturnSoonAfterANewRequest) {
    const Canvas canvas = person(1200, 900);
    auto info = makeState(canvas);
    info->iMacroHairColor = 6;
    expectStopsEarly(*info, [&] { ComputeHairColor(*info); });
    info->iGreenProtectMode = 2;
    GreenGuard guard;
    expectStopsEarly(*info, [&] { guard.build(*info, {canvas.bytes.data(), 1200, 900}, Resolution::full); });
}

}  // namespace
}  // namespace tavrin
