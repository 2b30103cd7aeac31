#!/usr/bin/env bash
# Runs the fuzz targets that stand in build/fuzz side by side for some time. Inputs that reach something new are kept in
# build/fuzz/corpus for the next run; an input that ends a target is left in build/fuzz/found.
# usage: fuzz.sh SECONDS
set -euo pipefail
cd "$(dirname "$0")/../build/fuzz"

mkdir -p found
declare -A running
for target in *Fuzzer; do
    mkdir -p "corpus/$target"
    "./$target" -seed=1 -max_total_time="$1" -timeout=20 -artifact_prefix="found/$target-" -print_final_stats=1 \
        "corpus/$target" "../../fuzz/seeds/$target" >"$target.log" 2>&1 &
    running[$target]=$!
done

failed=0
for target in "${!running[@]}"; do
    if wait "${running[$target]}"; then
        echo "$target: $(sed -n 's/^stat::number_of_executed_units: *//p' "$target.log") inputs"
    else
        failed=1
        grep -v '^#' "$target.log" | tail -n 40
        echo "$target failed; its input is in $PWD/found, its words in $PWD/$target.log" >&2
    fi
done
exit "$failed"
