#include "core/Places.h"

#include <QDir>
#include <QStandardPaths>

#include "core/PrivateFolder.h"

namespace tavrin {

namespace {

std::string withSlash(const std::string& folder) {
    return folder.ends_with('/') ? folder : folder + "/";
}

std::string ownFolderIn(QStandardPaths::StandardLocation place) {
    return withSlash(QStandardPaths::writableLocation(place).toStdString()) + "Tavrin/";
}

}  // namespace

Places& Places::current() {
    static Places places;
    return places;
}

Places::Places()
    : shared_(ownFolderIn(QStandardPaths::GenericDataLocation)),
      pictures_(ownFolderIn(QStandardPaths::PicturesLocation)) {}

Places::~Places() = default;

void Places::setSharedFolder(const std::string& folder) {
    shared_ = withSlash(folder);
}

void Places::setPicturesFolder(const std::string& folder) {
    pictures_ = withSlash(folder);
}

bool Places::usePrivateTempFiles() {
    const std::string place = QDir::tempPath().toStdString();
    PrivateFolder::removeAbandoned(place);
    auto folder = std::make_unique<PrivateFolder>(place);
    if (folder->path().empty()) return false;
    privateTempFiles_ = std::move(folder);
    tempFiles_ = withSlash(privateTempFiles_->path());
    return true;
}

std::string Places::createFolders() const {
    for (const std::string& folder : {xmlFolder(), tempFilesFolder(), samplesFolder(), textIconsFolder(),
                                      frameFolder(), overlaysFolder(), sketchFolder()}) {
        if (!QDir().mkpath(QString::fromStdString(folder))) return "The folder " + folder + " cannot be made.";
    }
    return "";
}

}  // namespace tavrin
