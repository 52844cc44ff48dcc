#!/usr/bin/env bash
# Makes the Debian package: installs what is missing, builds, packs, and looks at it with lintian.
#   ./package.sh            writes build/package/zarim_VERSION_ARCHITECTURE.deb and says so
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. setup/common.sh

install_packages setup/packages.txt setup/package_packages.txt
build release zarim_package_files
rm -rf build/package
mkdir -p build/package
(cd build/release && cpack -G DEB -B ../package) >"$state/log/package.log" 2>&1 ||
  { tail -n 20 "$state/log/package.log" >&2; fail "Packing failed; see $state/log/package.log."; }
rm -rf build/package/_CPack_Packages
package=$(ls "$PWD"/build/package/*.deb)
lintian --allow-root --fail-on error "$package" >"$state/log/lintian.log" 2>&1 || {
  grep '^E:' "$state/log/lintian.log" >&2
  fail "lintian finds errors in $package."
}
printf 'Package: %s\n' "$package"
