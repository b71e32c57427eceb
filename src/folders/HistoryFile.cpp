#include "folders/HistoryFile.h"

#include <pugixml.hpp>

#include "core/files/AtomicFile.h"
#include "core/files/FileIdentity.h"

namespace tavrin {

namespace {

/// A made-up file must not take the machine's memory; 200,000 long names come to less.
constexpr std::size_t kFileLimit = 64'000'000;

constexpr const char* kHead =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
    "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" \"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
    "<plist version=\"1.0\">\n<array>\n";
constexpr const char* kTail = "</array>\n</plist>\n";

/// A name may hold nearly any byte. What XML has no plain form for is written as a numbered character.
void appendEscaped(std::string& text, const std::string& key) {
    for (const char c : key) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '&') {
            text += "&amp;";
        } else if (c == '<') {
            text += "&lt;";
        } else if (c == '>') {
            text += "&gt;";
        } else if (byte < 32) {
            text += "&#" + std::to_string(byte) + ";";
        } else {
            text += c;
        }
    }
}

std::size_t sizeOf(std::FILE* file) {
    if (std::fseek(file, 0, SEEK_END) != 0) return 0;
    const long size = std::ftell(file);
    std::rewind(file);
    return size > 0 ? static_cast<std::size_t>(size) : 0;
}

std::string readBytes(const std::string& path) {
    std::FILE* file = isPlainFile(path) ? std::fopen(path.c_str(), "rb") : nullptr;
    if (!file) return {};
    std::string bytes;
    const std::size_t size = sizeOf(file);
    if (size <= kFileLimit) {
        bytes.resize(size);
        bytes.resize(std::fread(bytes.data(), 1, size, file));
    }
    std::fclose(file);
    return bytes;
}

}  // namespace

std::optional<std::vector<std::string>> readHistory(const std::string& path) {
    std::string bytes = readBytes(path);
    pugi::xml_document document;
    // A name made of blanks is a name.
    constexpr unsigned kOptions = pugi::parse_default | pugi::parse_ws_pcdata_single;
    if (bytes.empty() || !document.load_buffer_inplace(bytes.data(), bytes.size(), kOptions)) return std::nullopt;
    const pugi::xml_node array = document.child("plist").child("array");
    if (!array) return std::nullopt;
    std::vector<std::string> keys;
    for (const pugi::xml_node entry : array.children("string"))
        keys.emplace_back(entry.child_value());
    return keys;
}

std::string writeHistory(const std::string& path, const std::vector<std::string>& keys) {
    std::string text = kHead;
    for (const std::string& key : keys) {
        text += "\t<string>";
        appendEscaped(text, key);
        text += "</string>\n";
    }
    text += kTail;
    AtomicFile file(path);
    file.write(text.data(), text.size());
    return file.commit() ? std::string() : path + ": " + file.error() + ".";
}

}  // namespace tavrin
