#pragma once

#include <filesystem>
#include <string>

namespace tavrin::test {

/// Folder of the real test pictures, which lies beside the checkout (or where TAVRIN_TEST_DATA says). Tests that
/// need it skip when it is not there.
std::filesystem::path dataFolder();

/// A fresh folder that goes away with the object.
class TempFolder {
  public:
    TempFolder();
    ~TempFolder();
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }
    std::string file(const std::string& name) const { return (path_ / name).string(); }

  private:
    std::filesystem::path path_;
};

}  // namespace tavrin::test

/// Skips the test when the real pictures are not there; otherwise names their folder `variable`.
#define TAVRIN_NEED_DATA(variable)                                     \
    const std::filesystem::path variable = tavrin::test::dataFolder(); \
    if (variable.empty()) GTEST_SKIP() << "no test pictures here"
