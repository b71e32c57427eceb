#!/usr/bin/env bash
# Installs a package of Tavrin on a fresh Debian 12 and starts what is in it: packaging/try_package.sh PACKAGE [FOLDER]
# FOLDER keeps the fresh system for the next time. Wants root, debootstrap and a Debian mirror (MIRROR names another).
set -euo pipefail

[ $# -ge 1 ] && [ -f "$1" ] || { echo "Usage: $0 PACKAGE [FOLDER]" >&2; exit 2; }
package=$1
fresh=${2:-$(mktemp -d)}
mirror=${MIRROR:-}
system=$fresh.tried

[ -e "$fresh/etc/debian_version" ] || debootstrap --variant=minbase bookworm "$fresh" ${mirror:+"$mirror"}
rm -rf "$system"
cp -a "$fresh" "$system"
trap 'umount "$system/proc" "$system/dev" 2>/dev/null || true; rm -rf "$system"' EXIT
mount -t proc proc "$system/proc"
mount --bind /dev "$system/dev"
cp /etc/resolv.conf "$system/etc/"
cp "$package" "$system/tavrin.deb"

inside() { env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root LANG=C.UTF-8 DEBIAN_FRONTEND=noninteractive chroot "$system" "$@"; }

inside apt-get -q update
inside apt-get -q install -y --no-install-recommends /tavrin.deb
inside bash -e -c '
    cd /tmp
    tavrin-cli --version
    tavrin --version
    examples=/usr/share/doc/tavrin/examples
    tavrin-cli render --foreground $examples/portrait.jpg --background $examples/background.jpg --out sample.jpg \
        --inches 8x10 --dpi 300 --texture canvas --frame oval --frame-fill walnut'
inside apt-get -q install -y --no-install-recommends xvfb xauth x11-utils
inside bash -c '
    cd /tmp
    xvfb-run -a bash -c "tavrin >window.log 2>&1 & window=\$!; sleep 8; xwininfo -root -tree | grep -i tavrin; kill \$window"
    cat window.log' | tee "$system/window.txt"
grep -q '"Tavrin\|tavrin"' "$system/window.txt"
inside apt-get -q remove -y tavrin
[ ! -e "$system/usr/bin/tavrin" ]
echo "The package installs, renders, opens its window and goes again."
