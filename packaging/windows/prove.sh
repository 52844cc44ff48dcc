#!/usr/bin/env bash
# Proves the program for Windows under Wine: test programs, roads with their pictures beside those under Linux, a road on
# the test SQL server by Wine's ODBC, mail with TLS, setup, start from its menu entry, times beside those under Linux,
# upgrade, removal. Ends with a count.
#   packaging/windows/prove.sh        after packaging/windows/build.sh; all that it leaves is in build/windows/proof
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. setup/common.sh

install_packages setup/packages.txt setup/windows_packages.txt
windows=$(cd build/windows && pwd -P)
zarim=$windows/zarim work=$windows/proof
setup=$(ls "$windows"/zarim-*-setup.exe 2>/dev/null | tail -n 1)
[ -n "$setup" ] || fail "Build first: packaging/windows/build.sh"
build release zarim zarim_install zarim_road zarim_testserver zarim_fill
rm -rf "$work"
mkdir -p "$work"/{log,linux,wine,pictures,tmp,roads,fonts}
# Without a display fonts come from one folder; the forms' own and those of the documents.
cp /usr/share/fonts/truetype/{liberation,dejavu}/*.ttf "$work/fonts/"

# What has no form for Windows, or can't be seen under Wine, and why.
sockets="the test SQL server, which knows POSIX's sockets" python="servers in Python"
declare -A no_test=([test_data]=$sockets [test_run]=$sockets [test_mail]=$python [test_messaging]=$python
  [test_sample]="shell commands" [test_faults]="POSIX's limits on files, ends by signals"
  [test_files: special_files, kept_file]="POSIX's limits on files, pipes, rights" [test_quote: draft]="POSIX's limits on files"
  [test_documents: requests]=$sockets [test_documents: viewer]="a forked process, a mounted disk"
  [test_documents: word]="this system's readers of PDF and RTF" [test_help: check]=$sockets
  [test_roads: road_tool]="ends by signals" [test_roads: sample_roads]=$sockets)
# Cases of programs that run, and what they want.
declare -A no_case=([test_web]='*Pdf*:Paper.*:Spooler.*:*LinksOpen*' [test_office]='*.Pdf*:*.AnEmptyLine*')
declare -A no_case_for=([test_web]="Qt PDF, readers of PDF, a print server, links of files" [test_office]="readers of PDF")
declare -A no_road=([pdf_pane]="looks at a PDF in the pane, for which Qt PDF isn't built")
# for_windows ROAD: without the looks at a PDF in the pane.
for_windows() { awk '/^click cmdPDF/ { pdf = 1; print; next } pdf && /^expect page/ { next } { pdf = 0; print }' "sample/roads/$1.road"; }
declare -A done_well=() failed=()
shortened=()
step() { printf '%4s s  %s\n' "$SECONDS" "$1"; }
good() { done_well[$1]=$((${done_well[$1]:-0} + 1)); }
bad() { failed[$1]+=" $2"; printf '        %s: %s failed; see %s\n' "$1" "$2" "$work/log"; }
# check KIND NAME COMMAND...: counts it; what it writes goes into a log.
check() {
  local kind=$1 name=$2
  shift 2
  if "$@" >"$work/log/$kind-$name.log" 2>&1 </dev/null; then good "$kind"; else bad "$kind" "$name"; fi
}

# A Windows of its own, on a display of its own.
export WINEPREFIX=$work/prefix WINEDEBUG=-all WINEDLLOVERRIDES='winemenubuilder.exe,winedbg.exe,mscoree,mshtml=' LC_ALL=C.UTF-8
wine=/usr/lib/wine/wine64
servers=()
leave() { for one in "${servers[@]}"; do kill "$one" 2>/dev/null || true; done; timeout 20 /usr/lib/wine/wineserver -k || true; }
trap leave EXIT
# wine_for SECONDS COMMAND...
wine_for() { local seconds=$1; shift; timeout -k 5 "$seconds" "$wine" "$@"; }
Xvfb -displayfd 3 -screen 0 1024x768x24 3>"$work/display" >/dev/null 2>&1 &
servers+=($!)
for _ in $(seq 100); do [ -s "$work/display" ] && break; sleep 0.1; done
DISPLAY=:$(cat "$work/display")
export DISPLAY
openbox >/dev/null 2>&1 &
servers+=($!)

step "A fresh Windows"
wine_for 120 wineboot -i >"$work/log/wineboot.log" 2>&1 || fail "Wine doesn't start; see $work/log/wineboot.log."
set_value() { wine_for 30 reg add "HKCU\\$1" /v "$2" /d "$3" /f >>"$work/log/wineboot.log" 2>&1; }
# As this machine gives other programs the fonts that Windows has.
for font in "Times New Roman=Liberation Serif" "Arial=Liberation Sans" "Courier New=Liberation Mono" "Verdana=DejaVu Sans"; do
  set_value 'Software\Wine\Fonts\Replacements' "${font%%=*}" "${font##*=}"
done
# Test programs put folders in the place of drive C: what is temporary must not lie on it.
for variable in TEMP TMP; do set_value Environment "$variable" "Z:${work//\//\\}\\tmp"; done
timeout 20 /usr/lib/wine/wineserver -w || true
gcc=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
winpthread=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libwinpthread-1.dll)")
# What the setup brings lies beside the program; what is only built finds its libraries by this, and fonts by a name that
# Wine takes its own word from.
built() { WINEPATH="Z:$windows/qt-build/bin;Z:$windows/root/bin;Z:$gcc;Z:$winpthread" \
  WINEQT_QPA_FONTDIR="Z:$work/fonts" "$@"; }

step "Test programs"
for program in "$zarim"/tests/test_*.exe; do
  name=$(basename "$program" .exe)
  check tests "$name" built wine_for 240 "$program" --gtest_brief=1 --gtest_filter="-${no_case[$name]:-}"
  cases=$(sed -n 's/^\[  PASSED  \] \([0-9]*\) .*/\1/p' "$work/log/tests-$name.log" | tail -n 1)
  done_well[cases]=$((${done_well[cases]:-0} + ${cases:-0}))
done

step "Roads"
start_server() {  # start_server VARIABLE FIELD COMMAND...: a word of its first line goes into the variable
  local variable=$1 field=$2 said=$work/log/server-$1
  shift 2
  "$@" >"$said" 2>&1 </dev/null &
  servers+=($!)
  for _ in $(seq 100); do [ -s "$said" ] && break; sleep 0.1; done
  printf -v "$variable" '%s' "$(head -n 1 "$said" | cut -d' ' -f"$field")"
}
start_server mail 3 /usr/bin/python3 tools/servers/mailcatcher.py --describe --folder "$work/mail" --port 0 --limit 400000
mkdir -p "$work/company/zarim"
start_server pictures 3 /usr/bin/python3 tools/servers/pictureserver.py --company "$work/company/zarim" --port 0
company=(--day 16/03/2026 --mail-server "$mail" --web-pictures "$pictures")
check installer sample built wine_for 120 "$zarim/tools/zarim_install.exe" --to "Z:$work/company" --fresh "${company[@]}"
# walk SYSTEM ROAD FILE COMMAND...: a road on a fresh copy of the sample
walk() {
  local system=$1 road=$2 file=$3
  shift 3
  rm -rf "$work/drive" "$work/mail"/*
  cp -r "$work/company" "$work/drive"
  local begun=$EPOCHREALTIME
  "$@" --pictures "$work/$system" "$file" || return 1
  awk -v road="$road" -v a="$begun" -v b="$EPOCHREALTIME" 'BEGIN { printf "%s %.1f\n", road, b - a }' >>"$work/$system.times"
}
on_wine() {
  ZARIM_DRIVE_C="Z:$work/drive" ZARIM_MAIL_FOLDER="Z:$work/mail" built wine_for 200 "$zarim/tools/zarim_road.exe" "$@"
}
on_linux() { TMPDIR=$work/tmp ZARIM_DRIVE_C=$work/drive ZARIM_MAIL_FOLDER=$work/mail timeout -k 5 200 build/release/tools/zarim_road "$@"; }
for file in sample/roads/*.road; do
  road=$(basename "$file" .road)
  if [ -n "${no_road[$road]:-}" ]; then continue; fi
  for_windows "$road" >"$work/roads/$road.road"
  cmp -s "$file" "$work/roads/$road.road" || shortened+=("$road")
  check roads "$road" walk wine "$road" "$work/roads/$road.road" on_wine
  walk linux "$road" "$file" on_linux >"$work/log/linux-$road.log" 2>&1 </dev/null || true
done
for picture in "$work"/wine/*.png; do
  name=$(basename "$picture")
  if [ -f "$work/linux/$name" ]; then convert "$work/linux/$name" "$picture" -bordercolor gray -border 1 +append "$work/pictures/$name"; fi
done

step "The first complete road on the SQL server, by Wine's ODBC"
start_server port 1 build/release/tools/zarim_testserver
on_server() {
  rm -rf "$work/drive" "$work/mail"/*
  cp -r "$work/company" "$work/drive"
  printf '127.0.0.1^zarim^vendas^Segredo1^MS-SQL^^False^\r\n%.0s' 1 2 3 >"$work/drive/zarim/config/server.ini"
  export TDSPORT=$port TDSVER=7.4
  build/release/tools/zarim_fill --company "$work/drive" "${company[@]}" --database zarim --fresh &&
    on_wine --pictures "$work/wine" "$work/roads/one_quote.road"
}
register_driver
check server one_quote on_server

step "A mail by TLS"
by_tls() {
  mkdir -p "$work/tls"
  openssl req -x509 -newkey rsa:2048 -nodes -days 2 -subj /CN=127.0.0.1 -addext subjectAltName=IP:127.0.0.1 \
    -keyout "$work/tls/key.pem" -out "$work/tls/certificate.pem" || return 1
  local tls
  start_server tls 1 /usr/bin/python3 tests/support/smtp_server.py --tls offered "$work/tls"
  sed "s/PORT/$tls/" >"$work/roads/tls.road" <<'END'
clock "16/03/2026 09:00"
start 7^0^PRD^
type txtCodigo "4"
click cmdPesquisar_PropCmrc
click cmdImprimir
click cmdImprimirPedido
check Option2
click cmdEnviarEmail
type txtServer "127.0.0.1:PORT"
answer "OK"
click cmdEnviarEmail
expect box "Mensagem Enviada!"
END
  walk wine tls "$work/roads/tls.road" on_wine && grep -q '"tls": true' "$work/tls/1.json"
}
check mail tls by_tls

step "Setup, start from the menu entry, upgrade, removal"
windows_c=$WINEPREFIX/drive_c program="$WINEPREFIX/drive_c/Program Files/Zarim"
entry="$windows_c/ProgramData/Microsoft/Windows/Start Menu/Programs/Orçamentos de Venda.lnk"
# What can't be written is told, and nothing is called installed.
tells() {
  mkdir -p "$program/bin/Qt6Core.dll"
  ! wine_for 120 "$setup" /S && [ ! -e "$entry" ] && rmdir "$program/bin/Qt6Core.dll"
}
check setup tells tells
check setup installs wine_for 120 "$setup" /S
installed() { [ -f "$program/bin/zarim.exe" ] && [ -f "$entry" ] && [ -d "$windows_c/zarim/config" ] && [ -f "$program/manual/index.html" ]; }
check setup files installed
window() { for _ in $(seq 300); do xdotool search --name "$1" >/dev/null 2>&1 && return; sleep 0.2; done; return 1; }
from_entry() {
  set_value 'Volatile Environment' LOCALAPPDATA 'C:\users\João'  # until all of that Windows has ended
  wine_for 60 start 'C:\ProgramData\Microsoft\Windows\Start Menu\Programs\Orçamentos de Venda.lnk' || return 1
  window 'Zarim 1.2' && sleep 3 && import -window root "$work/started.png" || return 1
  [ -f "$windows_c/users/João/zarim/drive_c/zarim/config/server_aplic.ini" ]
}
check setup starts from_entry
refused() { ! wine_for 120 "$setup" /S && [ -f "$program/bin/zarim.exe" ]; }
check setup refuses_while_running refused
ended() {
  xdotool search --name 'Zarim 1.2' windowactivate --sync
  xdotool key alt+F4  # to no window by its name: one that goes between two keys leaves the first one down
  for _ in $(seq 50); do xdotool search --name 'Zarim 1.2' >/dev/null 2>&1 || return 0; sleep 0.2; done
  return 1
}
check setup ends ended

# What a user waits for, by turns: from the command to the program's active window, from the key to the document's.
active() {
  for _ in $(seq 3000); do xdotool getactivewindow getwindowname 2>/dev/null | grep -qF "$1" && return; sleep 0.02; done
  return 1
}
# timed SYSTEM WHAT TITLE COMMAND...: seconds until a window that is titled so is active
timed() {
  local begun=$EPOCHREALTIME file=$work/$1.$2 title=$3
  shift 3
  "$@" &
  active "$title" || return 1
  awk -v a="$begun" -v b="$EPOCHREALTIME" 'BEGIN { printf "%.2f\n", b - a }' >>"$file"
}
one_start() {  # one_start SYSTEM COMMAND...
  local system=$1
  shift
  timed "$system" start 'Zarim 1.2 (PRD)' "$@" || return 1
  sleep 2
  xdotool search --name 'Zarim 1.2' windowactivate --sync
  sleep 1
  xdotool type --delay 80 3
  xdotool key ctrl+f
  sleep 2
  xdotool key ctrl+p
  active 'Imprime' || return 1
  sleep 1
  timed "$system" document 'Impressão' xdotool key alt+v || return 1
  sleep 2
  import -window root "$work/$system-document.png"
  xdotool key Escape
  active 'Imprime' && xdotool key Escape && active 'Zarim 1.2 (PRD)' && xdotool key alt+F4
  for _ in $(seq 100); do xdotool search --name 'Zarim 1.2' >/dev/null 2>&1 || return 0; sleep 0.1; done
  return 1
}
both_times() {
  rm -rf "$work/drive"
  cp -r "$work/company" "$work/drive"
  # A Windows that is up already.
  sleep 200 | wine_for 200 cmd &
  servers+=($!)
  sleep 3
  for _ in 1 2 3; do
    ZARIM_DRIVE_C="Z:$work/drive" one_start wine wine_for 100 "$program/bin/zarim.exe" '7^0^PRD^' &&
      XDG_DATA_HOME=$work/tmp/data ZARIM_DRIVE_C=$work/drive one_start linux timeout 100 build/release/src/zarim '7^0^PRD^' || return 1
  done
}
middle() { sort -n "$work/$1" | sed -n 2p; }
check setup times both_times
company_files() { (cd "$windows_c/zarim" && find . -type f -exec sha256sum {} + | sort); }
printf 'x' >"$windows_c/zarim/config/server.ini"
upgraded() {
  company_files >"$work/before"
  printf 'old' >"$program/bin/old.dll"
  wine_for 120 "$setup" /S && installed && company_files | diff "$work/before" -
}
check setup upgrades upgraded
removed() {
  wine_for 120 "$program/desinstalar.exe" /S
  for _ in $(seq 100); do [ -e "$program/bin/zarim.exe" ] || break; sleep 0.2; done
  rm -f "$program/bin/old.dll"
  sleep 2
  [ ! -e "$entry" ] && [ ! -e "$program/bin/zarim.exe" ] && company_files | diff "$work/before" -
}
check setup goes removed

step "Counted"
for kind in tests cases installer roads server mail setup; do
  printf '        %-10s %s passed%s\n' "$kind" "${done_well[$kind]:-0}" "${failed[$kind]:+, failed:${failed[$kind]}}"
done
for name in "${!no_test[@]}"; do printf '        not run: %s (wants %s)\n' "$name" "${no_test[$name]}"; done | sort
for name in "${!no_case[@]}"; do printf '        not run: %s of %s (wants %s)\n' "${no_case[$name]}" "$name" "${no_case_for[$name]}"; done
printf '        walked without their look at a PDF in the pane: %s\n' "${shortened[*]}"
for name in "${!no_road[@]}"; do printf '        not walked: %s (%s)\n' "$name" "${no_road[$name]}"; done
for what in start document; do
  printf '        %s: %s s under Wine, %s s under Linux\n' "$what" "$(middle "wine.$what")" "$(middle "linux.$what")"
done
[ "${#failed[@]}" = 0 ] || fail "Not all is well."
