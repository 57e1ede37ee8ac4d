#!/usr/bin/env bash
# Fails if clang-format would change a file.
cd "$(dirname "$0")/.." || exit 1
find src tests bench -name '*.h' -o -name '*.cpp' | xargs clang-format --dry-run --Werror
