#!/usr/bin/env bash
# Runs the README's test command on a fresh minimal Debian tree of another release, as a new
# user would: debootstrap makes the tree, the repository's committed state is cloned into it,
# and `bash scripts/setup.sh test` runs there as root with CI=true.
#   scripts/check_release.sh RELEASE [TREE]     (RELEASE: bookworm, trixie, ...; as root)
# TREE (a new folder, made fresh; default: a temporary one) is removed at the end unless KEEP=1.
# Needs debootstrap and the network (Debian's mirror, and npm's registry from inside the tree).
set -euo pipefail

release=${1:?usage: scripts/check_release.sh RELEASE [TREE]}
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
tree=${2:-$(mktemp -d "${TMPDIR:-/tmp}/zavoren-$release.XXXXXX")}
mirror=${MIRROR:-http://deb.debian.org/debian}

if [ "$(id -u)" -ne 0 ]; then
    echo "check_release.sh makes a Debian tree and runs in it: run it as root." >&2
    exit 2
fi
if ! command -v debootstrap >/dev/null 2>&1; then
    apt-get update -q && DEBIAN_FRONTEND=noninteractive apt-get install -y -q debootstrap
fi
if [ -e "$tree" ] && [ -n "$(ls -A "$tree" 2>/dev/null)" ]; then
    echo "$tree is not empty: the tree must be made fresh." >&2
    exit 2
fi

mounted=()
cleanup() {
    for ((i = ${#mounted[@]} - 1; i >= 0; i--)); do
        umount -R "${mounted[$i]}" 2>/dev/null || umount -lR "${mounted[$i]}" 2>/dev/null || true
    done
    if [ "${KEEP:-0}" != 1 ]; then
        rm -rf --one-file-system "$tree"
    fi
}
trap cleanup EXIT

echo "== making a minimal $release tree in $tree"
debootstrap --variant=minbase "$release" "$tree" "$mirror" >/dev/null
for m in proc sys dev; do
    mount --rbind "/$m" "$tree/$m"
    mount --make-rslave "$tree/$m"
    mounted+=("$tree/$m")
done
cp /etc/resolv.conf "$tree/etc/resolv.conf"
# A certificate authority this machine trusts of its own (a proxy's, say) is trusted in the
# tree too, so that npm reaches its registry as it does here.
if [ -d /usr/local/share/ca-certificates ] && [ -n "$(ls -A /usr/local/share/ca-certificates)" ]; then
    mkdir -p "$tree/usr/local/share/ca-certificates"
    cp -r /usr/local/share/ca-certificates/. "$tree/usr/local/share/ca-certificates/"
fi

echo "== cloning $(git -C "$root" rev-parse --short HEAD) into the tree"
git clone --quiet --no-hardlinks "$root" "$tree/root/zavoren"

echo "== bash scripts/setup.sh test, CI=true, on $(cat "$tree/etc/debian_version")"
start=$(date +%s)
chroot "$tree" /usr/bin/env -i HOME=/root PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    LANG=C.UTF-8 CI=true /bin/bash -c 'cd /root/zavoren && bash scripts/setup.sh test'
echo "== passed on $release in $(( $(date +%s) - start )) s"
