#!/usr/bin/env bash
# Builds the Debian package and checks it: its control fields, that it holds every file a learner
# needs, that lintian finds no error in it, and that its desktop entry and AppStream metadata
# validate.
#   check_package.sh BUILD_DIR VERSION
set -euo pipefail
build=$1
version=$2
cd "$build"
arch=$(dpkg --print-architecture)
deb="zavoren_${version}_${arch}.deb"
rm -f "$deb"
cpack -G DEB > cpack.log 2>&1 || { cat cpack.log; exit 1; }
[ -f "$deb" ] || { echo "no $deb"; exit 1; }

field() { dpkg-deb -f "$deb" "$1"; }
[ "$(field Package)" = zavoren ] || { echo "Package: $(field Package)"; exit 1; }
[ "$(field Version)" = "$version" ] || { echo "Version: $(field Version)"; exit 1; }
[ "$(field Architecture)" = "$arch" ] || { echo "Architecture: $(field Architecture)"; exit 1; }
[ "$(field Section)" = education ] || { echo "Section: $(field Section)"; exit 1; }
depends=$(field Depends)
for needed in libqt6core6 libqt6gui6 libqt6widgets6 libqt6printsupport6 libqt6charts6 libpugixml1v5 libsqlite3-0 fonts-ipafont-gothic qt6-qpa-plugins libzinnia0 tegaki-zinnia-japanese; do
    case "$depends" in *"$needed"*) ;; *) echo "Depends lacks $needed: $depends"; exit 1 ;; esac
done

contents=$(dpkg-deb -c "$deb" | awk '{ print $6 }')
for file in ./usr/bin/zavoren ./usr/bin/zavoren-db ./usr/bin/zavoren-sheet ./usr/libexec/zavoren/zavoren ./usr/libexec/zavoren/zavoren-progress.so \
    ./usr/share/zavoren/database ./usr/share/zavoren/database-fr ./usr/share/zavoren/database-es \
    ./usr/share/zavoren/database-pt ./usr/share/zavoren/lexicon ./usr/share/zavoren/Zavoren.html \
    ./usr/share/applications/io.github.zavoren.Zavoren.desktop \
    ./usr/share/metainfo/io.github.zavoren.Zavoren.metainfo.xml \
    ./usr/share/icons/hicolor/scalable/apps/io.github.zavoren.Zavoren.svg \
    ./usr/share/icons/hicolor/16x16/apps/io.github.zavoren.Zavoren.png \
    ./usr/share/icons/hicolor/48x48/apps/io.github.zavoren.Zavoren.png \
    ./usr/share/icons/hicolor/256x256/apps/io.github.zavoren.Zavoren.png \
    ./usr/share/man/man1/zavoren.1.gz ./usr/share/man/man1/zavoren-db.1.gz ./usr/share/man/man1/zavoren-sheet.1.gz \
    ./usr/share/doc/zavoren/copyright ./usr/share/doc/zavoren/changelog.gz; do
    grep -qxF "$file" <<< "$contents" || { echo "the package lacks $file"; exit 1; }
done
dpkg-deb -x "$deb" unpacked-package
grep -q 'KanjiVG' unpacked-package/usr/share/doc/zavoren/copyright
grep -q 'KANJIDIC2' unpacked-package/usr/share/doc/zavoren/copyright
# The programs find their libraries where the system keeps them, never in a folder of their own.
for binary in usr/libexec/zavoren/zavoren usr/libexec/zavoren/zavoren-progress.so usr/bin/zavoren-db usr/bin/zavoren-sheet; do
    if readelf -d "unpacked-package/$binary" | grep -qE 'RPATH|RUNPATH'; then
        echo "$binary carries a library search path"; exit 1
    fi
done

desktop-file-validate unpacked-package/usr/share/applications/io.github.zavoren.Zavoren.desktop
appstreamcli validate --no-net unpacked-package/usr/share/metainfo/io.github.zavoren.Zavoren.metainfo.xml
rm -rf unpacked-package

# lintian: no errors (its warnings and notes are listed).
lintian --fail-on error --tag-display-limit 0 "$deb" 2>&1 | grep -v 'root privileges' || true
lintian --fail-on error "$deb" > /dev/null 2>&1 || { echo "lintian found errors"; exit 1; }
echo "package $deb checked"
