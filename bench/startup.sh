#!/usr/bin/env bash
# Start-up time and memory of Zavoren! against the floor of any Qt Widgets program here: a bare
# window with a menu bar and an 8-item list (startup_floor) that quits after its first paint.
# Both run offscreen, alternately, RUNS times each (15 by default); the program has a learner
# recorded as current and is started with --quit-after-first-paint, so each run is process start
# to exit after the home page's first paint. Prints medians, their ratio and peak RSS, for the
# standard and the all-kanji databases; then a learner of ten years against a new one.
#   bench/startup.sh [BUILD_DIR]      (needs /usr/bin/time, Debian package "time")
set -euo pipefail

build=$(cd "${1:-$(dirname "${BASH_SOURCE[0]}")/../build}" && pwd)
runs=${RUNS:-15}
program=$build/shell/zavoren
floor=$build/bench/startup_floor
export QT_QPA_PLATFORM=offscreen

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# One run: prints "microseconds peak-rss-kB".
measure() {
    local start end rss
    start=$(date +%s%N)
    /usr/bin/time -f '%M' -o "$work/rss" "$@" >/dev/null 2>&1 || true
    end=$(date +%s%N)
    rss=$(tail -n 1 "$work/rss")
    echo "$(( (end - start) / 1000 )) $rss"
}

median() { sort -n | awk '{ v[NR] = $1 } END { if (NR % 2) print v[(NR + 1) / 2]; else print (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

# The median of a column (1: time, 2: peak RSS) of a file of runs.
column_median() { cut -d' ' -f"$2" "$1" | median; }

# A data folder for the program: settings and runtime folders of its own, and DATABASE linked.
prepare() {
    local data=$1 database=$2
    mkdir -p "$data/settings" "$data/runtime"
    chmod 700 "$data/runtime"
    ln -sf "$database" "$data/database"
}

# A config.xml in DATA with one learner, Anna, current and new.
new_learner() {
    printf '<?xml version="1.0"?>\n<Zavoren>\n  <Users currentUser="Anna">\n    <User name="Anna"/>\n  </Users>\n</Zavoren>\n' \
        > "$1/config.xml"
}

# One run of the program in DATA: prints "microseconds peak-rss-kB".
run_in() {
    local data=$1
    (cd "$data" && XDG_CONFIG_HOME=$data/settings XDG_RUNTIME_DIR=$data/runtime measure "$program" --quit-after-first-paint)
}

compare() {
    local label=$1 database=$2 data=$work/$1
    prepare "$data" "$database"
    new_learner "$data"
    : > "$work/program.txt"
    : > "$work/floor.txt"
    for _ in $(seq "$runs"); do
        run_in "$data" >> "$work/program.txt"
        (cd "$data" && measure "$floor") >> "$work/floor.txt"
    done
    local pt ft pr fr
    pt=$(column_median "$work/program.txt" 1)
    ft=$(column_median "$work/floor.txt" 1)
    pr=$(column_median "$work/program.txt" 2)
    fr=$(column_median "$work/floor.txt" 2)
    awk -v l="$label" -v pt="$pt" -v ft="$ft" -v pr="$pr" -v fr="$fr" 'BEGIN {
        printf "%-9s program %7.1f ms  floor %7.1f ms  ratio %.2f   peak RSS program %5.1f MB  floor %5.1f MB\n",
            l, pt / 1000, ft / 1000, pt / ft, pr / 1024, fr / 1024 }'
}

# The program with a learner of ten years of daily practice (36,500 events) against the same
# program with a new learner, started alternately on the standard database. The ten-year
# learner's config.xml is first written as the program wrote it with the history inside; the
# first start brings the history over to history.db (timed once, apart).
compare_learners() {
    local new=$work/new-learner years=$work/ten-years
    prepare "$new" "$build/data/database"
    prepare "$years" "$build/data/database"
    new_learner "$new"
    "$build/bench/ten_years_learner" "$years" "$build/data/database" >/dev/null
    local before first
    before=$(stat -c %s "$years/config.xml")
    first=$(run_in "$years")
    : > "$work/new.txt"
    : > "$work/years.txt"
    for _ in $(seq "$runs"); do
        run_in "$new" >> "$work/new.txt"
        run_in "$years" >> "$work/years.txt"
    done
    local nt yt nr yr
    nt=$(column_median "$work/new.txt" 1)
    yt=$(column_median "$work/years.txt" 1)
    nr=$(column_median "$work/new.txt" 2)
    yr=$(column_median "$work/years.txt" 2)
    awk -v b="$before" -v a="$(stat -c %s "$years/config.xml")" -v h="$(stat -c %s "$years/history.db")" \
        -v f="${first% *}" -v fr="${first#* }" 'BEGIN {
        printf "first start of the ten-year learner (history brought over): %.1f ms, peak RSS %.1f MB; config.xml %.2f MB -> %.3f MB, history.db %.2f MB\n",
            f / 1000, fr / 1024, b / 1048576, a / 1048576, h / 1048576 }'
    awk -v nt="$nt" -v yt="$yt" -v nr="$nr" -v yr="$yr" 'BEGIN {
        printf "learners  new %7.1f ms  ten years %7.1f ms  ratio %.2f   peak RSS new %5.1f MB  ten years %5.1f MB\n",
            nt / 1000, yt / 1000, yt / nt, nr / 1024, yr / 1024 }'
}

echo "medians of $runs runs each, offscreen"
compare standard "$build/data/database"
compare all "$build/database-all"
compare_learners
