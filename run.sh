#!/usr/bin/env bash
# Installs what is missing, builds, makes the sample company and starts the program.
#   ./run.sh                       the program; without a display, the guided road
#   ./run.sh --road FILE [--server DATABASE]
#                                  a road against a fresh copy of the sample company; with --server on the connection
#                                  that the server.ini named by ZARIM_SERVER_INI holds, its database typed once more
#   ./run.sh --fresh               makes the sample company anew first, and forgets window sizes and column widths
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. setup/common.sh

road='' database='' fresh=''
while [ $# -gt 0 ]; do
  case $1 in
    --road) [ $# -ge 2 ] || fail "--road wants a file: ./run.sh --road FILE"; road=$2; shift ;;
    --server) [ $# -ge 2 ] || fail "--server wants the name of the database."; database=$2; shift ;;
    --fresh) fresh=yes ;;
    -h | --help) sed -n '2,8s/^# \{0,1\}//p' "$0"; exit 0 ;;
    *) fail "Unknown argument: $1 (see ./run.sh --help)" ;;
  esac
  shift
done
[ -z "$road" ] || [ -f "$road" ] || fail "There is no road file $road."
[ -z "$database" ] || [ -n "$road" ] || fail "--server goes with --road FILE."
[ -z "$database" ] || [ -f "${ZARIM_SERVER_INI:-}" ] || fail "--server wants ZARIM_SERVER_INI to name a server.ini (see docs/server.md)."

set_up
build release zarim zarim_install zarim_road ${database:+zarim_fill}

catcher='' pictureserver=''
stop_servers() { for one in $catcher $pictureserver; do kill "$one" 2>/dev/null || true; done; }
trap stop_servers EXIT

# start_catcher FOLDER PORT [LIMIT]: keeps what the program mails as files beside the sample.
start_catcher() {
  mkdir -p "$1"
  : >"$state/log/mail.log"
  /usr/bin/python3 tools/servers/mailcatcher.py --describe --folder "$1" --port "$2" ${3:+--limit "$3"} >"$state/log/mail.log" 2>&1 </dev/null &
  catcher=$!
  for _ in $(seq 100); do
    grep -q 'Mail for' "$state/log/mail.log" && return
    kill -0 "$catcher" 2>/dev/null || break
    sleep 0.1
  done
  cat "$state/log/mail.log" >&2
  printf 'E-mail cannot be sent in this run; everything else works.\n' >&2
}

# start_pictures PORT: serves the picture folders that documents for outside name.
start_pictures() {
  /usr/bin/python3 tools/servers/pictureserver.py --company "$ZARIM_DRIVE_C/zarim" --port "$1" \
    >"$state/log/pictures.log" 2>&1 </dev/null &
  pictureserver=$!
}

free_port() {
  /usr/bin/python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])'
}

if [ -z "$road" ] && { [ -n "${DISPLAY:-}" ] || [ -n "${WAYLAND_DISPLAY:-}" ]; }; then
  # Window sizes and column widths of this desktop user.
  [ -z "$fresh" ] || rm -f "${XDG_CONFIG_HOME:-$HOME/.config}/zarim/telas.ini"
  build/release/tools/zarim_install --to "$state/drive_c" --mail-server 127.0.0.1:2525 \
    --web-pictures http://127.0.0.1:2580/ ${fresh:+--fresh} >"$state/log/install.log"
  export ZARIM_DRIVE_C=$state/drive_c
  start_catcher "$state/mail" 2525
  start_pictures 2580
  build/release/src/zarim '7^0^PRD^'
  exit
fi

pictures=$state/pictures
rm -rf "$pictures" "$state/road"
umask 027
mkdir -p "$pictures" "$state/road/tmp"
export TMPDIR=$state/road/tmp  # nothing stays in the system's, however the road ends
export ZARIM_DRIVE_C=$state/road/drive_c
port=$(free_port)
pictureport=$(free_port)
install=(build/release/tools/zarim_install --to "$ZARIM_DRIVE_C" --day 16/03/2026 --mail-server "127.0.0.1:$port" \
  --web-pictures "http://127.0.0.1:$pictureport/")
"${install[@]}" --fresh >"$state/log/install.log"
if [ -n "$database" ]; then
  cp "$ZARIM_SERVER_INI" "$ZARIM_DRIVE_C/zarim/config/server.ini"
  build/release/tools/zarim_fill --company "$ZARIM_DRIVE_C" --day 16/03/2026 --mail-server "127.0.0.1:$port" \
    --database "$database" --fresh >>"$state/log/install.log"
fi
start_catcher "$state/road/mail" "$port" 400000
start_pictures "$pictureport"
status=0
QT_QPA_PLATFORM=offscreen ZARIM_MAIL_FOLDER=$state/road/mail \
  build/release/tools/zarim_road --pictures "$pictures" "${road:-sample/roads/one_quote.road}" || status=$?
printf 'Pictures: %s\nDocuments: %s\nMail: %s\n' "$pictures" "$ZARIM_DRIVE_C/zarim/docs" "$state/road/mail"
exit "$status"
