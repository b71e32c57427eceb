#include "support/TestData.h"

#include <cstdlib>
#include <random>

#include "support/BuildPlaces.h"

namespace fs = std::filesystem;

namespace tavrin::test {

fs::path dataFolder() {
    if (const char* given = std::getenv("TAVRIN_TEST_DATA")) return fs::path(given);
    const fs::path beside = fs::path(kSourceFolder) / ".." / "shared" / "data";
    return fs::exists(beside) ? beside : fs::path();
}

TempFolder::TempFolder() {
    std::random_device random;
    do {
        path_ = fs::temp_directory_path() / ("tavrin-test-" + std::to_string(random()));
    } while (!fs::create_directory(path_));
}

TempFolder::~TempFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

}  // namespace tavrin::test
