#include "core/state/SettingNames.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <limits>
#include <string_view>

#include "core/NearestName.h"
#include "core/state/SettingObjects.h"

namespace tavrin {

namespace {

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    for (char& c : lower)
        c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return lower;
}

template <class Number>
bool readNumber(std::string_view text, Number& number) {
    if (text.starts_with('+')) text.remove_prefix(1);
    const auto [end, problem] = std::from_chars(text.data(), text.data() + text.size(), number);
    return problem == std::errc() && end == text.data() + text.size();
}

/// What a field of this type takes, in words.
template <class T>
std::string takes() {
    if constexpr (std::is_same_v<T, bool>) return "0 or 1 (true, false, yes, no, on, off)";
    if constexpr (std::is_same_v<T, double>) return "a number";
    return "a whole number from " + std::to_string(std::numeric_limits<T>::min()) + " to " +
           std::to_string(std::numeric_limits<T>::max());
}

bool parse(const std::string& text, bool& value) {
    const std::string word = lowerCase(text);
    value = word == "1" || word == "true" || word == "yes" || word == "on";
    return value || word == "0" || word == "false" || word == "no" || word == "off";
}
bool parse(const std::string& text, double& value) {
    return readNumber(text, value) && std::isfinite(value);
}
bool parse(const std::string& text, std::int32_t& value) {
    return readNumber(text, value);
}
bool parse(const std::string& text, std::int64_t& value) {
    return readNumber(text, value);
}

template <class T>
std::string assign(Field<T>& field, const std::string& name, const std::string& text) {
    if constexpr (std::is_same_v<T, std::string>) {
        field = text;
    } else {
        T value{};
        if (!parse(text, value)) return name + " takes " + takes<T>() + ", not \"" + text + "\"";
        field = value;
    }
    return "";
}

std::string show(const std::string& value) {
    return value;
}
std::string show(bool value) {
    return value ? "1" : "0";
}
template <class Number>
std::string show(Number value) {
    char digits[400];  // a double of full size has 309 digits before its point
    const auto end = std::to_chars(digits, digits + sizeof digits, value).ptr;
    return std::string(digits, end);
}

/// The setting most like a wrong one: by its whole name, or by its last word when the object's name was left out.
std::string nearestSetting(const SystemInfo& info, const std::string& wrong) {
    std::string nearest;
    std::size_t least = std::numeric_limits<std::size_t>::max();
    visitObjects(info, [&](const std::string& prefix, const auto&, auto leaves) {
        for (const auto& leaf : leaves) {
            const std::size_t distance =
                std::min(editDistance(wrong, prefix + leaf.key), editDistance(wrong, leaf.key));
            if (distance >= least) continue;
            least = distance;
            nearest = prefix + leaf.key;
        }
    });
    return nearest;
}

std::string setItemCount(SystemInfo& info, const std::string& value) {
    std::size_t count = 0;
    if (!readNumber(std::string_view(value), count) || count > TextState::kMaxFontObjects) {
        return std::string(kItemCount) + " takes a whole number from 0 to " +
               std::to_string(TextState::kMaxFontObjects) + ", not \"" + value + "\"";
    }
    info.oFontObject.resize(count);
    return "";
}

}  // namespace

std::string setField(SystemInfo& info, const std::string& name, const std::string& value) {
    if (name == kItemCount) return setItemCount(info, value);
    const std::size_t items = info.oFontObject.size();
    const bool isNew = items < TextState::kMaxFontObjects && name.starts_with("text" + std::to_string(items) + ".");
    if (isNew) info.oFontObject.push_back();
    bool found = false;
    std::string problem;
    visitObjects(info, [&](const std::string& prefix, auto& object, auto leaves) {
        if (found || !name.starts_with(prefix)) return;
        const auto* leaf = findLeaf(leaves, name.substr(prefix.size()));
        if (!leaf) return;
        found = true;
        std::visit([&](auto member) { problem = assign(object.*member, name, value); }, leaf->member);
    });
    if (isNew && (!found || !problem.empty())) info.oFontObject.resize(items);
    if (!found) return "There is no field " + name + "; did you mean " + nearestSetting(info, name) + "?";
    return problem;
}

std::vector<std::pair<std::string, std::string>> listFields(const SystemInfo& info) {
    std::vector<std::pair<std::string, std::string>> fields;
    visitObjects(info, [&](const std::string& prefix, const auto& object, auto leaves) {
        for (const auto& leaf : leaves)
            std::visit([&](auto member) { fields.emplace_back(prefix + leaf.key, show((object.*member).load())); },
                       leaf.member);
    });
    return fields;
}

std::vector<std::pair<std::string, std::string>> listFields(const FontObject& item) {
    std::vector<std::pair<std::string, std::string>> fields;
    for (const auto& leaf : FontObject::leaves())
        std::visit([&](auto member) { fields.emplace_back(leaf.key, show((item.*member).load())); }, leaf.member);
    return fields;
}

std::optional<std::string> fieldValue(const SystemInfo& info, const std::string& name) {
    if (name == kItemCount) return std::to_string(info.iFontObjectCount());
    std::optional<std::string> value;
    visitObjects(info, [&](const std::string& prefix, const auto& object, auto leaves) {
        if (value || !name.starts_with(prefix)) return;
        if (const auto* leaf = findLeaf(leaves, name.substr(prefix.size())))
            std::visit([&](auto member) { value = show((object.*member).load()); }, leaf->member);
    });
    return value;
}

}  // namespace tavrin
