#!/usr/bin/env bash
# Runs inside the bare system: what a user does, with real keys on a virtual display.
#   walk.sh document      from the launcher on the sample company to a document for outside in the viewer
#   walk.sh first         as the user maria, on the company in /etc/zarim: the menu entry's box, then a quote of her own
#   walk.sh configured    starts the history environment of the company in /etc/zarim
set -euo pipefail

export XDG_RUNTIME_DIR=/root/runtime
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
trap 'kill $(jobs -p) 2>/dev/null || true' EXIT
trap 'printf "Line %s failed.\n" "$LINENO" >&2' ERR
fail() {
  import -window root /root/failed.png || true
  printf '%s\n' "$*" >&2
  exit 1
}
# A display whose number nobody has, outside of this system either.
rm -f /root/display
Xvfb -ac -displayfd 3 -screen 0 1366x768x24 3>/root/display >/dev/null 2>&1 &
for _ in $(seq 100); do [ -s /root/display ] && break; sleep 0.1; done
DISPLAY=:$(cat /root/display)
export DISPLAY
openbox >/dev/null 2>&1 &
sleep 2  # it gives the focus to windows that come after it alone

# window TITLE: waits until a window that is titled so is the active one.
window() {
  for _ in $(seq 600); do
    xdotool getactivewindow getwindowname 2>/dev/null | grep -qF "$1" && return
    sleep 0.1
  done
  fail "No window $1; active: $(xdotool getactivewindow getwindowname 2>&1)"
}
keys() { xdotool key --delay 80 "$@"; }

document() {
  zarim-inicio &
  launcher=$!
  window 'Zarim 1.2 (PRD)'
  servers=$(pgrep -P "$launcher" -f 'mailcatcher.py|pictureserver.py')
  [ "$(wc -w <<<"$servers")" = 2 ] || fail "The servers of mail and pictures aren't both running."
  xdotool type --delay 80 3
  keys ctrl+f
  sleep 1
  keys ctrl+p
  window 'Imprime'
  rm -f /root/.local/share/zarim/drive_c/zarim/docs/*
  keys alt+e alt+v
  file=/root/.local/share/zarim/drive_c/zarim/docs/orca_cliente_000003.html
  for _ in $(seq 300); do grep -qai '</html>' "$file" 2>/dev/null && break; sleep 0.1; done
  grep -qai 'MARIA EDUARDA LACERDA' "$file" || fail "No document $file."
  logo=$(grep -aom1 'http://127.0.0.1:[^"'"'"' >]*' "$file" | head -n 1)
  python3 -c 'import sys, urllib.request; urllib.request.urlopen(sys.argv[1])' "$logo" || fail "The picture $logo isn't served."
  sleep 6
  import -window root /root/viewer.png
  keys Escape
  window 'Imprime'
  keys Escape
  window 'Zarim 1.2 (PRD)'
  keys alt+F4
  wait "$launcher" || fail "The program ended with $?."
  for _ in $(seq 20); do kill -0 $servers 2>/dev/null || return 0; sleep 0.1; done
  fail "A server outlives the program: $servers"
}

maria() { runuser -u maria -- env HOME=/home/maria XDG_RUNTIME_DIR=/tmp/maria DISPLAY="$DISPLAY" "$@"; }

first() {
  install -d -o maria -m 700 /tmp/maria
  maria zarim-inicio &
  launcher=$!
  window 'Zarim 1.2'
  keys Return
  wait "$launcher" || fail "The menu entry ended with $?."
  maria zarim '7^0^PRD^' &
  launcher=$!
  window 'Zarim 1.2 (PRD)'
  xdotool type --delay 80 3
  keys ctrl+f
  sleep 2
  keys ctrl+n
  sleep 2
  keys ctrl+s
  sleep 4
  import -window root /root/first.png
  keys Return
  sleep 1
  keys alt+F4
  wait "$launcher" || fail "The program ended with $?."
}

configured() {
  zarim-inicio '7^0^HIST^' &
  launcher=$!
  window 'Zarim 1.2 (HIST)'
  keys alt+F4
  wait "$launcher" || fail "The program ended with $?."
}

"$1"
