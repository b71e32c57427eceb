#include "apps/cli/Streams.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <vector>

#include "apps/cli/Console.h"
#include "core/files/Places.h"

namespace tavrin::cli {

namespace {

constexpr std::size_t kAtATime = std::size_t{1} << 16;

}  // namespace

std::string takeInput(std::string& path) {
    if (path != kStream) return "";
    if (Console::isTerminal(stdin))
        return "The standard input is a terminal; - takes a picture from a pipe or a file.";
    path = Places::current().tempFilesFolder() + "standard-input";
    std::ofstream file(path, std::ios::binary);
    std::vector<char> bytes(kAtATime);
    std::size_t count = 0;
    while ((count = std::fread(bytes.data(), 1, bytes.size(), stdin)) > 0)
        file.write(bytes.data(), static_cast<std::streamsize>(count));
    if (std::ferror(stdin) != 0)
        return std::string("The standard input cannot be read: ") + std::strerror(errno) + ".";
    file.close();
    return file ? "" : "The standard input cannot be kept in " + path + ".";
}

bool takeOutput(std::string& path, const std::string& extension) {
    if (path != kStream) return false;
    path = Places::current().tempFilesFolder() + "standard-output" + extension;
    return true;
}

bool sendFile(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::vector<char> bytes(kAtATime);
    while (file) {
        file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        std::fwrite(bytes.data(), 1, static_cast<std::size_t>(file.gcount()), stdout);
    }
    if (file.eof()) return true;
    complain(path + " cannot be read.");
    return false;
}

}  // namespace tavrin::cli
