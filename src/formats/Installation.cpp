#include "formats/Installation.h"

#include <filesystem>
#include <string>
#include <vector>

#include <QFile>

#include "core/Log.h"
#include "formats/SafeFile.h"
#include "formats/SettingsFile.h"

// The resources lie in a static library, where they have to be asked for by name, and outside of any namespace.
static void openShippedFiles() {
    Q_INIT_RESOURCE(shipped);
}

namespace tavrin {

namespace {

/// Puts a shipped file where there is none.
std::string putShippedFile(const std::string& shipped, const std::string& path) {
    if (safeFileExists(path)) return "";
    QFile source(QString::fromStdString(":/shipped/" + shipped));
    if (!source.open(QFile::ReadOnly)) return "The program was built without its file " + shipped + ".";
    const std::string fresh = ownNameBeside(path);
    SafeSave save;
    save.begin(fresh, Readers::everyone);
    save.write(source.readAll().toStdString());
    if (!save.commit()) return save.problem();
    return claimName(fresh, path) ? "" : path + " cannot be written.";
}

struct ShippedFile {
    std::string name;  // in the program's resources
    std::string path;
};

std::vector<ShippedFile> shippedLists(const Places& places) {
    return {{"ImageSize.xml", places.imageSizeFile()}, {"Printer.xml", places.printerFile()}};
}

// Overlays of one name belong together: "FR_" lies over all, "FG_" over the subject, "BG_" over the background.
constexpr const char* kOverlays[] = {
    "FR_Gold.png",   "FR_Graduation.png", "FG_Graduation.png", "BG_Graduation.png", "FR_Winter.png",
    "FG_Winter.png", "BG_Winter.png",     "FR_Party.png",      "FG_Party.png",      "BG_Party.png",
};

std::vector<ShippedFile> shippedStart(const Places& places) {
    std::vector<ShippedFile> files = {
        {"Default.qlx", places.defaultStateFile()},
        {"sample/portrait.jpg", places.samplesFolder() + "portrait.jpg"},
        {"sample/background.jpg", places.samplesFolder() + "background.jpg"},
        {"Pictures/EditTextIcons/Edit.png", places.textIconsFolder() + "Edit.png"},
        {"Pictures/EditTextIcons/Delete.png", places.textIconsFolder() + "Delete.png"},
        {"Pictures/Frame/BrushedGold.jpg", places.frameFolder() + "BrushedGold.jpg"},
        {"Pictures/Frame/Marble.jpg", places.frameFolder() + "Marble.jpg"},
        {"Pictures/Frame/Velvet.jpg", places.frameFolder() + "Velvet.jpg"},
        {"Pictures/Frame/Walnut.jpg", places.frameFolder() + "Walnut.jpg"},
        {"Pictures/Texture/Canvas.jpg", places.textureFolder() + "Canvas.jpg"},
        {"Pictures/Texture/Linen.jpg", places.textureFolder() + "Linen.jpg"},
        {"Pictures/Texture/Paper.jpg", places.textureFolder() + "Paper.jpg"},
        {"Pictures/Texture/Sketch/PencilDense.jpg", places.sketchFolder() + "PencilDense.jpg"},
        {"Pictures/Texture/Sketch/PencilDenseCross.jpg", places.sketchFolder() + "PencilDenseCross.jpg"},
        {"Pictures/Texture/Sketch/lightParchment.jpg", places.sketchFolder() + "lightParchment.jpg"},
    };
    for (const std::string name : kOverlays)
        files.push_back({"Pictures/Overlays/" + name, places.overlaysFolder() + name});
    return files;
}

void addLine(std::string& lines, const std::string& line) {
    if (!lines.empty() && !line.empty()) lines += '\n';
    lines += line;
}

/// A fresh account starts with the shipped state and pictures; one that has settings keeps them.
std::string putFirstSettings(const Places& places) {
    if (safeFileExists(places.settingsFile())) return "";
    QLXInfo settings;
    settings.sDefaultQLXFilePath = places.defaultStateFile();
    settings.sStartupFileForegroundPath = places.samplesFolder() + "portrait.jpg";
    settings.sStartupFileBackgroundPath = places.samplesFolder() + "background.jpg";
    settings.sOverlayDir = places.overlaysFolder();
    return SaveQLXFile(settings, places.settingsFile());
}

}  // namespace

std::string installMissingFiles(const Places& places) {
    std::string problems = installMissingLists(places);
    for (const ShippedFile& file : shippedStart(places))
        addLine(problems, putShippedFile(file.name, file.path));
    addLine(problems, putFirstSettings(places));
    return problems;
}

std::string shippedPicture(const std::string& name, const Places& places) {
    openShippedFiles();
    const std::string path = places.picturesFolder() + name;
    for (const ShippedFile& file : shippedStart(places)) {
        if (file.path != path) continue;
        std::error_code ignored;
        std::filesystem::create_directories(std::filesystem::path(path).parent_path(), ignored);
        const std::string problem = putShippedFile(file.name, path);
        if (!problem.empty()) logError(problem);
    }
    return path;
}

std::string installMissingLists(const Places& places) {
    openShippedFiles();
    std::string problems = places.createFolders();
    for (const ShippedFile& file : shippedLists(places))
        addLine(problems, putShippedFile(file.name, file.path));
    return problems;
}

}  // namespace tavrin
