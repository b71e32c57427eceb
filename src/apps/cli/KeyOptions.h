#pragma once

#include <CLI/CLI.hpp>
#include <string>

#include "core/state/SystemInfo.h"
#include "pipeline/PictureCheck.h"

namespace tavrin::cli {

/// Plain names for what has to do with the screen, the hair and green clothes; "" leaves the settings alone.
struct KeyOptions {
    std::string screen, hair, clothes;
};

void addKeyOptions(CLI::App& command, KeyOptions& options);

void applyKeyOptions(SystemInfo& info, const KeyOptions& options);

/// The warning with what can be done about it on the command line.
std::string withAdvice(const PictureWarning& warning);

}  // namespace tavrin::cli
