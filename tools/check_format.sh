#!/usr/bin/env bash
# Says where clang-format would write a line of C++ differently; silent when it agrees everywhere.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
find src tests bench tools -name '*.cpp' -print0 -o -name '*.h' -print0 |
    xargs -0 clang-format-14 --dry-run --Werror
