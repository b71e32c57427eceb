#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "formats/SafeFile.h"

namespace pugi {
class xml_document;
struct xml_node_struct;
}  // namespace pugi

namespace tavrin {

/// An element of a document that `ProcessXML` has open; valid until that is closed.
struct XMLElement {
    pugi::xml_node_struct* node = nullptr;
    explicit operator bool() const { return node != nullptr; }
};

/// Reads and writes the small XML files of the program: elements nested by fixed names, leaf elements that hold one
/// value each, no attributes.
///
/// Errors stick: after the first one `error` says in one line what is wrong with which file and element, and what is
/// read or written from then on does not count. A caller tests it once, at the end.
class ProcessXML {
  public:
    /// Text has to stay below this many bytes, as it stands and escaped.
    static constexpr std::size_t kTextLimit = 10'000;
    /// No file of the program comes near these. They keep a made-up file from taking the machine's memory.
    static constexpr std::size_t kFileLimit = 32'000'000, kMarkLimit = 500'000;
    static constexpr int kDepthLimit = 64;

    ProcessXML();
    ~ProcessXML();

    // Reading, in the calling order.
    /// @return false when the file is missing, unreadable or no well-formed XML; `error` says why
    bool OpenXMLFile(const std::string& path);
    /// The same for the bytes of a file that lies elsewhere, known by `name`.
    bool OpenXMLBytes(const std::string& name, const std::string& bytes);
    /// The elements that an XPath of the whole document names, in document order; none when nothing is open.
    std::vector<XMLElement> FindNodesForPath(const std::string& xpath) const;
    /// Makes an element the one whose children the functions below read.
    void SetActiveElement(XMLElement element) { activeElement = element; }
    std::vector<XMLElement> FindNodesForName(const std::string& name) const;
    /// The value of the last child of that name; "", 0, 0.0 or false when there is none. A text that holds a tilde
    /// anywhere comes back as a standardized path, whatever it was. A number is read as far as it goes, like
    /// "12 points"; text that begins with none, or a number too big for its type, is an error.
    std::string StringValue(const std::string& key);
    std::int64_t IntValue(const std::string& key);
    std::int32_t Int32Value(const std::string& key);
    double DoubleValue(const std::string& key);
    bool BoolValue(const std::string& key);
    void CloseXMLFile();
    /// The file that `OpenXMLFile` looked for is not there.
    bool isMissing() const { return missing_; }
    /// The file could be read, and what it holds is not what it should be.
    bool isDamaged() const { return wasRead_ && !error.empty(); }

    // Writing, in the calling order.
    /// The old file steps aside until the new one has arrived; see SafeSave.
    void StartXMLSave(const std::string& path, Readers readers = Readers::everyone);
    void OpenNode(const std::string& name);
    void SaveStringValue(const std::string& key, const std::string& value);
    void SaveIntValue(const std::string& key, std::int64_t value);
    /// Six places, with a full stop in every locale. A value that is no number, or infinite, has no form in the file:
    /// it is written as 0.000000 and named on the standard error stream, so that it does not keep all others from
    /// being saved.
    void SaveDoubleValue(const std::string& key, double value);
    void SaveBoolValue(const std::string& key, bool value);
    void CloseNode(const std::string& name);
    /// @return false when anything failed since `StartXMLSave`; the old file is back then and `error` says why
    bool EndXMLSave();

    std::string error;
    XMLElement activeElement;
    std::int32_t iLevel = 0;  ///< nesting depth of the writer
    std::string tempOutputPath, outputPath;

    /// Adds an error about the file that is open, unless there is one already.
    void fail(const std::string& what);

  private:
    bool parse(const std::string& bytes);
    XMLElement lastChild(const std::string& key);
    std::string place(const std::string& key) const;
    template <class Number>
    Number numberValue(const std::string& key);
    void writeLeaf(const std::string& key, const std::string& value);

    std::unique_ptr<pugi::xml_document> xmlDoc;
    std::unique_ptr<SafeSave> outFile;
    std::string path_;
    bool missing_ = false, wasRead_ = false;
    /// The children of the element `sortedFor_` by name, those of one name in the order of the document.
    std::vector<std::pair<std::string_view, XMLElement>> sortedChildren_;
    pugi::xml_node_struct* sortedFor_ = nullptr;
};

/// Sets the file that `xml` had open aside when it is damaged.
/// @return what to add to its error about that; "" when nothing was moved
std::string keptAside(const ProcessXML& xml, const std::string& path);

/// The text with every byte but ASCII letters, digits, blank, hyphen, full stop and slash written as a number sign
/// and three decimal digits.
std::string escapeText(const std::string& text);
/// The way back. After a number sign up to three characters are taken as a number, of which the low byte counts.
std::string unescapeText(const std::string& text);

}  // namespace tavrin
