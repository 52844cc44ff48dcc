#!/usr/bin/env bash
# Takes all pictures of the manual and the README anew: those of the screens by sample/roads/manual.road, those of the
# PDF by documents.road. They are kept with a palette of 256 colours.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. setup/common.sh

install_packages setup/packages.txt setup/picture_packages.txt
# take ROAD FOLDER PICTURES...
take() {
  local road=$1 folder=$2
  shift 2
  ./run.sh --road "sample/roads/$road" >"$state/log/pictures.log" || { cat "$state/log/pictures.log" >&2; fail "$road was not walked."; }
  for picture in "$@"; do pngquant --strip --force --output "$folder/$(basename "$picture")" 256 ".run/pictures/$picture"; done
}
rm -f docs/manual/pictures/*.png docs/pictures/*.png
take manual.road docs/manual/pictures $(sed -n 's/^screenshot \(.*\)/\1.png/p' sample/roads/manual.road)
take documents.road docs/pictures pdf_first_page.png pdf_second_page.png
printf 'Pictures: docs/manual/pictures, docs/pictures\n'
