#!/usr/bin/env bash
# Runs every fuzz target for SECONDS on its committed corpus. New inputs and any crash
# go to a folder inside BUILD; the committed corpus is only read.
# Usage: tests/fuzz/run.sh BUILD SECONDS
set -u
build=${1:?usage: run.sh BUILD SECONDS}
seconds=${2:-60}
here=$(cd "$(dirname "$0")" && pwd)
findings="$build/fuzz-findings"

# Each target's longest useful input: longer ones only repeat what is already there.
# Patterns and subjects go up to 2,000 characters each, with a line feed between them.
# An input that runs past 10 s is a finding as well, a slow match say.
declare -A maxlen=([fuzz_pattern]=4001 [fuzz_block]=4096 [fuzz_game]=512 [fuzz_list]=1024)
targets=(fuzz_pattern fuzz_block fuzz_game fuzz_list)

export ASAN_OPTIONS=abort_on_error=1:detect_leaks=1
export LSAN_OPTIONS=suppressions=$here/../sanitize.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
export QT_QPA_PLATFORM=offscreen

status=0
table=""
for target in "${targets[@]}"; do
    scratch="$findings/$target"
    log="$findings/$target.log"
    mkdir -p "$scratch"
    start=$(date +%s.%N)
    "$build/tests/fuzz/$target" "$scratch" "$here/corpus/$target" \
        -max_total_time="$seconds" -max_len="${maxlen[$target]}" -print_final_stats=1 \
        -timeout=10 \
        -artifact_prefix="$findings/$target-" >"$log" 2>&1
    result=$?
    elapsed=$(awk -v a="$start" -v b="$(date +%s.%N)" 'BEGIN { printf "%.1f", b - a }')
    runs=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    runs=${runs:-0}
    if [ "$result" -ne 0 ]; then
        status=1
        echo "$target FOUND A FAULT (exit $result); see $log"
        grep -m1 -A3 "Test unit written" "$log"
    fi
    echo "$target: $runs executions in $elapsed s"
    table+=$(awk -v t="$target" -v r="$runs" -v s="$elapsed" \
        'BEGIN { printf "%-14s %12d %8.0f %10.0f", t, r, s, r / s }')$'\n'
done

printf '\n%-14s %12s %8s %10s\n' target runs seconds "runs/s"
printf '%s' "$table"
exit $status
