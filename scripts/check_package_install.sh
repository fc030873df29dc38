#!/usr/bin/env bash
# Installs the Debian package built here on a fresh minimal Debian tree, as a learner would with
# apt, and checks that the installed program finds 水 written freehand (the recorded ink of the
# tests) with Debian's handwriting model, and writes a practice sheet.
#   scripts/check_package_install.sh RELEASE [DEB]     (RELEASE: bookworm, trixie, ...; as root)
# DEB: the package (default build/zavoren_*.deb). Needs debootstrap and Debian's mirror.
set -euo pipefail

release=${1:?usage: scripts/check_package_install.sh RELEASE [DEB]}
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
deb=${2:-$(ls "$root"/build/zavoren_*.deb | head -n 1)}
tree=$(mktemp -d "${TMPDIR:-/tmp}/zavoren-install-$release.XXXXXX")
mirror=${MIRROR:-http://deb.debian.org/debian}

if [ "$(id -u)" -ne 0 ]; then
    echo "check_package_install.sh makes a Debian tree and installs into it: run it as root." >&2
    exit 2
fi
command -v debootstrap >/dev/null 2>&1 || { apt-get update -q && apt-get install -y -q debootstrap; }
mounted=()
cleanup() {
    for ((i = ${#mounted[@]} - 1; i >= 0; i--)); do
        umount -R "${mounted[$i]}" 2>/dev/null || umount -lR "${mounted[$i]}" 2>/dev/null || true
    done
    rm -rf --one-file-system "$tree"
}
trap cleanup EXIT

echo "== making a minimal $release tree"
debootstrap --variant=minbase "$release" "$tree" "$mirror" >/dev/null
for m in proc sys dev; do
    mount --rbind "/$m" "$tree/$m"
    mount --make-rslave "$tree/$m"
    mounted+=("$tree/$m")
done
cp /etc/resolv.conf "$tree/etc/resolv.conf"
cp "$deb" "$tree/root/zavoren.deb"
cp "$root/tools/tests/data/water-freehand.json" "$tree/root/water.json"

echo "== apt installs $(basename "$deb") on $(cat "$tree/etc/debian_version")"
chroot "$tree" /usr/bin/env -i HOME=/root PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 \
    DEBIAN_FRONTEND=noninteractive /bin/bash -c '
set -euo pipefail
apt-get update -q > /dev/null
apt-get install -y -q --no-install-recommends /root/zavoren.deb > /root/apt.log || { tail -20 /root/apt.log; exit 1; }
found=$(zavoren-db find --db /usr/share/zavoren/database --ink /root/water.json | head -n 1)
echo "first found for 水 written: $found"
[ "${found%%$(printf "\t")*}" = 43 ]
zavoren-sheet --db /usr/share/zavoren/database --chars 43 --out /root/sheet.pdf > /dev/null 2>&1
[ -s /root/sheet.pdf ]
echo "installed package: finds 水 and writes a sheet"'
