#!/usr/bin/env bash
# Builds the release, runs all benchmarks, measures the start of the program and writes the table docs/benchmarks.md.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh
scripts/install-packages.sh "${build_packages[@]}" "${display_packages[@]}" "${virtual_display_packages[@]}"

[ -f build/release/build.ninja ] || cmake --preset release
cmake --build --preset release --target kelvaro kelvaro_bench

declare -A subjects=(
    [BM_FnCalculate]="All longitudes of a moment (\`FnCalculate\`)"
    [BM_Sunrise]="Sunrise of a date"
    [BM_LunarDates]="Both lunar dates, with their hourly searches"
    [BM_WholeHoroscope]="A whole horoscope without a window"
    [BM_Report]="The text of the report, antras included"
    [BM_ChartList/20000]="The list of 20,000 saved charts"
)
{
    printf '# Benchmarks\n\nWritten by `scripts/benchmarks.sh`; %s processors.\n\n' "$(nproc)"
    printf '| What | Time |\n|---|---|\n'
    build/release/kelvaro_bench 2>/dev/null | while read -r name time unit _; do
        [ -n "${subjects[$name]:-}" ] && printf '| %s | %s %s |\n' "${subjects[$name]}" "$time" "$unit"
    done
    start=$(xvfb-run -a -s "-screen 0 1280x800x24" scripts/start-up-time.sh build/release/kelvaro)
    printf '| Start of the program to its finished first view, median of ten | %s ms |\n' "$start"
} >build/benchmarks.md
mv build/benchmarks.md docs/benchmarks.md
cat docs/benchmarks.md
