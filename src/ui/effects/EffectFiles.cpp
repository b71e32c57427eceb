#include "ui/effects/EffectFiles.h"

#include "core/files/Places.h"
#include "ui/effects/EffectGroups.h"

namespace tavrin {

namespace {

std::string textures() {
    return Places::current().textureFolder();
}
std::string materials() {
    return Places::current().frameFolder();
}
std::string pictures() {
    return Places::current().picturesFolder();
}

/// @param object what the settings of the texture begin with
GroupPicture texture(const char* group, const char* control, const char* load, const char* clear,
                     const char* object) {
    return {
        group,
        {control, load, clear, joined(object, "sTextureFileName"), joined(object, "bHaveTexture"), "1", "0",
         QT_TRANSLATE_NOOP("Panel", "Texture"),
         QT_TRANSLATE_NOOP("Panel", "A picture of a surface, such as canvas or paper. A file can be dropped here."),
         QT_TRANSLATE_NOOP("Panel", "Select Image"), textures}};
}

GroupPicture framePicture(const char* group, const char* control, const char* load, const char* clear,
                          const char* object) {
    return {group,
            {control, load, clear, joined(object, "sFrameImagePath"), joined(object, "iFrameMode"), "4", "",
             QT_TRANSLATE_NOOP("Panel", "Frame picture"),
             QT_TRANSLATE_NOOP("Panel",
                               "Fills the frame with a picture, such as wood or gold. A file can be dropped here."),
             QT_TRANSLATE_NOOP("Panel", "Select Image"), pictures}};
}

}  // namespace

const std::vector<GroupPicture>& effectPictures() {
    static const std::vector<GroupPicture> list = {
        texture("MyEffectsTexturePanel", "loadTextureImage", "loadTextureImage:, clickedEffectsLoadTexture",
                "clickedEffectsClearTexture:", "texture."),
        texture("MyEffectsTextureFramePanel", "loadTextureImageFrame",
                "loadTextureImageFrame:, clickedEffectsLoadTextureFrame",
                "clickedEffectsClearTextureFrame:", "frame.texture."),
        texture("MyEffectsTextureFrameOverlayPanel", "loadTextureImageFrameOverlay",
                "loadTextureImageFrameOverlay:, clickedEffectsLoadTextureFrameOverlay",
                "clickedEffectsClearTextureFrameOverlay:", "frameOverlay.texture."),
        texture("MyEffectsTextureReflectionPanel", "loadTextureImageReflection",
                "loadTextureImageReflection:, clickedEffectsLoadTextureReflection",
                "clickedEffectsClearTextureReflection:", "reflectionTexture."),
        framePicture("MyEffectsFrame1Panel", "loadFrameImage", "loadFrameImage:, clickedEffectsLoadFrameImage",
                     "clearFrameImage:", "frame."),
        framePicture("MyEffectsFrame2Panel", "loadFrameImageOverlay",
                     "loadFrameImageOverlay:, clickedEffectsLoadFrameImageOverlay",
                     "clearFrameImageOverlay:", "frameOverlay."),
        {"MyEffectsSilhouettePanel",
         {"loadSilhouetteImage", "loadSilhouetteImage:, LoadSilhouetteImage", "clickedEffectsClearSilhouetteImage:",
          "sSilhouetteFileName", "", "", "", QT_TRANSLATE_NOOP("Panel", "Picture in the shape"),
          QT_TRANSLATE_NOOP("Panel", "Fills the silhouette in place of its colour. A file can be dropped here."),
          QT_TRANSLATE_NOOP("Panel", "Select Silhouette Image"), materials}}};
    return list;
}

const std::vector<GroupColour>& effectColours() {
    static const std::vector<GroupColour> list = {
        {"MyEffectsFrame1Panel",
         {"colorWellFrame", "clickedEffectsFrameColor:, colorChangedFrameColor:", "frame.iFrameColorRed",
          "frame.iFrameColorGreen", "frame.iFrameColorBlue", QT_TRANSLATE_NOOP("Panel", "Frame colour"),
          QT_TRANSLATE_NOOP("Panel", "The colour of a frame that is filled with one."),
          QT_TRANSLATE_NOOP("Panel", "Select Font Outline Color")}},
        {"MyEffectsFrame2Panel",
         {"colorWellFrameOverlay",
          "clickedEffectsFrameColorOverlay:, colorChangedFrameColorOverlay:", "frameOverlay.iFrameColorRed",
          "frameOverlay.iFrameColorGreen", "frameOverlay.iFrameColorBlue", QT_TRANSLATE_NOOP("Panel", "Frame colour"),
          QT_TRANSLATE_NOOP("Panel", "The colour of a frame that is filled with one."),
          QT_TRANSLATE_NOOP("Panel", "Select Frame Overlay Color")}},
        {"MyEffectsSilhouettePanel",
         {"colorWellSilhouette", "clickedEffectsSilhouetteColor:, colorChangedSilhouetteColor:", "iSilhouetteRed",
          "iSilhouetteGreen", "iSilhouetteBlue", QT_TRANSLATE_NOOP("Panel", "Colour of the shape"),
          QT_TRANSLATE_NOOP("Panel", "The colour of the silhouette where no picture fills it."),
          QT_TRANSLATE_NOOP("Panel", "Select Silhouette Color")}}};
    return list;
}

const std::vector<PictureSetting>& overlaySlots() {
    static const std::vector<PictureSetting> list = {
        {"slotBackgroundOverlay", "loadBackgroundOverlay:", "clearBackgroundOverlay:", "sBackgroundOverlay",
         "bHaveBackgroundOverlay", "1", "0", QT_TRANSLATE_NOOP("Panel", "Overlay over the background"),
         QT_TRANSLATE_NOOP("Panel",
                           "A picture with clear parts between background and portrait. A file can be "
                           "dropped here."),
         QT_TRANSLATE_NOOP("Panel", "Select Background Overlay"), pictures,
         QT_TRANSLATE_NOOP("Panel", "No background overlay loaded"), true, &QLXInfo::sOverlayDir},
        {"slotForegroundOverlay", "loadForegroundOverlay:", "clearForegroundOverlay:", "sForegroundOverlay",
         "bHaveForegroundOverlay", "1", "0", QT_TRANSLATE_NOOP("Panel", "Overlay over the portrait"),
         QT_TRANSLATE_NOOP("Panel", "A picture with clear parts over the portrait. A file can be dropped here."),
         QT_TRANSLATE_NOOP("Panel", "Select Forground Overlay"), pictures,
         QT_TRANSLATE_NOOP("Panel", "No foreground overlay loaded"), true, &QLXInfo::sOverlayDir},
        {"slotFrameOverlay", "loadFrameOverlay:", "clearFrameOverlay:", "sFrameOverlay", "bHaveFrameOverlay", "1",
         "0", QT_TRANSLATE_NOOP("Panel", "Overlay over the whole"),
         QT_TRANSLATE_NOOP("Panel",
                           "A picture with clear parts over everything, such as a frame. A file can be "
                           "dropped here."),
         QT_TRANSLATE_NOOP("Panel", "Select Frame Overlay"), pictures,
         QT_TRANSLATE_NOOP("Panel", "No frame overlay loaded"), true, &QLXInfo::sOverlayDir}};
    return list;
}

}  // namespace tavrin
