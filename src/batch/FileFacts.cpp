#include "batch/FileFacts.h"

#include <chrono>
#include <filesystem>

#include <QCryptographicHash>
#include <QFile>

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr QCryptographicHash::Algorithm kDigest = QCryptographicHash::Blake2b_160;

}  // namespace

std::optional<FileFacts> factsOf(const std::string& path) {
    std::error_code gone;
    const fs::directory_entry entry(path, gone);
    if (gone || !entry.is_regular_file(gone)) return std::nullopt;
    FileFacts facts;
    facts.size = fs::file_size(path, gone);
    if (gone) return std::nullopt;
    const auto time = fs::last_write_time(path, gone).time_since_epoch();
    if (gone) return std::nullopt;
    facts.time = std::chrono::duration_cast<std::chrono::nanoseconds>(time).count();
    return facts;
}

std::string digestOfFile(const std::string& path) {
    QFile file(QString::fromStdString(path));
    QCryptographicHash hash(kDigest);
    if (!file.open(QFile::ReadOnly) || !hash.addData(&file)) return {};
    return hash.result().toHex().toStdString();
}

std::string digestOfText(const std::string& text) {
    const QByteArrayView bytes(text.data(), static_cast<qsizetype>(text.size()));
    return QCryptographicHash::hash(bytes, kDigest).toHex().toStdString();
}

ReadFile readSettledFile(const std::string& path) {
    constexpr int kTries = 3;
    ReadFile file;
    for (int i = 0; i < kTries; ++i) {
        const std::optional<FileFacts> before = factsOf(path);
        file.missing = !before;
        if (!before) break;
        file.facts = *before;
        file.picture = readPicture(path);
        file.digest = digestOfFile(path);
        const std::optional<FileFacts> after = factsOf(path);
        file.missing = !after;
        if (!after) break;
        if (*after == *before) return file;
    }
    file.picture = ReadPicture();
    file.digest.clear();
    file.changing = !file.missing;
    file.picture.error = file.missing ? "the file is not there" : "it is still being written";
    return file;
}

}  // namespace tavrin
