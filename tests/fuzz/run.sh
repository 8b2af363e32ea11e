#!/usr/bin/env bash
# Fuzzes for so many seconds, to begin with the inputs in corpus/, and tells what came of it; exit status 1 when
# something is wrong, with the file that shows it: run.sh FUZZER SECONDS [KEPT]. Inputs that reach something new go into
# the folder KEPT, which a later run begins with too. Without it they are forgotten, and as the seed is fixed, every run
# tries the same as far as it gets.
set -euo pipefail
fuzzer=$(realpath "$1")
corpus=$(realpath "$(dirname "$0")")/corpus
target=$(basename "$1") target=${target#fuzz-}
if [ $# -eq 3 ]; then
    mkdir -p "$3"
    kept=$(realpath "$3")
else
    kept=$(mktemp -d)
    trap 'rm -rf "$kept"' EXIT
fi
mkdir -p "$(dirname "$fuzzer")/../fuzz"
cd "$(dirname "$fuzzer")/../fuzz"
case $target in
component_file | registrations) options=(-max_len=4096) ;; # whole files
*) options=(-max_len=400 -entropic=0) ;; # sequences of calls, of which longer ones take long
esac

log=$target.log
status=0
"$fuzzer" -seed=1 -max_total_time="$2" "${options[@]}" -len_control=0 -timeout=10 -close_fd_mask=1 \
    -print_final_stats=1 -artifact_prefix="$PWD/$target-" "$kept" "$corpus/$target" 2>"$log" || status=1
found="nothing found"
if [ "$status" -ne 0 ]; then
    why=$(grep -E '^SUMMARY: |^It does not hold ' "$log" | head -1 || tail -1 "$log")
    found="$why: $fuzzer $(grep -oE "$PWD/$target-[a-z]+-[0-9a-f]+" "$log" | tail -1 || true)"
fi
executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
places=$(grep -oE ' cov: [0-9]+' "$log" | tail -1 | grep -oE '[0-9]+' || true)
echo "$target: ${executions:-0} executions, ${places:-0} places of the code; $found"
exit "$status"
