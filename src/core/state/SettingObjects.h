#pragma once

#include <cstddef>
#include <string>

#include "core/state/SystemInfo.h"

namespace tavrin {

/// Calls visit(prefix, object, leaves) for everything that has settings, in the order of the state file. The prefix
/// is what the names of the object's settings begin with (SettingNames.h).
template <class Info, class Visit>
void visitObjects(Info& info, Visit&& visit) {
    visit("", info, Settings::leaves());
    visit("foreground.", *info.pForegroundBitmapInfo, LayerSettings::leaves());
    visit("background.", *info.pBackgroundBitmapInfo, LayerSettings::leaves());
    visit("combined.", *info.pCombinedBitmapInfo, LayerSettings::leaves());
    for (std::size_t i = 0; i < info.oFontLabelObject.size(); ++i)
        visit("label" + std::to_string(i) + ".", info.oFontLabelObject[i], FontObject::leaves());
    for (std::size_t i = 0; i < info.oFontObject.size(); ++i)
        visit("text" + std::to_string(i) + ".", info.oFontObject[i], FontObject::leaves());
    visit("texture.", *info.oImageTexture, ImageTexture::leaves());
    visit("frame.", *info.oFrame, ImageFrame::leaves());
    visit("frame.texture.", info.oFrame->oTexture, ImageTexture::leaves());
    visit("frameOverlay.", *info.oFrameOverlay, ImageFrame::leaves());
    visit("frameOverlay.texture.", info.oFrameOverlay->oTexture, ImageTexture::leaves());
    visit("reflectionTexture.", *info.oReflectionTexture, ImageTexture::leaves());
}

}  // namespace tavrin
