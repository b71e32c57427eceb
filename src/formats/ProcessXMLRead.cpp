#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <pugixml.hpp>
#include <string_view>

#include "core/Log.h"
#include "core/files/StandardPath.h"
#include "formats/ProcessXML.h"

namespace tavrin {

namespace {

pugi::xml_node nodeOf(XMLElement element) {
    return pugi::xml_node(element.node);
}

/// The text directly inside an element, blanks and all.
std::string textOf(XMLElement element) {
    std::string text;
    for (const pugi::xml_node part : nodeOf(element).children()) {
        if (part.type() == pugi::node_pcdata || part.type() == pugi::node_cdata) text += part.value();
    }
    return text;
}

std::string_view withoutLeadingSpace(std::string_view text) {
    const std::size_t first = text.find_first_not_of(" \t\r\n\v\f");
    return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

/// Counts what becomes nodes or attributes in memory, before any memory is spent on them.
bool hasTooManyMarks(const std::string& bytes) {
    std::size_t marks = 0;
    for (const char c : bytes)
        marks += c == '<' || c == '=' ? 1 : 0;
    return marks > ProcessXML::kMarkLimit;
}

bool isTooDeep(pugi::xml_document& document) {
    struct Walker : pugi::xml_tree_walker {
        bool for_each(pugi::xml_node&) override { return depth() < ProcessXML::kDepthLimit; }
    } walker;
    return !document.traverse(walker);
}

/// The parser lets text beside the root and a second root pass.
bool hasOneRoot(const pugi::xml_document& document) {
    int roots = 0;
    for (const pugi::xml_node node : document.children()) {
        const std::string_view text = node.value();
        if (node.type() == pugi::node_cdata) return false;
        if (node.type() == pugi::node_pcdata && !withoutLeadingSpace(text).empty()) return false;
        if (node.type() == pugi::node_element) ++roots;
    }
    return roots == 1;
}

std::string shortened(const std::string& text) {
    constexpr std::size_t kShown = 40;
    return text.size() <= kShown ? text : text.substr(0, kShown) + "...";
}

}  // namespace

ProcessXML::ProcessXML() = default;
ProcessXML::~ProcessXML() = default;

void ProcessXML::fail(const std::string& what) {
    if (error.empty()) error = path_ + ": " + what;
}

bool ProcessXML::OpenXMLFile(const std::string& path) {
    CloseXMLFile();
    error.clear();
    wasRead_ = false;
    path_ = path;
    if (path.empty()) {
        logError("Can't create an URL from file " + path + ".");
        error = "A file to be read needs a name.";
        return false;
    }
    const FileBytes file = readSafeFile(path, kFileLimit);
    missing_ = file.missing;
    error = file.problem;
    wasRead_ = error.empty();
    return wasRead_ && parse(file.bytes);
}

bool ProcessXML::OpenXMLBytes(const std::string& name, const std::string& bytes) {
    CloseXMLFile();
    error.clear();
    path_ = name;
    wasRead_ = true;
    return parse(bytes);
}

bool ProcessXML::parse(const std::string& bytes) {
    auto document = std::make_unique<pugi::xml_document>();
    if (bytes.find('\0') != std::string::npos) {
        fail("no XML: it holds bytes that are no text");
    } else if (hasTooManyMarks(bytes)) {
        fail("it holds more elements than any file of its kind");
    } else {
        // Blanks between elements are dropped, blanks that are all of a value are kept.
        const unsigned options = pugi::parse_default | pugi::parse_ws_pcdata_single | pugi::parse_fragment;
        const pugi::xml_parse_result result = document->load_buffer(bytes.data(), bytes.size(), options);
        if (!result) {
            fail("no XML: " + std::string(result.description()) + " at byte " + std::to_string(result.offset));
        } else if (!hasOneRoot(*document)) {
            fail("no XML: it has to hold one root element and nothing beside it");
        } else if (isTooDeep(*document)) {
            fail("its elements are nested too deeply");
        }
    }
    if (!error.empty()) return false;
    xmlDoc = std::move(document);
    return true;
}

void ProcessXML::CloseXMLFile() {
    activeElement = {};
    sortedFor_ = nullptr;
    sortedChildren_.clear();
    xmlDoc.reset();
}

std::vector<XMLElement> ProcessXML::FindNodesForPath(const std::string& xpath) const {
    std::vector<XMLElement> found;
    if (!xmlDoc) return found;
    try {
        pugi::xpath_node_set nodes = xmlDoc->select_nodes(xpath.c_str());
        nodes.sort();
        for (const pugi::xpath_node& node : nodes) {
            if (node.node()) found.push_back({node.node().internal_object()});
        }
    } catch (const pugi::xpath_exception&) {
        found.clear();  // the path is none
    }
    return found;
}

std::vector<XMLElement> ProcessXML::FindNodesForName(const std::string& name) const {
    std::vector<XMLElement> found;
    for (const pugi::xml_node child : nodeOf(activeElement).children(name.c_str()))
        found.push_back({child.internal_object()});
    return found;
}

XMLElement ProcessXML::lastChild(const std::string& key) {
    const auto isBefore = [](const auto& one, const auto& other) { return one.first < other.first; };
    if (sortedFor_ != activeElement.node) {
        sortedFor_ = activeElement.node;
        sortedChildren_.clear();
        for (const pugi::xml_node child : nodeOf(activeElement).children())
            sortedChildren_.emplace_back(child.name(), XMLElement{child.internal_object()});
        std::stable_sort(sortedChildren_.begin(), sortedChildren_.end(), isBefore);
    }
    const std::pair<std::string_view, XMLElement> wanted(key, XMLElement());
    const auto after = std::upper_bound(sortedChildren_.begin(), sortedChildren_.end(), wanted, isBefore);
    if (after == sortedChildren_.begin() || std::prev(after)->first != key) return {};
    return std::prev(after)->second;
}

std::string ProcessXML::place(const std::string& key) const {
    std::string names = key;
    for (pugi::xml_node node = nodeOf(activeElement); node.type() == pugi::node_element; node = node.parent())
        names = node.name() + ("/" + names);
    return names;
}

std::string ProcessXML::StringValue(const std::string& key) {
    const std::string raw = textOf(lastChild(key));
    if (raw.size() >= kTextLimit) {
        fail("the text of " + place(key) + " is longer than " + std::to_string(kTextLimit - 1) + " bytes");
        return "";
    }
    const std::string text = unescapeText(raw);
    return text.find('~') == std::string::npos ? text : standardizePath(text);
}

template <class Number>
Number ProcessXML::numberValue(const std::string& key) {
    const std::string whole = textOf(lastChild(key));
    std::string_view text = withoutLeadingSpace(whole);
    if (text.empty()) return 0;
    if (text.starts_with('+')) text.remove_prefix(1);
    const bool isWord = text.find_first_of("0123456789") > 2;  // "nan", "inf"; "-.5" is none
    Number value = 0;
    const auto problem = std::from_chars(text.data(), text.data() + text.size(), value).ec;
    if (isWord || problem == std::errc::invalid_argument) {
        fail(place(key) + " takes a number, not \"" + shortened(whole) + "\"");
        return 0;
    }
    if (problem == std::errc::result_out_of_range) {
        fail(place(key) + " holds a number that does not fit: " + shortened(whole));
        return 0;
    }
    return value;
}

std::int64_t ProcessXML::IntValue(const std::string& key) {
    return numberValue<std::int64_t>(key);
}

std::int32_t ProcessXML::Int32Value(const std::string& key) {
    const std::int64_t value = IntValue(key);
    if (value < std::numeric_limits<std::int32_t>::min() || value > std::numeric_limits<std::int32_t>::max()) {
        fail(place(key) + " holds a number that does not fit: " + std::to_string(value));
        return 0;
    }
    return static_cast<std::int32_t>(value);
}

double ProcessXML::DoubleValue(const std::string& key) {
    return numberValue<double>(key);
}

bool ProcessXML::BoolValue(const std::string& key) {
    // True begins, after a sign and zeros, with a digit from 1 to 9 or with the letter of "yes" or "true".
    const std::string whole = textOf(lastChild(key));
    std::string_view text = withoutLeadingSpace(whole);
    if (text.starts_with('+') || text.starts_with('-')) text.remove_prefix(1);
    const std::size_t first = text.find_first_not_of('0');
    return first != std::string_view::npos && std::strchr("123456789YyTt", text[first]) != nullptr;
}

std::string keptAside(const ProcessXML& xml, const std::string& path) {
    const std::string kept = xml.isDamaged() ? setDamagedFileAside(path) : "";
    return kept.empty() ? "" : "; it is kept in its folder as " + kept.substr(kept.find_last_of('/') + 1);
}

std::string unescapeText(const std::string& text) {
    constexpr std::size_t kDigits = 3;
    std::string plain;
    plain.reserve(text.size());
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] != '#') {
            plain += text[i];
            continue;
        }
        const std::string digits = text.substr(i + 1, kDigits);
        plain += static_cast<char>(static_cast<unsigned char>(std::atoi(digits.c_str())));
        i += digits.size();
    }
    return plain;
}

}  // namespace tavrin
