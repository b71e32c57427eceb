#include "pipeline/KeyInputs.h"

#include <set>
#include <string_view>
#include <type_traits>

#include "core/state/SettingObjects.h"

namespace tavrin {

namespace {

template <class Value>
void append(std::string& bytes, const Value& value) {
    static_assert(std::is_trivially_copyable_v<Value>);
    bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

template <class Value>
void append(std::string& bytes, const Field<Value>& field) {
    append(bytes, field.load());
}

void append(std::string& bytes, const Field<std::string>& field) {
    const std::string text = field;
    append(bytes, text.size());
    bytes += text;
}

template <class Object, class Owner>
void appendAll(std::string& bytes, const Object& object, std::span<const Leaf<Owner>> leaves) {
    for (const Leaf<Owner>& leaf : leaves)
        std::visit([&](auto member) { append(bytes, object.*member); }, leaf.member);
}

template <class... Groups>
std::set<std::string_view> namesOf() {
    std::set<std::string_view> names;
    const auto addGroup = [&](auto leaves) {
        for (const auto& leaf : leaves)
            names.insert(leaf.key);
    };
    (addGroup(Groups::leaves()), ...);
    return names;
}

// What is drawn over the picture or changes the whole of it, and what only the window reads. What lies on the
// background raises that layer's flag.
std::span<const Leaf<Settings>> settingsOfKey() {
    static const Leaves<Settings> table = [] {
        auto later = namesOf<OverlaySettings, BlurSettings, CartoonSettings, GlobalSmoothingSettings, SkinSettings,
                             SelectionSettings>();
        later.erase("bComputeSkinColor");  // of the skin settings the one that the search for hair reads
        Leaves<Settings> leaves;
        for (const Leaf<Settings>& leaf : Settings::leaves()) {
            if (!later.contains(leaf.key)) leaves.push_back(leaf);
        }
        return leaves;
    }();
    return table;
}

}  // namespace

std::string keyInputs(const SystemInfo& info) {
    std::string bytes;
    for (const auto* record :
         {info.pForegroundBitmapInfo.get(), info.pBackgroundBitmapInfo.get(), info.pCombinedBitmapInfo.get()}) {
        append(bytes, record->pBitmapData);
        append(bytes, record->pBitmapDataLowRes);
    }
    visitObjects(info, [&](const std::string&, const auto& object, auto leaves) {
        using Object = std::remove_cvref_t<decltype(object)>;
        if constexpr (std::is_same_v<Object, SystemInfo>) {
            appendAll(bytes, object, settingsOfKey());
        } else if constexpr (std::is_same_v<Object, ImageTexture>) {
            // Those of the picture and of the frames come later.
            if (&object == info.oReflectionTexture.get()) appendAll(bytes, object, leaves);
        } else if constexpr (!std::is_same_v<Object, FontObject> && !std::is_same_v<Object, ImageFrame>) {
            appendAll(bytes, object, leaves);
        }
    });
    return bytes;
}

std::string keyFindings(const SystemInfo& info) {
    std::string bytes;
    append(bytes, info.baseRed);
    append(bytes, info.baseGreen);
    append(bytes, info.baseBlue);
    append(bytes, info.iBaseRedArray);
    append(bytes, info.iBaseGreenArray);
    append(bytes, info.iBaseBlueArray);
    append(bytes, info.iBaseArrayCount);
    append(bytes, info.bFoundHair);
    append(bytes, info.iHairColorCount);
    append(bytes, info.iHairColorBinRed);
    append(bytes, info.iHairColorBinGreen);
    append(bytes, info.iHairColorBinBlue);
    return bytes;
}

}  // namespace tavrin
