#include "formats/Installation.h"

#include <filesystem>
#include <string>
#include <vector>

#include <QFile>

#include "core/Lines.h"
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
    const std::string bytes = shippedFile(shipped);
    if (bytes.empty()) return "The program was built without its file " + shipped + ".";
    const std::string fresh = ownNameBeside(path);
    SafeSave save;
    save.begin(fresh, Readers::everyone);
    save.write(bytes);
    if (!save.commit()) return path + save.problem().substr(fresh.size());  // it begins with the file's name
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
        {"sample/portrait.jpg", places.samplePortraitsFolder() + "portrait.jpg"},
        {"sample/background.jpg", places.sampleBackgroundsFolder() + "background.jpg"},
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

/// A fresh account starts with the shipped state and pictures; one that has settings keeps them.
std::string putFirstSettings(const Places& places) {
    return safeFileExists(places.settingsFile()) ? "" : SaveQLXFile(firstSettings(places), places.settingsFile());
}

/// Counts what could not be made. What stops one file most often stops all that follow.
class Failures {
  public:
    void add(const std::string& problem) {
        if (first_.empty()) {
            first_ = problem;
        } else if (!problem.empty()) {
            ++more_;
        }
    }
    std::string line() const {
        if (more_ == 0) return first_;
        return first_ + " (" + std::to_string(more_) + " more files and folders could not be made.)";
    }

  private:
    std::string first_;
    int more_ = 0;
};

Failures putLists(const Places& places, const std::string& problemBefore) {
    Failures failures;
    failures.add(problemBefore);
    for (const ShippedFile& file : shippedLists(places))
        failures.add(putShippedFile(file.name, file.path));
    return failures;
}

}  // namespace

std::string shippedFile(const std::string& name) {
    openShippedFiles();
    QFile source(QString::fromStdString(":/shipped/" + name));
    return source.open(QFile::ReadOnly) ? source.readAll().toStdString() : std::string();
}

QLXInfo firstSettings(const Places& places) {
    QLXInfo settings;
    settings.sDefaultQLXFilePath = places.defaultStateFile();
    settings.sStartupFileForegroundPath = places.samplePortraitsFolder() + "portrait.jpg";
    settings.sStartupFileBackgroundPath = places.sampleBackgroundsFolder() + "background.jpg";
    settings.sOverlayDir = places.overlaysFolder();
    return settings;
}

std::string installMissingFiles(const Places& places) {
    Failures failures = putLists(places, places.createFolders());
    for (const ShippedFile& file : shippedStart(places))
        failures.add(putShippedFile(file.name, file.path));
    failures.add(putFirstSettings(places));
    return failures.line();
}

std::string shippedPicture(const std::string& name, const Places& places) {
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
    return putLists(places, "").line();
}

}  // namespace tavrin
