#!/usr/bin/env bash
# Proves the package: installs it in a bare Debian 12, starts the program there on a virtual display by the launcher,
# walks from a stored quote to its document in the viewer with real keys, and removes the package without leftovers.
# Wants root. The bare system and a picture of the viewer stay in build/prove.
#   packaging/prove.sh [PACKAGE.deb]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. setup/common.sh

[ "$(id -u)" = 0 ] || fail "packaging/prove.sh wants root: it makes a Debian of its own and enters it."
install_packages setup/packages.txt setup/package_packages.txt
package=${1:-}
[ -n "$package" ] || { ./package.sh >/dev/null && package=$(ls build/package/*.deb); }
[ -f "$package" ] || fail "There is no package $package."

work=$PWD/build/prove root=$PWD/build/prove/root log=$PWD/.run/log/prove.log
leave() { for place in dev/shm proc; do if mountpoint -q "$root/$place"; then umount "$root/$place"; fi; done; }
trap leave EXIT
leave
rm -rf "$work"
mkdir -p "$work"
: >"$log"
inside() { chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"; }
step() { printf '%s\n' "$1"; }
quietly() { "$@" >>"$log" 2>&1 </dev/null || { tail -n 20 "$log" >&2; fail "Failed: $*; all of it in $log."; }; }

step "A bare Debian"
read -r site release < <(apt-get indextargets --format '$(SITE) $(RELEASE)' 'Created-By: Packages' | head -n 1)
quietly debootstrap --variant=minbase "$release" "$root" "$site"
cp -r /etc/apt/sources.list.d "$root/etc/apt/"
find "$root/etc/apt/sources.list.d" -type f ! -name 'debian.*' -delete
mount -t proc proc "$root/proc"
mkdir -p "$root/dev/shm"
mount -t tmpfs shm "$root/dev/shm"
quietly inside apt-get update
quietly inside apt-get install -y --no-install-recommends xvfb openbox xdotool imagemagick procps python3-aiosmtpd
inside dpkg-query -W -f '${Package}\n' | sort >"$work/before"

step "The package"
cp "$package" "$root/root/zarim.deb"
quietly inside apt-get install -y --no-install-recommends /root/zarim.deb
inside odbcinst -q -d -n "SQL Server" >>"$log" || fail "The driver [SQL Server] isn't registered."

step "A quote, from the launcher to its document"
cp packaging/prove_walk.sh "$root/root/walk.sh"
quietly inside HOME=/root timeout 150 bash /root/walk.sh
cp "$root/root/viewer.png" "$work/viewer.png"

step "Removed again"
quietly inside apt-get purge -y zarim
if inside odbcinst -q -d -n "SQL Server" >>"$log" 2>&1; then fail "The driver's entry is still there."; fi
left=$(find "$root/etc" "$root/usr" "$root/var/lib/dpkg/info" -iname '*zarim*')
[ -z "$left" ] || fail "Left over: $left"
printf 'The package installs, runs and goes. The viewer: %s\n' "$work/viewer.png"
rm -rf "$root/root/zarim.deb"
