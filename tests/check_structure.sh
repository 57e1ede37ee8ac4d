#!/usr/bin/env bash
# Holds the source's structure: includes run from higher folders to lower ones only, no module (a
# header and its source) and no folder reaches itself through others, nothing but the window library
# and the program includes Qt, and nothing but the real file system asks the disk.
set -u
cd "$(dirname "$0")/../src" || exit 1

# From the lowest folder to the highest. Folders on one line do not know each other.
layers='text
files
base
regions names
store
itemeditor
shopeditor
generator documents
frame
ui
program'

includes=$(grep -rHoE '^#include "[^"]+"' --include='*.h' --include='*.cpp' . |
    sed -E 's|^\./([^:]+):#include "([^"]+)"|\1 \2|')

wrong=$(awk -v layers="$layers" '
    BEGIN {
        count = split(layers, rows, "\n")
        for (i = 1; i <= count; ++i) {
            n = split(rows[i], names, " ")
            for (k = 1; k <= n; ++k) rank[names[k]] = i
        }
    }
    {
        split($1, from, "/"); split($2, to, "/")
        if (!(from[1] in rank) || !(to[1] in rank)) print $1 " -> " $2 " (unknown folder)"
        else if (from[1] != to[1] && rank[to[1]] >= rank[from[1]]) print $1 " -> " $2
    }' <<<"$includes")
# What is left of a path names the module or the folder; what lies within one is no loop.
loops_of() { sed -E "$1" <<<"$includes" | awk '$1 != $2' | tsort 2>&1 >/dev/null; }
module_loops=$(loops_of 's/\.(h|cpp)\b//g')
folder_loops=$(loops_of 's,/[^ ]+,,g')
disk=$(grep -rnP '\b(fs|filesystem)::(?!path\b)\w|std::(remove|rename)\(|[^\w:]::(open|unlink|rename|stat|read|write)\(|SystemFiles\(\)|fstream|fopen|QFile\b' \
    --include='*.h' --include='*.cpp' . | grep -vE '^\./(files/SystemFiles|files/FileLayer.h|ui/MainWindow.cpp)')
qt=$(grep -rlE '^#include <Q' --include='*.h' --include='*.cpp' . | grep -vE '^\./(ui|program)/')
platform=$(grep -rlE '_WIN32' --include='*.h' --include='*.cpp' .)

status=0
report() { [ -z "$2" ] || { printf '%s:\n%s\n' "$1" "$2"; status=1; }; }
report "includes that run upwards" "$wrong"
report "modules that reach themselves" "$module_loops"
report "folders that reach themselves" "$folder_loops"
report "the disk asked by another road" "$disk"
report "Qt in the core" "$qt"
report "files that ask for the system" "$platform"
exit $status
