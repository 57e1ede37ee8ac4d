#!/bin/sh
# Runs each fuzz target for a minute, or for the seconds given, under the address and
# undefined-behaviour sanitizers. What it finds is kept in build/fuzz/corpus. Fails if a property
# does not hold. Needs the Debian package clang.
set -eu
cd "$(dirname "$0")/.."
seconds=${1:-60}
command -v clang++ >/dev/null || { echo "clang++ is missing: apt-get install clang"; exit 1; }

cmake --preset fuzz
cmake --build --preset fuzz
fuzz() {
    mkdir -p "build/fuzz/corpus/$1"
    log=build/fuzz/$1.log
    build/fuzz/tests/fuzz/fuzz_"$1" -max_total_time="$seconds" -print_final_stats=1 \
        -artifact_prefix="build/fuzz/$1-" "build/fuzz/corpus/$1" "tests/fuzz/corpus/$1" \
        >"$log" 2>&1 || { tail -40 "$log"; echo "$1: a property does not hold"; return 1; }
    echo "$1: $(awk '/number_of_executed_units/ { print $2 }' "$log") inputs in $seconds s, $(
        awk '/ cov: / { for (i = 1; i < NF; ++i) if ($i == "cov:") seen = $(i + 1) }
             END { print seen }' "$log") places reached, nothing found"
}
status=0
for target in availability import records settings; do
    fuzz "$target" || status=1
done
exit "$status"
