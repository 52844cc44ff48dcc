#!/usr/bin/env bash
# Takes all pictures of the manual, the README and docs/keys.md anew: those of the screens by sample/roads/manual.road, those of
# the PDF by documents.road, those of a display of 1366 by 768 at 150% by manual.road and, of screens that it doesn't open, by
# the test that looks whether they fit. They are kept with a palette of 256 colours.
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
rm -f docs/manual/pictures/*.png docs/pictures/*.png docs/pictures/150/*.png
screens=$(sed -n 's/^screenshot \(.*\)/\1.png/p' sample/roads/manual.road)
take manual.road docs/manual/pictures $screens
take documents.road docs/pictures pdf_first_page.png pdf_second_page.png
take pdf_pane.road docs/pictures pdf_fitted.png pdf_larger.png pdf_smaller.png
export QT_SCALE_FACTOR=1.5
take manual.road docs/pictures/150 $screens
build release test_roads
ZARIM_FORM_PICTURES=$state/pictures build/release/tests/test_roads --gtest_filter='*FormsFit*Plain' >"$state/log/pictures.log"
for form in frmBROWSE_CONDPG frmBROWSE_PRODUTO frmBROWSE_Prototipo frmComposicaoProduto frmImagem frmImprimePropCmrcTL; do
  pngquant --strip --force --output "docs/pictures/150/$form.png" 256 "$state/pictures/$form.png"
done
printf 'Pictures: docs/manual/pictures, docs/pictures\n'
