#include "browse/PictureMarks.h"

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string_view>

#include "core/files/AtomicFile.h"
#include "folders/FileFacts.h"

namespace fs = std::filesystem;

namespace tavrin {

namespace {

// One letter a mark, in the order of the enumeration.
constexpr std::string_view kLetters = "-krl";
// A file is written anew when it has this many lines more than marks.
constexpr std::size_t kMostOldLines = 1000;

std::string lineOf(const std::string& name, PictureMark mark) {
    std::string line{kLetters[static_cast<std::size_t>(mark)], ' '};
    for (const char c : name) {  // a name is bytes, and may hold even a line feed
        if (c == '\n' || c == '\\') line += '\\';
        line += c == '\n' ? 'n' : c;
    }
    return line + '\n';
}

std::string nameIn(std::string_view line) {
    std::string name;
    for (std::size_t i = 2; i < line.size(); ++i) {
        const bool escaped = line[i] == '\\' && i + 1 < line.size();
        if (escaped) ++i;
        name += escaped && line[i] == 'n' ? '\n' : line[i];
    }
    return name;
}

struct Place {
    std::string folder, name;
};

Place placeOf(const std::string& path) {
    const fs::path whole(path);
    return {whole.parent_path().string(), whole.filename().string()};
}

}  // namespace

PictureMarks::PictureMarks(const std::string& place) : place_(place.ends_with('/') ? place : place + '/') {}

std::string PictureMarks::fileOf(const std::string& folder) const {
    return place_ + digestOfText(folder) + ".txt";
}

/// Later lines win. A file of many old lines is written anew, whole or not at all.
PictureMarks::Marks PictureMarks::readFile(const std::string& folder) const {
    Marks marks;
    std::ifstream file(fileOf(folder), std::ios::binary);
    std::size_t lines = 0;
    for (std::string line; std::getline(file, line) && !file.eof(); ++lines) {  // a line without an end is torn
        const std::size_t letter = line.size() < 3 ? std::string_view::npos : kLetters.find(line[0]);
        if (letter == std::string_view::npos) continue;
        if (letter == 0) {
            marks.erase(nameIn(line));
        } else {
            marks[nameIn(line)] = static_cast<PictureMark>(letter);
        }
    }
    if (lines <= marks.size() + kMostOldLines) return marks;
    AtomicFile fresh(fileOf(folder));
    for (const auto& [name, mark] : marks) {
        const std::string line = lineOf(name, mark);
        fresh.write(line.data(), line.size());
    }
    fresh.commit();  // or the old file stays, which says the same
    return marks;
}

PictureMarks::Marks& PictureMarks::marksOf(const std::string& folder) {
    const auto found = folders_.find(folder);
    return found != folders_.end() ? found->second : folders_.emplace(folder, readFile(folder)).first->second;
}

PictureMark PictureMarks::mark(const std::string& path) {
    const Place place = placeOf(path);
    std::lock_guard lock(mutex_);
    const Marks& marks = marksOf(place.folder);
    const auto found = marks.find(place.name);
    return found == marks.end() ? PictureMark::none : found->second;
}

void PictureMarks::read(const std::string& folder) {
    std::lock_guard lock(mutex_);
    marksOf(folder);
}

std::string PictureMarks::setMark(const std::string& path, PictureMark mark) {
    const Place place = placeOf(path);
    std::lock_guard lock(mutex_);
    Marks& marks = marksOf(place.folder);
    if (mark == PictureMark::none) {
        marks.erase(place.name);
    } else {
        marks[place.name] = mark;
    }
    std::error_code failed;
    fs::create_directories(place_, failed);
    std::FILE* file = failed ? nullptr : std::fopen(fileOf(place.folder).c_str(), "a+b");
    const bool torn = file && std::fseek(file, -1, SEEK_END) == 0 && std::fgetc(file) != '\n';
    if (file) std::fseek(file, 0, SEEK_END);  // between reading and writing
    const std::string line = (torn ? "\n" : "") + lineOf(place.name, mark);
    bool written = file && std::fwrite(line.data(), 1, line.size(), file) == line.size();
    if (file) written = std::fclose(file) == 0 && written;
    if (written) return "";
    return "The mark of " + place.name + " cannot be kept: " + writeProblem(failed ? failed.value() : errno, place_) +
           ".";
}

}  // namespace tavrin
