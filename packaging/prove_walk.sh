#!/usr/bin/env bash
# Runs inside the bare system: what a user does, with real keys on a virtual display.
set -euo pipefail

export DISPLAY=:77 XDG_RUNTIME_DIR=/root/runtime
mkdir -p -m 700 "$XDG_RUNTIME_DIR"
Xvfb :77 -screen 0 1366x768x24 >/dev/null 2>&1 &
trap 'kill $(jobs -p) 2>/dev/null || true' EXIT
fail() {
  import -window root /root/failed.png || true
  printf '%s\n' "$*" >&2
  exit 1
}
for _ in $(seq 50); do xdotool getdisplaygeometry >/dev/null 2>&1 && break; sleep 0.1; done
openbox >/dev/null 2>&1 &

# window TITLE: waits until a window that is titled so is the active one.
window() {
  for _ in $(seq 300); do
    xdotool getactivewindow getwindowname 2>/dev/null | grep -qF "$1" && return
    sleep 0.1
  done
  fail "No window $1; active: $(xdotool getactivewindow getwindowname 2>&1)"
}
keys() { xdotool key --delay 80 "$@"; }

zarim-inicio &
launcher=$!
window 'Zarim 1.2 (PRD)'
catcher=$(pgrep -P "$launcher" -f mailcatcher.py) || fail "The mail catcher isn't running."
xdotool type --delay 80 3
keys ctrl+f
sleep 1
keys ctrl+p
window 'Imprime'
rm -f /root/.local/share/zarim/drive_c/zarim/docs/*
keys Tab space
document=/root/.local/share/zarim/drive_c/zarim/docs/orca_cliente_000003.html
for _ in $(seq 300); do grep -qai '</html>' "$document" 2>/dev/null && break; sleep 0.1; done
grep -qai 'MARIA EDUARDA LACERDA' "$document" || fail "No document $document."
sleep 6
import -window root /root/viewer.png
keys Escape
window 'Imprime'
keys Escape
window 'Zarim 1.2 (PRD)'
keys alt+F4
wait "$launcher" || fail "The program ended with $?."
sleep 0.5
if kill -0 "$catcher" 2>/dev/null; then fail "The mail catcher outlives the program."; fi
