#!/usr/bin/env bash
# clang-tidy over the sources of a build folder: check_lint.sh BUILD_FOLDER
# GCC's own warning flags in the build's commands are unknown to clang-tidy's compiler.
cd "$(dirname "$0")/.." || exit 1
find src -name '*.cpp' -print0 |
    xargs -0 -n 4 -P "$(nproc)" \
        clang-tidy --quiet -p "$1" --extra-arg=-Wno-unknown-warning-option 2>&1 |
    grep -vE '^[0-9]+ warnings? generated|^Suppressed|^Use -header-filter'
exit "${PIPESTATUS[1]}"
