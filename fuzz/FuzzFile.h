#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

namespace tavrin::fuzz {

/// A file of this process, in the folder for temporary files: the readers take names.
inline const std::string& inputFile() {
    static const std::string name =
        (std::filesystem::temp_directory_path() / ("tavrin-fuzz-" + std::to_string(std::random_device()()))).string();
    return name;
}

inline void writeInput(const std::uint8_t* bytes, std::size_t size) {
    std::FILE* file = std::fopen(inputFile().c_str(), "wb");
    if (!file || std::fwrite(bytes, 1, size, file) != size || std::fclose(file) != 0) std::abort();
}

/// What has to hold for every input.
inline void require(bool holds, const char* what) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %s\n", what);
    std::abort();
}

}  // namespace tavrin::fuzz
