#!/usr/bin/env bash
# Proves the package in a bare Debian 12 of its own: installs it, starts the program there on a virtual display by the
# launcher, walks from a stored quote to its document in the viewer with real keys, sets a company up on a server by the
# very commands of docs/setting_up.md, stores a quote there as an ordinary user, has zarim --check name fault after fault,
# changes the configuration, upgrades, starts the program on what was kept, and removes the package without leftovers. Says
# how long each step took.
# Wants root. The bare system and a picture of the viewer stay in build/prove.
#   packaging/prove.sh [PACKAGE.deb]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. setup/common.sh

[ "$(id -u)" = 0 ] || fail "packaging/prove.sh wants root: it makes a Debian of its own and enters it."
install_packages setup/packages.txt setup/package_packages.txt
package=${1:-}
[ -n "$package" ] || { ./package.sh >/dev/null && package=$(ls build/deb/zarim_*.deb); }
[ -f "$package" ] || fail "There is no package $package."
build release zarim_testserver zarim_fill

work=$PWD/build/prove root=$PWD/build/prove/root log=$PWD/.run/log/prove.log
server='' mail=''
leave() {
  for one in $server $mail; do kill "$one" 2>/dev/null || true; done
  for place in dev/shm proc; do if mountpoint -q "$root/$place"; then umount "$root/$place"; fi; done
}
trap leave EXIT
leave
rm -rf "$work"
mkdir -p "$work"
: >"$log"
entered() { exec chroot "$root" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 HOME=/root DEBIAN_FRONTEND=noninteractive "$@"; }
inside() { (entered "$@"); }
quietly() { "$@" >>"$log" 2>&1 </dev/null || { tail -n 20 "$log" >&2; fail "Failed: $*; all of it in $log."; }; }
step() { printf '%4s s  %s\n' "$SECONDS" "$1"; }
packages() { inside dpkg-query -W -f '${db:Status-Abbrev} ${Package}\n' | sort; }
# All that a package may put anywhere, but for the logs, caches and lists of the package manager itself.
files() { (cd "$root" && find etc usr opt srv var -path var/cache -prune -o -path var/log -prune -o -path var/lib/apt -prune -o -print) | sort; }
entry() { inside odbcinst -q -d -n "SQL Server" 2>>"$log" || true; }
# same WHAT BEFORE AFTER: two lists that must be equal.
same() { diff "$2" "$3" >"$work/differs" || { cat "$work/differs" >&2; fail "Not as before: $1."; }; }

step "A bare Debian"
read -r site release < <(apt-get indextargets --format '$(SITE) $(RELEASE)' 'Created-By: Packages' | head -n 1)
quietly debootstrap --variant=minbase "$release" "$root" "$site"
cp -r /etc/apt/sources.list.d "$root/etc/apt/"
find "$root/etc/apt/sources.list.d" -type f ! -name 'debian.*' -delete
# It is thrown away, so nothing waits for the disk.
printf 'force-unsafe-io\n' >"$root/etc/dpkg/dpkg.cfg.d/quick"
mount -t proc proc "$root/proc"
mkdir -p "$root/dev/shm"
mount -t tmpfs shm "$root/dev/shm"
quietly inside apt-get update
quietly inside apt-get install -y --no-install-recommends xvfb openbox xdotool imagemagick procps python3-aiosmtpd
quietly inside useradd --create-home maria
quietly inside groupadd --system zarim
packages >"$work/packages"
files >"$work/files"

step "The package"
cp "$package" "$root/root/zarim.deb"
quietly inside apt-get install -y --no-install-recommends /root/zarim.deb
entry | grep -q 'registered by zarim' || fail "The driver [SQL Server] isn't registered."

step "A quote, from the launcher to its document"
cp packaging/prove_walk.sh "$root/root/walk.sh"
quietly inside timeout 150 bash /root/walk.sh document
cp "$root/root/viewer.png" "$work/viewer.png"

step "A company is set up on a server as docs/setting_up.md says, by its own commands"
mkdir "$root/root/steps"
awk '/^```sh/ { block++; within = 1; next } /^```/ { within = 0 } within { print >(folder "/" block) }' \
  folder="$root/root/steps" "$root/usr/share/doc/zarim/docs/setting_up.md"
[ "$(ls "$root/root/steps" | wc -l)" = 5 ] || fail "docs/setting_up.md has other steps than this proof knows."
cp build/release/tools/zarim_testserver build/release/tools/zarim_fill packaging/prove_faults.sh "$root/root/"
entered /root/zarim_testserver --log /root/statements --refuse-in /root/refused >"$work/port" 2>>"$log" &
server=$!
entered python3 /usr/libexec/zarim/mailcatcher.py --folder /root/caught --port 0 >"$work/mail" 2>>"$log" &
mail=$!
for _ in $(seq 100); do [ -s "$work/port" ] && [ -s "$work/mail" ] && break; sleep 0.1; done
# What the page has its reader fill in.
cat >"$root/root/steps/1" <<END
package=/root/zarim.deb
server='127.0.0.1;port=$(cut -d " " -f 1 "$work/port")' database=zarim login=vendas password=Segredo1
pictures=/root/.local/share/zarim/drive_c/zarim/imagens web=http://127.0.0.1:9/ salesperson=maria
END
steps() { quietly inside bash -ec "$(for number in "$@"; do cat "$root/root/steps/$number"; done)"; }
steps 1 2 3 4
quietly inside /root/zarim_fill --company /etc/zarim/drive_c --database zarim \
  --mail-server "$(head -n 1 "$work/mail" | cut -d ' ' -f 3)"
steps 1 5
tail -n 1 "$log" | grep -q 'Tudo em ordem' || fail "zarim --check is not content; see $log."

step "An ordinary user stores the first quote there; the menu entry says who starts the program"
quietly inside timeout 90 bash /root/walk.sh first
grep -qi '^insert into prop_cmrc ' "$root/root/statements" || fail "No quote was stored."
tail -n 40 "$root/root/statements" | grep -q COMMIT || fail "The quote was not committed."

step "zarim --check names each fault"
quietly inside bash /root/prove_faults.sh "$mail"
kill "$server"
server='' mail=''
rm -rf "$root/etc/zarim/drive_c"

step "A company is set up; an upgrade keeps its configuration, and an entry that was changed"
company=$root/etc/zarim/drive_c/zarim
mkdir -p "$root/etc/zarim/drive_c"
cp -r "$root/root/.local/share/zarim/drive_c/zarim" "$company"
mv "$company/dados/zarim_hist.db" "$company/dados/historico.db"
sed -i 's/zarim_hist/historico/' "$company/config/server.ini"
sed -i 's/\\docs\\/\\documentos\\/' "$company/config/paths.ini"
sed -i 's/^Driver=.*/&.outro/' "$root/etc/odbcinst.ini"
configuration() { (cd "$root" && find etc/zarim etc/odbcinst.ini root/.local/share/zarim -type f -exec sha256sum {} + | sort); }
configuration >"$work/configured"
quietly dpkg-deb -R "$package" "$work/later"
sed -i 's/^Version: .*/&+1/' "$work/later/DEBIAN/control"
quietly dpkg-deb -b "$work/later" "$root/root/later.deb"
quietly inside apt-get install -y --no-install-recommends /root/later.deb
inside dpkg-query -W -f '${Version}\n' zarim | grep -q '+1$' || fail "The later version isn't there."
configuration >"$work/kept"
same "the configuration after an upgrade" "$work/configured" "$work/kept"
quietly inside timeout 60 bash /root/walk.sh configured

step "Removed: the company's folder and the changed entry stay; installed again: the entry is made anew"
configuration >"$work/configured"
quietly inside dpkg --purge zarim
configuration >"$work/kept"
same "the configuration after the removal" "$work/configured" "$work/kept"
rm -r "$root/etc/zarim"
: >"$root/etc/odbcinst.ini"
quietly inside dpkg -i /root/later.deb
entry | grep -q 'registered by zarim' || fail "The driver [SQL Server] isn't registered again."

step "Removed with all that it needed"
quietly inside apt-get purge -y $(comm -13 "$work/packages" <(packages) | sed 's/^ii *//')
[ -z "$(entry)" ] || fail "The driver's entry is still there."
packages >"$work/packages_after"
same "the packages" "$work/packages" "$work/packages_after"
files >"$work/files_after"
same "the files" "$work/files" "$work/files_after"
step "The package installs, runs, upgrades and goes. The viewer: $work/viewer.png"
rm -f "$root"/root/*.deb
