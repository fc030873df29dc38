#!/usr/bin/env bash
# Start-up time and memory of Zavoren! against the floor of any Qt Widgets program here: a bare
# window with a menu bar and an 8-item list (startup_floor) that quits after its first paint.
# Both run offscreen, alternately, RUNS times each (15 by default); the program has a learner
# recorded as current and is started with --quit-after-first-paint, so each run is process start
# to exit after the home page's first paint. Prints medians, their ratio and peak RSS, for the
# standard and the all-kanji databases.
#   bench/startup.sh [BUILD_DIR]      (needs /usr/bin/time, Debian package "time")
set -euo pipefail

build=$(cd "${1:-$(dirname "${BASH_SOURCE[0]}")/../build}" && pwd)
runs=${RUNS:-15}
program=$build/shell/zavoren
floor=$build/bench/startup_floor
export QT_QPA_PLATFORM=offscreen

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# One run: prints "milliseconds peak-rss-kB".
measure() {
    local start end rss
    start=$(date +%s%N)
    /usr/bin/time -f '%M' -o "$work/rss" "$@" >/dev/null 2>&1 || true
    end=$(date +%s%N)
    rss=$(tail -n 1 "$work/rss")
    echo "$(( (end - start) / 1000 )) $rss"
}

median() { sort -n | awk '{ v[NR] = $1 } END { if (NR % 2) print v[(NR + 1) / 2]; else print (v[NR / 2] + v[NR / 2 + 1]) / 2 }'; }

compare() {
    local label=$1 database=$2 data=$work/$1
    mkdir -p "$data/settings" "$data/runtime"
    chmod 700 "$data/runtime"
    ln -sf "$database" "$data/database"
    printf '<?xml version="1.0"?>\n<Zavoren>\n  <Users currentUser="Anna">\n    <User name="Anna"/>\n  </Users>\n</Zavoren>\n' \
        > "$data/config.xml"
    : > "$work/program.txt"
    : > "$work/floor.txt"
    for _ in $(seq "$runs"); do
        (cd "$data" && XDG_CONFIG_HOME=$data/settings XDG_RUNTIME_DIR=$data/runtime \
            measure "$program" --quit-after-first-paint) >> "$work/program.txt"
        (cd "$data" && measure "$floor") >> "$work/floor.txt"
    done
    local pt ft pr fr
    pt=$(cut -d' ' -f1 "$work/program.txt" | median)
    ft=$(cut -d' ' -f1 "$work/floor.txt" | median)
    pr=$(cut -d' ' -f2 "$work/program.txt" | median)
    fr=$(cut -d' ' -f2 "$work/floor.txt" | median)
    awk -v l="$label" -v pt="$pt" -v ft="$ft" -v pr="$pr" -v fr="$fr" 'BEGIN {
        printf "%-9s program %7.1f ms  floor %7.1f ms  ratio %.2f   peak RSS program %5.1f MB  floor %5.1f MB\n",
            l, pt / 1000, ft / 1000, pt / ft, pr / 1024, fr / 1024 }'
}

echo "medians of $runs runs each, offscreen"
compare standard "$build/data/database"
compare all "$build/database-all"
