#!/bin/bash
# Renders every page at device pixel ratios 1 and 2, in the light and the dark palette, into
# OUTPUT/{light,dark}-{1,2}/, offscreen, so that a change to a page can be looked at.
#   bash shell/render/render_all.sh [BUILD_FOLDER] [OUTPUT_FOLDER]
set -euo pipefail
build=${1:-build}
out=${2:-$build/pages}
# A screen as large in logical pixels at ratio 2 as a desktop's, so that no page is squeezed to
# fit a small one.
screen=$(mktemp --suffix=.json)
trap 'rm -f "$screen"' EXIT
echo '{"screens": [{"name": "Desktop", "x": 0, "y": 0, "width": 3840, "height": 2160, "logicalDpi": 96}]}' >"$screen"
for ratio in 1 2; do
    for look in light dark; do
        extra=()
        [ "$look" = dark ] && extra=(--dark)
        QT_QPA_PLATFORM="offscreen:configfile=$screen" QT_SCALE_FACTOR=$ratio \
            "$build/shell/render_pages" "$build/data/database" "$out/$look-$ratio" "${extra[@]}" 2>/dev/null
    done
done
echo "pages rendered into $out"
