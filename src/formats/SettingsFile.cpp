#include "formats/SettingsFile.h"

#include <QFile>

#include "formats/LeafXML.h"

namespace tavrin {

namespace {

/// Writes the defaults, unless another program that starts at the same time was quicker.
std::string writeFirstFile(const std::string& path) {
    const std::string fresh = ownNameBeside(path);
    if (const std::string problem = SaveQLXFile(QLXInfo(), fresh); !problem.empty()) return problem;
    return claimName(fresh, path) ? "" : path + " cannot be written.";
}

/// A file that was copied here by other means may have come with wider permissions.
void closeToOthers(const QString& name) {
    constexpr QFile::Permissions kOwner = QFile::ReadOwner | QFile::WriteOwner;
    constexpr QFile::Permissions kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                                           QFile::WriteOther | QFile::ExeOther;
    if (QFile::permissions(name) & kOthers) QFile::setPermissions(name, kOwner);
}

}  // namespace

std::string LoadQLXFile(QLXInfo& settings, const std::string& path) {
    ProcessXML xml;
    const bool open = xml.OpenXMLFile(path);
    if (xml.isMissing()) {
        settings.ResetQLXInfo();
        return writeFirstFile(path);
    }
    closeToOthers(QString::fromStdString(path));
    const auto found = xml.FindNodesForPath(".//QLXSettings");
    if (open && found.empty()) xml.fail("not a settings file: the element QLXSettings is missing");
    QLXInfo loaded;
    if (!found.empty()) {
        xml.SetActiveElement(found[0]);
        loadLeaves(xml, loaded);
    }
    if (!xml.error.empty()) return xml.error + keptAside(xml, path);
    copyLeaves(loaded, settings);
    return "";
}

std::string SaveQLXFile(const QLXInfo& settings, const std::string& path) {
    ProcessXML xml;
    xml.StartXMLSave(path, Readers::ownerOnly);
    xml.OpenNode("QLXSettings");
    saveLeaves(xml, settings);
    xml.CloseNode("QLXSettings");
    xml.EndXMLSave();
    return xml.error;
}

}  // namespace tavrin
