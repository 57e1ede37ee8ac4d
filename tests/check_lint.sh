#!/usr/bin/env bash
# clang-tidy over the program's sources: check_lint.sh BUILD_FOLDER [NAME_PATTERN [ARGUMENT...]]
# Reads the sources whose name fits the pattern, with the build's commands and the arguments. What was
# clean is not read again before the build compiles it anew, so until it or what it includes changes.
cd "$(dirname "$0")/.." || exit 1
build=$(realpath "$1")
pattern=${2:-*.cpp}
shift $(($# < 2 ? $# : 2))
[ -e "$build/compile_commands.json" ] || { echo "no commands in $build"; exit 1; }

# Nothing that GCC precompiled can be read by clang-tidy's compiler.
mkdir -p "$build/lint"
sed -E 's/ -Winvalid-pch -include [^ ]+//; s/ -fpch-preprocess//' "$build/compile_commands.json" \
    >"$build/lint/compile_commands.json"

unclean() {
    find src -name "$pattern" | while read -r source; do
        grep -q "$source\"" "$build/compile_commands.json" || continue # of the other system
        clean=$build/lint/${source//\//-}
        if [ ! -e "$clean" ] || [ .clang-tidy -nt "$clean" ] || [ tests/check_lint.sh -nt "$clean" ] ||
            [ -n "$(find "$build/src" -name "${source##*/}.o*" -newer "$clean")" ]; then
            echo "$source"
        fi
    done
}

# lint SOURCE ARGUMENT...: the mark is as old as the start, lest it hide what changes meanwhile.
lint() {
    source=$1
    shift
    mark=$build/lint/${source//\//-}
    touch "$mark.begun"
    # GCC's own warning flags are unknown to clang-tidy's compiler.
    clang-tidy --quiet -p "$build/lint" --extra-arg=-Wno-unknown-warning-option "$@" "$source" 2>&1 ||
        return 1
    mv "$mark.begun" "$mark"
}

export build
export -f lint
unclean | xargs -d '\n' -I SOURCE -P "$(nproc)" bash -c 'lint "$@"' lint SOURCE "$@" |
    grep -vE '^[0-9]+ warnings? generated|^Suppressed|^Use -header-filter'
exit "${PIPESTATUS[1]}"
