#pragma once

#include <string>

namespace tavrin::cli {

/// Why a command cannot be carried out as it was given; `code` is the exit code.
struct Refusal {
    int code = 0;
    std::string line;
};

/// Whether a file can be written at `path`, as far as its folder tells.
Refusal checkTarget(const std::string& path);

}  // namespace tavrin::cli
