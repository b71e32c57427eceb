#include <charconv>
#include <cmath>
#include <pugixml.hpp>

#include "core/Log.h"
#include "formats/ProcessXML.h"

namespace tavrin {

namespace {

constexpr int kIndent = 4;

bool standsForItself(unsigned char byte) {
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
           byte == ' ' || byte == '-' || byte == '.' || byte == '/';
}

std::string indent(std::int32_t level) {
    return std::string(static_cast<std::size_t>(level > 0 ? level * kIndent : 0), ' ');
}

}  // namespace

std::string escapeText(const std::string& text) {
    std::string escaped;
    escaped.reserve(text.size());
    for (const char c : text) {
        const auto byte = static_cast<unsigned char>(c);
        if (standsForItself(byte)) {
            escaped += c;
        } else {
            escaped += '#';
            escaped += static_cast<char>('0' + byte / 100);
            escaped += static_cast<char>('0' + byte / 10 % 10);
            escaped += static_cast<char>('0' + byte % 10);
        }
    }
    return escaped;
}

void ProcessXML::StartXMLSave(const std::string& path, Readers readers) {
    error.clear();
    path_ = outputPath = path;
    tempOutputPath = path + "tmp";
    iLevel = 0;
    outFile = std::make_unique<SafeSave>();
    if (!outFile->begin(path, readers)) {
        logError("Open of testout for writing failed");
        return;
    }
    outFile->write("<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n");
}

void ProcessXML::OpenNode(const std::string& name) {
    if (outFile) outFile->write(indent(iLevel) + "<" + name + ">\n");
    ++iLevel;
}

void ProcessXML::CloseNode(const std::string& name) {
    --iLevel;
    if (outFile) outFile->write(indent(iLevel) + "</" + name + ">\n");
}

void ProcessXML::writeLeaf(const std::string& key, const std::string& value) {
    if (outFile) outFile->write(indent(iLevel) + "<" + key + ">" + value + "</" + key + ">\n");
}

void ProcessXML::SaveStringValue(const std::string& key, const std::string& value) {
    const std::string escaped = escapeText(value);
    if (escaped.size() >= kTextLimit) {
        fail("the text of " + key + " is too long to be saved: with its escapes it takes " +
             std::to_string(escaped.size()) + " bytes of at most " + std::to_string(kTextLimit - 1));
        return;
    }
    writeLeaf(key, escaped);
}

void ProcessXML::SaveIntValue(const std::string& key, std::int64_t value) {
    writeLeaf(key, std::to_string(value));
}

void ProcessXML::SaveDoubleValue(const std::string& key, double value) {
    if (!std::isfinite(value)) {
        logError(path_ + ": " + key + " is no number and is saved as 0.");
        value = 0.0;
    }
    char digits[400];  // the longest has a sign, 309 digits, a point and six places
    const auto end = std::to_chars(digits, digits + sizeof digits, value, std::chars_format::fixed, 6).ptr;
    writeLeaf(key, std::string(digits, end));
}

void ProcessXML::SaveBoolValue(const std::string& key, bool value) {
    writeLeaf(key, value ? "1" : "0");
}

bool ProcessXML::EndXMLSave() {
    if (!outFile) return false;
    if (!error.empty()) {
        outFile->giveUp();
    } else if (!outFile->commit()) {
        error = outFile->problem();
        logError("Failed to move '" + tempOutputPath + "' to '" + outputPath + "': " + error);
    }
    outFile.reset();
    return error.empty();
}

}  // namespace tavrin
