#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "session/OutputSizes.h"

// The picture that the benchmarks of whole jobs and passes make.
namespace tavrin::bench {

inline constexpr int kWidth = 2400, kHeight = 3000;

inline std::string tempFile(const char* name) {
    return (std::filesystem::temp_directory_path() / (std::string("tavrin-bench-") + name)).string();
}

// The sample portrait at 3100 x 3875.
inline const std::string& foregroundPath() {
    static const std::string path = [] {
        const QImage sample(TAVRIN_SOURCE_DIR "/data/sample/portrait.jpg");
        const std::string file = tempFile("portrait.jpg");
        sample.scaled(3100, 3875, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).save(file.c_str(), "JPEG", 92);
        return file;
    }();
    return path;
}

inline std::string backgroundPath() {
    return TAVRIN_SOURCE_DIR "/data/sample/background.jpg";
}

inline std::unique_ptr<SystemInfo> newJob() {
    auto info = std::make_unique<SystemInfo>();
    info->pForegroundBitmapInfo->sSourceImageFullPath = foregroundPath();
    info->pBackgroundBitmapInfo->sSourceImageFullPath = backgroundPath();
    chooseOwnSize(*info, "8x10", 8.0, 10.0, 300);
    return info;
}

}  // namespace tavrin::bench
