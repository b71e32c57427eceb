#include <algorithm>
#include <array>
#include <string_view>

#include "formats/ImageState.h"
#include "formats/LeafXML.h"

namespace tavrin {

namespace {

/// What a load reads into, so that a bad file changes nothing. It begins with what the state holds: parts that a file
/// may lack then stay as they are.
struct LoadedState {
    explicit LoadedState(const SystemInfo& info)
        : settings(info),
          texture(*info.oImageTexture),
          reflectionTexture(*info.oReflectionTexture),
          frame(*info.oFrame),
          frameOverlay(*info.oFrameOverlay) {}

    Settings settings;
    LayerSettings foreground, background, combined;
    std::array<FontObject, 3> labels;
    std::vector<FontObject> items;
    ImageTexture texture, reflectionTexture;
    ImageFrame frame, frameOverlay;
};

/// Leaves that follow the output size: read in mode 1 only.
bool isGeometry(std::string_view key) {
    constexpr std::array<std::string_view, 9> kKeys = {
        "dOutputImageWidthInInches", "sImageSizeName",          "iSelecteImageSize",
        "iOutputImageDPI",           "iOutputPixelWidth",       "iOutputPixelHeight",
        "iOutputImageLowResDPI",     "iOutputPixelLowResWidth", "iOutputPixelLowResHeight"};
    return std::find(kKeys.begin(), kKeys.end(), key) != kKeys.end();
}

bool isRead(const Leaf<Settings>& leaf, int mode) {
    // The height in inches is written and never read: it follows when the size is changed.
    if (!leaf.stored || leaf.key == std::string_view("dOutputImageHeightInInches")) return false;
    return mode == kLoadAll || !isGeometry(leaf.key);
}

/// The element that a setting is read from. The two output modes are read crossed and written straight, so that a
/// save and a load swap them; files in the field rely on it.
const char* elementFor(const char* key) {
    if (key == std::string_view("iForegroundOutputMode")) return "iBackgroundOutputMode";
    if (key == std::string_view("iBackgroundOutputMode")) return "iForegroundOutputMode";
    return key;
}

/// Settings that older files hold as a number: true when not zero.
bool isNumberedSwitch(std::string_view key) {
    return key == "bAdvancedHairDetectionON" || key == "bAVPShadowRemoval" || key == "bComputeSkinColor";
}

class StateReader {
  public:
    StateReader(ProcessXML& xml, const SystemInfo& info, int mode)
        : xml_(xml), info_(info), mode_(mode), state_(info) {}

    /// Reads what the mode wants; xml.error says whether it went well.
    void read() {
        if (mode_ == kLoadAll || mode_ == kLoadBackgroundOnly)
            load("BackgroundBitmapInfo", state_.background, loadBitmapInfoFromXML);
        if (mode_ == kLoadBackgroundOnly) return;
        readSettings();
        load("ForegroundBitmapInfo", state_.foreground, loadBitmapInfoFromXML);
        load("CombinedBitmapInfo", state_.combined, loadBitmapInfoFromXML);
        for (std::size_t i = 0; i < state_.labels.size(); ++i)
            load("FontLabel" + std::to_string(i), state_.labels[i], loadFontObjectFromXML);
        readItems();
        loadTexture("ImageTexture[*]", state_.texture);  // an empty one counts as missing
        loadFrameObjectFromXML(state_.frame, xml_, "Frame");
        loadFrameObjectFromXML(state_.frameOverlay, xml_, "FrameOverlay");
        loadTexture("ReflectionTexture", state_.reflectionTexture);
    }

    const StoredSize& storedSize() const { return stored_; }

    void commit(SystemInfo& info) const {
        if (mode_ == kLoadAll || mode_ == kLoadBackgroundOnly)
            copyLeaves<LayerSettings>(state_.background, *info.pBackgroundBitmapInfo);
        if (mode_ == kLoadBackgroundOnly) return;
        for (const Leaf<Settings>& leaf : Settings::leaves()) {
            if (isRead(leaf, mode_)) copyLeaf<Settings>(state_.settings, info, leaf);
        }
        copyLeaves<LayerSettings>(state_.foreground, *info.pForegroundBitmapInfo);
        copyLeaves<LayerSettings>(state_.combined, *info.pCombinedBitmapInfo);
        for (std::size_t i = 0; i < state_.labels.size(); ++i)
            copyLeaves(state_.labels[i], info.oFontLabelObject[i]);
        info.oFontObject.assign(state_.items);
        copyLeaves(state_.texture, *info.oImageTexture);
        copyFrame(state_.frame, *info.oFrame);
        copyFrame(state_.frameOverlay, *info.oFrameOverlay);
        copyLeaves(state_.reflectionTexture, *info.oReflectionTexture);
    }

  private:
    /// Makes the first element of that name the active one; it has to be there.
    bool enter(const std::string& name) {
        const auto found = xml_.FindNodesForPath(".//ImageState/" + name);
        xml_.SetActiveElement(found.empty() ? XMLElement() : found[0]);
        if (found.empty()) xml_.fail("not a state file: the element ImageState/" + name + " is missing");
        return !found.empty();
    }

    template <class Object>
    void load(const std::string& name, Object& object, void (*read)(Object&, ProcessXML&)) {
        if (enter(name)) read(object, xml_);
    }

    void readSettings() {
        if (!enter("SystemInfo")) return;
        for (const Leaf<Settings>& leaf : Settings::leaves()) {
            if (!isRead(leaf, mode_)) continue;
            if (leaf.key == std::string_view("iSelecteImageSize") && takeIndexOfSizeName()) continue;
            if (isNumberedSwitch(leaf.key)) {
                const bool on = xml_.IntValue(leaf.key) != 0;
                state_.settings.*std::get<Field<bool> Settings::*>(leaf.member) = on;
            } else {
                loadLeaf(xml_, elementFor(leaf.key), state_.settings, leaf);
            }
        }
        count_ = xml_.IntValue("iFontObjectCount");
        if (mode_ == kLoadAll) readStoredSize();
    }

    /// Nonsense in what the settings do not take over refuses no file.
    void readStoredSize() {
        const std::string error = xml_.error;
        stored_.name = xml_.StringValue("sImageSizeName");
        stored_.index = xml_.Int32Value("iSelecteImageSize");
        stored_.width = xml_.DoubleValue("dOutputImageWidthInInches");
        stored_.height = xml_.DoubleValue("dOutputImageHeightInInches");
        stored_.dpi = xml_.Int32Value("iOutputImageDPI");
        xml_.error = error;
    }

    /// The selected size is the last of the list that has the file's size name. Without one the index of the file
    /// stands, whatever it points at now.
    bool takeIndexOfSizeName() {
        const std::string name = state_.settings.sImageSizeName;
        bool found = false;
        for (std::size_t i = 0; i < info_.oImageSize.size(); ++i) {
            if (info_.oImageSize[i].sName.load() != name) continue;
            state_.settings.iSelecteImageSize = static_cast<std::int32_t>(i);
            found = true;
        }
        return found;
    }

    void readItems() {
        const auto found = xml_.FindNodesForPath(".//ImageState/FontObject");
        if (found.size() > TextState::kMaxFontObjects) {
            xml_.fail("ImageState/FontObject stands " + std::to_string(found.size()) +
                      " times, and a state has room for " + std::to_string(TextState::kMaxFontObjects));
        } else if (count_ != static_cast<std::int64_t>(found.size())) {
            xml_.fail("ImageState/SystemInfo/iFontObjectCount says " + std::to_string(count_) + ", but there are " +
                      std::to_string(found.size()) + " elements ImageState/FontObject");
        }
        if (!xml_.error.empty()) return;
        state_.items.resize(found.size());
        for (std::size_t i = 0; i < found.size(); ++i) {
            xml_.SetActiveElement(found[i]);
            loadFontObjectFromXML(state_.items[i], xml_);
        }
    }

    /// Files from before there were textures have none, and then the textures of the moment stay.
    void loadTexture(const std::string& path, ImageTexture& texture) {
        const auto found = xml_.FindNodesForPath(".//ImageState/" + path);
        if (found.empty()) return;
        xml_.SetActiveElement(found[0]);
        loadTextureObjectFromXML(texture, xml_);
    }

    static void copyFrame(const ImageFrame& from, ImageFrame& to) {
        copyLeaves(from, to);
        copyLeaves(from.oTexture, to.oTexture);
    }

    ProcessXML& xml_;
    const SystemInfo& info_;
    const int mode_;
    LoadedState state_;
    std::int64_t count_ = 0;
    StoredSize stored_;
};

std::string loadFrom(ProcessXML& xml, SystemInfo& info, int iLoadMode, StoredSize* stored) {
    StateReader reader(xml, info, iLoadMode);
    reader.read();
    if (!xml.error.empty()) return xml.error;
    reader.commit(info);
    if (stored) *stored = reader.storedSize();
    return "";
}

}  // namespace

std::string LoadImageStateFromXML(SystemInfo& info, const std::string& path, int iLoadMode, StoredSize* stored) {
    ProcessXML xml;
    return xml.OpenXMLFile(path) ? loadFrom(xml, info, iLoadMode, stored) : xml.error;
}

std::string LoadImageStateFromBytes(SystemInfo& info, const std::string& name, const std::string& bytes,
                                    StoredSize* stored) {
    ProcessXML xml;
    return xml.OpenXMLBytes(name, bytes) ? loadFrom(xml, info, kLoadAll, stored) : xml.error;
}

}  // namespace tavrin
