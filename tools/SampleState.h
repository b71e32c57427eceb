#pragma once

#include "core/state/SystemInfo.h"
#include "session/OutputSizes.h"
#include "session/Sources.h"
#include "session/StartUp.h"
#include "session/States.h"

namespace tavrin {

/// A state with the shipped settings and the sample pictures, for programs that show the window without an account.
inline void startWithSample(SystemInfo& info) {
    startCommandLine(info);
    static_cast<void>(loadShippedState(info));
    chooseSizeByName(info, "8x10 200 Vert");
    setForeground(info, TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg");
    setBackground(info, TAVRIN_SOURCE_DIR "/data/sample/background.jpg");
}

}  // namespace tavrin
