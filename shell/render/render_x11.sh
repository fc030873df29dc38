#!/bin/bash
# Takes every page from a real X server (Xvfb, 2560 x 2048, no window manager) at device pixel
# ratios 1.5 and 2, in the light and the dark palette, into OUTPUT/x11-{light,dark}-{1.5,2}/:
# each picture is what the server shows, read back, so pixels a widget leaves unpainted show.
#   bash shell/render/render_x11.sh [BUILD_FOLDER] [OUTPUT_FOLDER]
set -euo pipefail
build=${1:-build}
out=${2:-$build/pages}
if ! command -v xvfb-run >/dev/null 2>&1; then
    echo "xvfb-run is missing (Debian package xvfb)" >&2
    exit 1
fi
for ratio in 1.5 2; do
    for look in light dark; do
        extra=(--screen)
        [ "$look" = dark ] && extra+=(--dark)
        QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=$ratio xvfb-run -a -s "-screen 0 2560x2048x24" \
            "$build/shell/render_pages" "$build/data/database" "$out/x11-$look-$ratio" "${extra[@]}" 2>/dev/null
    done
done
echo "pages taken from X into $out/x11-*"
