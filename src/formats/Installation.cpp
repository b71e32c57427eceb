#include "formats/Installation.h"

#include <QFile>

#include "formats/SafeFile.h"

// The resources lie in a static library, where they have to be asked for by name, and outside of any namespace.
static void openShippedFiles() {
    Q_INIT_RESOURCE(shipped);
}

namespace tavrin {

namespace {

/// Puts a shipped file where there is none.
std::string putShippedFile(const QString& shipped, const std::string& path) {
    if (safeFileExists(path)) return "";
    QFile source(":/shipped/" + shipped);
    if (!source.open(QFile::ReadOnly)) return "The program was built without its file " + shipped.toStdString() + ".";
    const std::string fresh = ownNameBeside(path);
    SafeSave save;
    save.begin(fresh, Readers::everyone);
    save.write(source.readAll().toStdString());
    if (!save.commit()) return save.problem();
    return claimName(fresh, path) ? "" : path + " cannot be written.";
}

}  // namespace

std::string installMissingFiles(const Places& places) {
    openShippedFiles();
    std::string problems = places.createFolders();
    for (const std::string& line : {putShippedFile("ImageSize.xml", places.imageSizeFile()),
                                    putShippedFile("Printer.xml", places.printerFile())}) {
        if (!problems.empty() && !line.empty()) problems += '\n';
        problems += line;
    }
    return problems;
}

}  // namespace tavrin
