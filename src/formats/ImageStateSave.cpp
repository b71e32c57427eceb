#include "formats/ImageState.h"
#include "formats/LeafXML.h"

namespace tavrin {

namespace {

void saveSettings(const Settings& settings, std::size_t itemCount, ProcessXML& xml) {
    for (const Leaf<Settings>& leaf : Settings::leaves()) {
        if (!leaf.stored) continue;
        saveLeaf(xml, settings, leaf);
        // The count of items belongs to a list and is no setting of its own.
        if (leaf.key == std::string("iEventPrintCount"))
            xml.SaveIntValue("iFontObjectCount", static_cast<std::int64_t>(itemCount));
    }
}

/// Writes an object inside an element of its own.
template <class Object>
void saveElement(ProcessXML& xml, const std::string& name, const Object& object,
                 void (*save)(const Object&, ProcessXML&)) {
    xml.OpenNode(name);
    save(object, xml);
    xml.CloseNode(name);
}

void saveRecords(const SystemInfo& info, ProcessXML& xml) {
    saveElement<LayerSettings>(xml, "ForegroundBitmapInfo", *info.pForegroundBitmapInfo, saveBitmapInfoToXML);
    saveElement<LayerSettings>(xml, "BackgroundBitmapInfo", *info.pBackgroundBitmapInfo, saveBitmapInfoToXML);
    saveElement<LayerSettings>(xml, "CombinedBitmapInfo", *info.pCombinedBitmapInfo, saveBitmapInfoToXML);
}

void saveItems(const SystemInfo& info, ProcessXML& xml) {
    for (std::size_t i = 0; i < info.oFontLabelObject.size(); ++i)
        saveElement(xml, "FontLabel" + std::to_string(i), info.oFontLabelObject[i], saveFontObjectToXML);
    for (const FontObject& item : info.oFontObject)
        saveElement(xml, "FontObject", item, saveFontObjectToXML);
}

}  // namespace

std::string saveImageStateToXML(const SystemInfo& info, const std::string& path) {
    ProcessXML xml;
    xml.StartXMLSave(path);
    xml.OpenNode("ImageState");
    xml.OpenNode("SystemInfo");
    saveSettings(info, info.oFontObject.size(), xml);
    xml.CloseNode("SystemInfo");
    saveRecords(info, xml);
    saveItems(info, xml);
    saveElement(xml, "ImageTexture", *info.oImageTexture, saveTextureObjectToXML);
    saveFrameObjectToXML(*info.oFrame, xml, "Frame");
    saveFrameObjectToXML(*info.oFrameOverlay, xml, "FrameOverlay");
    saveElement(xml, "ReflectionTexture", *info.oReflectionTexture, saveTextureObjectToXML);
    xml.CloseNode("ImageState");
    xml.EndXMLSave();
    return xml.error;
}

}  // namespace tavrin
