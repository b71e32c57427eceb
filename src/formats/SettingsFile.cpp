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
void closeToOthers(const std::string& path) {
    constexpr QFile::Permissions kOwner = QFile::ReadOwner | QFile::WriteOwner;
    constexpr QFile::Permissions kOthers = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup | QFile::ReadOther |
                                           QFile::WriteOther | QFile::ExeOther;
    const QString name = QString::fromStdString(path);
    if (QFile::permissions(name) & kOthers) QFile::setPermissions(name, kOwner);
}

}  // namespace

std::string LoadQLXFile(QLXInfo& settings, const std::string& path) {
    ProcessXML xml;
    if (!xml.OpenXMLFile(path)) {
        if (!xml.isMissing()) return xml.error;
        settings.ResetQLXInfo();
        return writeFirstFile(path);
    }
    closeToOthers(path);
    const auto found = xml.FindNodesForPath(".//QLXSettings");
    if (found.empty()) {
        xml.fail("not a settings file: the element QLXSettings is missing");
        return xml.error;
    }
    xml.SetActiveElement(found[0]);
    QLXInfo loaded;
    loadLeaves(xml, loaded);
    if (xml.error.empty()) copyLeaves(loaded, settings);
    return xml.error;
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
