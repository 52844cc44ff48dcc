#!/usr/bin/env bash
# Takes pictures of every kind of document of the sample company: in a browser, in the program's pane and on paper (the first
# two pages), side by side in that order, in docs/pictures/papers. Neither the program nor its tests need the browser.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. setup/common.sh

install_packages setup/packages.txt setup/paper_packages.txt
build release zarim_install zarim_paper
work=$(mktemp -d)
trap 'kill "$server" 2>/dev/null || true; rm -rf "$work"' EXIT
port=$(python3 -c 'import socket; s = socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])')
export ZARIM_DRIVE_C=$work/drive_c QT_QPA_PLATFORM=offscreen
build/release/tools/zarim_install --to "$ZARIM_DRIVE_C" --day 16/03/2026 --web-pictures "http://127.0.0.1:$port/" >/dev/null
/usr/bin/python3 tools/servers/pictureserver.py --company "$ZARIM_DRIVE_C/zarim" --port "$port" >/dev/null 2>&1 </dev/null &
server=$!
mkdir -p "$work/out" docs/pictures/papers
build/release/tools/zarim_paper "$work/out" 2>/dev/null

# The browser takes for Verdana, Tahoma and its own font what the program takes.
{
  printf '<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig><include>/etc/fonts/fonts.conf</include>'
  for font in Verdana Tahoma 'Times New Roman'; do
    printf '<match target="pattern"><test name="family"><string>%s</string></test><edit name="family" mode="assign" binding="strong"><string>DejaVu Sans</string></edit></match>' "$font"
  done
  printf '</fontconfig>'
} >"$work/fonts.conf"
rm -f docs/pictures/papers/*.png
for page in "$work"/out/*.html; do
  name=$(basename "$page" .html)
  FONTCONFIG_FILE=$work/fonts.conf timeout 120 chromium --headless --no-sandbox --disable-gpu --disable-background-networking \
    --disable-component-update --disable-sync --hide-scrollbars --user-data-dir="$work/browser" --window-size=840,1600 \
    --screenshot="$work/$name-browser.png" "file://$page" >/dev/null 2>&1
  pdftoppm -r 96 -l 2 -png "$work/out/$name.pdf" "$work/$name-paper"
  convert "$work/$name"-paper*.png -append "$work/$name-paper.png"
  convert "$work/$name-browser.png" "$work/out/$name.png" "$work/$name-paper.png" -crop 840x1600+0+0 +repage \
    -bordercolor gray -border 1 -background white +append -resize 45% "$work/$name-side.png"
  pngquant --strip --force --output "docs/pictures/papers/$name.png" 32 "$work/$name-side.png"
done
printf 'Pictures: docs/pictures/papers\n'
