#!/usr/bin/env bash
# Runs the benchmark programs of a build directory and prints what they measured as one table.
# A goal that is missed is no failure; a benchmark that could not run is one.
#
# A program is named kivu_bench_* and writes a line for each measure, its fields parted by tabs: name,
# ours, the yardstick, goal (the most that ours may be as a multiple of the yardstick), and a unit: "MB", or "ms" or none for
# seconds, which are shown as milliseconds. Whatever else it writes is passed on below the table.
set -euo pipefail

[ $# -ge 1 ] || { echo "usage: bench/run.sh BUILD_DIR [OPTIONS OF THE PROGRAMS]" >&2; exit 2; }
build=$1
shift

mapfile -t programs < <(find "$build/bench" -type f -executable -name 'kivu_bench_*' | sort)
[ ${#programs[@]} -gt 0 ] || { echo "No benchmark programs below $build/bench." >&2; exit 1; }

output=$(mktemp)
trap 'rm -f "$output"' EXIT
failed=()
for program in "${programs[@]}"; do
  "$program" "$@" >>"$output" || failed+=("${program##*/}")
done

awk -F '\t' '
  (NF == 4 || NF == 5) && $2 + 0 > 0 && $3 + 0 > 0 && $4 + 0 > 0 {
    if (!rows++) {
      printf "%-58s %10s %10s %6s %6s %5s\n", "measure", "ours", "yardstick", "ratio", "goal", "met?"
    }
    ratio = $2 / $3
    unit = NF == 5 ? $5 : "ms"
    scale = unit == "ms" ? 1000 : 1
    printf "%-58s %7.2f %s %7.2f %s %6.2f %6.2f %5s\n", $1, $2 * scale, unit, $3 * scale, unit, ratio, $4,
           ratio <= $4 ? "yes" : "no"
    next
  }
  { rest = rest $0 "\n" }
  END { if (rest != "") printf "\n%s", rest }
' "$output"

if [ ${#failed[@]} -gt 0 ]; then
  echo "Could not be run to its end: ${failed[*]}" >&2
  exit 1
fi
