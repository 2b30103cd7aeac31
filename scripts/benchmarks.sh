#!/usr/bin/env bash
# Builds the release with its benchmarks, runs them, measures the start of the program beside that of a bare window, and
# writes the table docs/benchmarks.md. A subject without a figure and a figure without a subject are errors.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
scripts/install-packages.sh "${build_packages[@]}" "${desktop_packages[@]}" "${display_packages[@]}" \
    "${benchmark_packages[@]}"

cmake --preset benchmarks >/dev/null
cmake --build --preset benchmarks
export LC_ALL=C

subjects=(
    "BM_FnCalculate|All longitudes of a moment (\`FnCalculate\`)"
    "BM_Sunrise|Sunrise and sunset of a date"
    "BM_LunarDates|Both lunar dates, with their hourly searches"
    "BM_WholeHoroscope|A whole horoscope without a window"
    "BM_ComposeReport/antra:0|The text of its report, without antras"
    "BM_ComposeReport/antra:1|The text of its report, with antras"
    "BM_DrawnPages/all:0|Its drawn pages as a PDF file"
    "BM_DrawnPages/all:1|The same with antras and charts of vargas"
    "BM_CheckClock|What the clocks of a birthplace stood at"
    "BM_ChartList/20000|The list of 20,000 saved charts"
)

echo "== Benchmarks"
for bench in kelvaro_bench kelvaro_pages_bench; do
    "build/benchmarks/$bench" --benchmark_repetitions=5 --benchmark_report_aggregates_only=true \
        --benchmark_format=csv
done >build/benchmarks/figures.csv
# Processor time, which other programs at work do not lengthen.
declare -A figures
while IFS=, read -r name _ _ time unit _; do
    name=${name//\"/}
    if [[ $name == *_median ]]; then
        figures[${name%_median}]=$(printf '%.1f %s' "$time" "$unit")
    fi
done <build/benchmarks/figures.csv

table=
for subject in "${subjects[@]}"; do
    name=${subject%%|*}
    [ -n "${figures[$name]:-}" ] || { echo "There is no figure of $name" >&2; exit 1; }
    table+="| ${subject#*|} | ${figures[$name]} |"$'\n'
    unset "figures[$name]"
done
[ "${#figures[@]}" -eq 0 ] || { echo "No subject of the table is: ${!figures[*]}" >&2; exit 1; }

echo "== Start"
programs=(build/benchmarks/kelvaro build/benchmarks/kelvaro_bare_window)
scripts/start-up-time.sh "${programs[@]}" >build/benchmarks/starts
{ read -r start && read -r bare; } <build/benchmarks/starts
table+="| Start of the program to its finished first view | $start ms |"$'\n'
table+="| Start of a bare Qt window, in turns with it | $bare ms |"$'\n'
table+="| The one by the other | $(awk "BEGIN { printf \"%.2f\", $start / $bare }") |"$'\n'

# What the trial on Windows has measured is kept.
elsewhere=$(sed -n '/^## /,$p' docs/benchmarks.md)
{
    printf '# Benchmarks\n\nWritten by `scripts/benchmarks.sh`: medians of processor time, of the start on the clock; %s processors.\n\n' "$(nproc)"
    printf '| What | Time |\n|---|---|\n%s' "$table"
    [ -z "$elsewhere" ] || printf '\n%s\n' "$elsewhere"
} >docs/benchmarks.md
cat docs/benchmarks.md
