#include "formats/ImageState.h"
#include "formats/LeafXML.h"

namespace tavrin {

void saveBitmapInfoToXML(const LayerSettings& record, ProcessXML& xml) {
    saveLeaves(xml, record);
}

void loadBitmapInfoFromXML(LayerSettings& record, ProcessXML& xml) {
    loadLeaves(xml, record);
}

void saveFontObjectToXML(const FontObject& item, ProcessXML& xml) {
    saveLeaves(xml, item);
}

void loadFontObjectFromXML(FontObject& item, ProcessXML& xml) {
    loadLeaves(xml, item);
}

void saveTextureObjectToXML(const ImageTexture& texture, ProcessXML& xml) {
    saveLeaves(xml, texture);
}

void loadTextureObjectFromXML(ImageTexture& texture, ProcessXML& xml) {
    loadLeaves(xml, texture);
}

void saveFrameObjectToXML(const ImageFrame& frame, ProcessXML& xml, const std::string& frameName) {
    xml.OpenNode(frameName);
    saveLeaves(xml, frame);
    xml.CloseNode(frameName);
    xml.OpenNode(frameName + "TextureObject");
    saveTextureObjectToXML(frame.oTexture, xml);
    xml.CloseNode(frameName + "TextureObject");
}

void loadFrameObjectFromXML(ImageFrame& frame, ProcessXML& xml, const std::string& frameName) {
    const std::string path = ".//ImageState/" + frameName;
    if (const auto found = xml.FindNodesForPath(path); !found.empty()) {
        xml.SetActiveElement(found[0]);
        loadLeaves(xml, frame);
    }
    if (const auto found = xml.FindNodesForPath(path + "TextureObject"); !found.empty()) {
        xml.SetActiveElement(found[0]);
        loadTextureObjectFromXML(frame.oTexture, xml);
    }
}

}  // namespace tavrin
