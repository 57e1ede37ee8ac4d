#!/usr/bin/env bash
# clang-tidy over the program's sources: check_lint.sh BUILD_FOLDER [NAME_PATTERN [ARGUMENT...]]
# Reads the sources whose name fits the pattern, with the build's commands and the arguments, a folder
# in one piece, because most of the time goes into the headers that its sources share. What was clean
# is not read again before the build compiles it anew, so until it or what it includes changes.
cd "$(dirname "$0")/.." || exit 1
build=$(realpath "$1")
pattern=${2:-*.cpp}
shift $(($# < 2 ? $# : 2))
[ -e "$build/compile_commands.json" ] || { echo "no commands in $build"; exit 1; }
mkdir -p "$build/lint"

# Writes every folder's piece and names those that have to be read.
unclean() {
    for folder in src/*/; do
        name=$(basename "$folder")
        clean=$build/lint/$name.clean
        find "$PWD/src/$name" -name "$pattern" | sort | while read -r source; do
            grep -q "\"file\": \"$source\"" "$build/compile_commands.json" || continue # of the other system
            echo "#include \"$source\""
        done >"$build/lint/$name.cpp"
        [ -s "$build/lint/$name.cpp" ] || continue
        if [ .clang-tidy -nt "$clean" ] || [ tests/check_lint.sh -nt "$clean" ] ||
            [ -n "$(find "$build/src" -path "*/$name/*.o*" -newer "$clean")" ]; then
            echo "$name"
        fi
    done
}

# lint NAME ARGUMENT...: the mark is as old as the start, lest it hide what changes meanwhile.
lint() {
    piece=$build/lint/$1
    shift
    mkdir -p "$piece" && touch "$piece.begun"
    # The command of a source, but for what GCC precompiled; GCC's own warning flags are unknown here.
    source=$(sed -nE '1s/#include "(.*)"/\1/p' "$piece.cpp")
    { echo '[{'
        grep -B2 "\"file\": \"$source\"" "$build/compile_commands.json" | sed "s|$source|$piece.cpp|
            s/ -Winvalid-pch -include .*cmake_pch.hxx[^ ]*//; s/ -fpch-preprocess//; \$s/,$//"
        echo '}]'; } >"$piece/compile_commands.json"
    clang-tidy --quiet -p "$piece" --config-file=.clang-tidy --header-filter='/src/[a-z]+/[^/]+$' \
        --checks=-bugprone-suspicious-include --extra-arg=-Wno-unknown-warning-option "$@" \
        "$piece.cpp" 2>&1 || return 1
    mv "$piece.begun" "$piece.clean"
}

export build
export -f lint
unclean | xargs -I NAME -P "$(nproc)" bash -c 'lint "$@"' lint NAME "$@" |
    grep -vE '^[0-9]+ warnings? generated|^Suppressed|^Use -header-filter'
exit "${PIPESTATUS[1]}"
