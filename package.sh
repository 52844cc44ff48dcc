#!/usr/bin/env bash
# Makes the Debian package: installs what is missing, builds with the distribution's hardening flags, packs, and looks at
# it with lintian. One commit gives one package, byte for byte.
#   ./package.sh            writes zarim_VERSION_ARCHITECTURE.deb, its debug symbols and their checksums to build/deb
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. setup/common.sh

install_packages setup/packages.txt setup/package_packages.txt
# What the build would else take from the clock, the user and the folder.
SOURCE_DATE_EPOCH=$(git log -1 --format=%ct)
export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C.UTF-8
umask 022
export DEB_BUILD_MAINT_OPTIONS=hardening=+all
eval "$(dpkg-buildflags --export=sh)"
# The precompiled headers name the time of a file: a warning, and no part of the program.
CPPFLAGS=${CPPFLAGS//-Wdate-time/}
export CXXFLAGS="$CXXFLAGS $CPPFLAGS -DNDEBUG"
build package zarim_package_files
rm -rf build/deb
mkdir -p build/deb
(cd build/package && cpack -G DEB -B ../deb) >"$state/log/package.log" 2>&1 ||
  { tail -n 20 "$state/log/package.log" >&2; fail "Packing failed; see $state/log/package.log."; }
rm -rf build/deb/_CPack_Packages
package=$(ls "$PWD"/build/deb/zarim_*.deb)
# The sums of the debug symbols' package name the folder that it was made in.
symbols=$(ls build/deb/*.ddeb)
dpkg-deb -R "$symbols" build/deb/symbols
sed -i 's|/.*-dbgsym/||' build/deb/symbols/DEBIAN/md5sums
dpkg-deb --root-owner-group -b build/deb/symbols "${symbols%.ddeb}.deb" >/dev/null
rm -r build/deb/symbols "$symbols"
(cd build/deb && sha256sum -- * >SHA256SUMS)
appstreamcli validate --no-net build/package/packaging/com.example.zarim.metainfo.xml >"$state/log/appstream.log" ||
  { cat "$state/log/appstream.log" >&2; fail "The AppStream data is not valid."; }
lintian --allow-root --fail-on error "$package" >"$state/log/lintian.log" 2>&1 || {
  grep '^E:' "$state/log/lintian.log" >&2
  fail "lintian finds errors in $package."
}
printf 'Package: %s\n' "$package"
