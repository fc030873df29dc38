#!/usr/bin/env bash
# Fails when a translation is unfinished or when the .ts files are not up to date with the
# sources (running lupdate over them would change them).
#   check_translations.sh SOURCE_DIR LUPDATE SOURCES...   (the sources as the build lists them)
set -euo pipefail
source_dir=$1
lupdate=$2
shift 2
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$source_dir"
status=0
for ts in translations/zavoren_*.ts; do
    cp "$ts" "$work/"
done
"$lupdate" -extensions cpp,h,ui -locations none -no-obsolete -silent \
    "$@" -ts "$work"/zavoren_*.ts 2>/dev/null
for ts in translations/zavoren_*.ts; do
    name=$(basename "$ts")
    if ! cmp -s "$ts" "$work/$name"; then
        echo "$ts is not up to date with the sources (run: cmake --build build --target update_translations):"
        diff "$ts" "$work/$name" | head -n 20
        status=1
    fi
    if grep -q 'type="unfinished"\|type="vanished"\|type="obsolete"' "$ts"; then
        echo "$ts has unfinished entries:"
        grep -c 'type="unfinished"' "$ts" || true
        status=1
    fi
    count=$(grep -c '<message' "$ts")
    echo "$name: $count messages, all translated"
done
exit $status
