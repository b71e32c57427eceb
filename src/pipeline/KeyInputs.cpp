#include "pipeline/KeyInputs.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <sstream>
#include <type_traits>

#include "core/state/SettingObjects.h"
#include "pipeline/Stages.h"

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

using Names = std::set<std::string, std::less<>>;

void addNames(Names& names, std::span<const Stage> stages) {
    for (const Stage& stage : stages) {
        std::istringstream words{std::string(stage.reads)};
        names.insert(std::istream_iterator<std::string>(words), {});
    }
}

/// What stages of `finish` read and none of `key`.
const Names& settingsOfFinish() {
    static const Names names = [] {
        Names ofKey, ofFinish;
        for (const StageOrder& order : {previewStages(), fullStages()}) {
            addNames(ofKey, order.key);
            addNames(ofFinish, order.finish);
        }
        for (const std::string& name : ofKey)
            ofFinish.erase(name);
        return ofFinish;
    }();
    return names;
}

std::span<const Leaf<Settings>> settingsOfKey() {
    static const Leaves<Settings> table = [] {
        Leaves<Settings> leaves;
        std::ranges::copy_if(Settings::leaves(), std::back_inserter(leaves),
                             [](const Leaf<Settings>& leaf) { return !settingsOfFinish().contains(leaf.key); });
        return leaves;
    }();
    return table;
}

/// The objects of a list share one name: "text3." is "text.".
std::string withoutNumber(std::string prefix) {
    std::erase_if(prefix, [](char c) { return c >= '0' && c <= '9'; });
    return prefix;
}

}  // namespace

std::string keyInputs(const SystemInfo& info) {
    std::string bytes;
    for (const auto* record :
         {info.pForegroundBitmapInfo.get(), info.pBackgroundBitmapInfo.get(), info.pCombinedBitmapInfo.get()}) {
        append(bytes, record->pBitmapData);
        append(bytes, record->pBitmapDataLowRes);
    }
    visitObjects(info, [&](const std::string& prefix, const auto& object, auto leaves) {
        if constexpr (std::is_same_v<std::remove_cvref_t<decltype(object)>, SystemInfo>) {
            appendAll(bytes, object, settingsOfKey());
        } else if (!settingsOfFinish().contains(withoutNumber(prefix))) {
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
