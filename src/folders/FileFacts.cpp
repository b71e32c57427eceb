#include "folders/FileFacts.h"

#include <chrono>
#include <filesystem>
#include <fstream>
#include <vector>

#include <QCryptographicHash>

#include "core/files/FileIdentity.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

constexpr QCryptographicHash::Algorithm kDigest = QCryptographicHash::Blake2b_160;

}  // namespace

bool isOlderThan(const FileFacts& facts, std::chrono::nanoseconds age) {
    using namespace std::chrono;
    const auto now = fs::file_time_type::clock::now().time_since_epoch();
    return duration_cast<nanoseconds>(now).count() - facts.time > age.count();
}

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
    if (!isPlainFile(path)) return {};
    std::ifstream file(path, std::ios::binary);
    QCryptographicHash hash(kDigest);
    std::vector<char> bytes(std::size_t{1} << 18);
    while (file.read(bytes.data(), static_cast<std::streamsize>(bytes.size())) || file.gcount() > 0)
        hash.addData(QByteArrayView(bytes.data(), static_cast<qsizetype>(file.gcount())));
    return file.eof() ? hash.result().toHex().toStdString() : std::string();
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
