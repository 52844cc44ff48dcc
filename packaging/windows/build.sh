#!/usr/bin/env bash
# Makes the program for Windows on Debian 12: installs what is missing, builds the libraries once from Debian's source
# packages (kept in build/windows), cross-builds the program, the sample installer, the roads' program and the tests, and
# packs them. The first run builds Qt, which takes long.
#   packaging/windows/build.sh      writes build/windows/zarim-VERSION-setup.exe and zarim-VERSION-windows.zip
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
. setup/common.sh

mkdir -p build/windows/{sources,apt/lists/partial,apt/cache}
# Where the folder is a link to another place the toolkit's tools want that place.
work=$(cd build/windows && pwd -P) here=$PWD/packaging/windows log=$PWD/.run/log/windows.log
cross=x86_64-w64-mingw32
: >"$log"
step() { printf '%4s s  %s\n' "$SECONDS" "$1"; }
broken() { tail -n 20 "$log" >&2; fail "Failed: $1; all of it in $log."; }
quietly() { "$@" >>"$log" 2>&1 </dev/null || broken "$1"; }
# building FOLDER [--target NAME...]: says at each tenth how far it is.
building() {
  NINJA_STATUS='[%p] ' cmake --build "$@" 2>&1 </dev/null | tee -a "$log" |
    awk '/^\[ *[0-9]+%\] / { tenth = int(substr($0, 2, 3) / 10) } tenth > said { said = tenth; printf "        %d%%\n", said * 10; fflush() }' ||
    broken "cmake --build $1"
}

install_packages setup/packages.txt setup/windows_packages.txt
host=/usr/lib/$(gcc -print-multiarch)/cmake
launcher=$(command -v ccache || true)
configure=(-G Ninja "-DCMAKE_TOOLCHAIN_FILE=$here/toolchain.cmake" "-DCMAKE_C_COMPILER_LAUNCHER=$launcher"
  "-DCMAKE_CXX_COMPILER_LAUNCHER=$launcher" "-DCMAKE_INSTALL_PREFIX=$work/root")

# source_of PACKAGE NAME: Debian's source of it in build/windows/src-NAME, fetched with a source line of this script's own.
source_of() {
  [ ! -d "$work/src-$2" ] || return 0
  local apt=(apt-get -q -o "Dir::Etc::SourceList=$work/apt/sources.list" -o Dir::Etc::SourceParts=/dev/null
    -o "Dir::State::Lists=$work/apt/lists" -o "Dir::Cache=$work/apt/cache" -o APT::Sandbox::User=root)
  if [ ! -f "$work/apt/sources.list" ]; then
    apt-get indextargets --format 'deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $(SITE) $(RELEASE) main' \
      'Created-By: Packages' 'Component: main' 'Origin: Debian' | sort -u >"$work/apt/sources.list"
    quietly "${apt[@]}" update
  fi
  (cd "$work/sources" && quietly "${apt[@]}" source --download-only --only-source "$1")
  quietly dpkg-source --no-check -x "$work/sources/$1"_*.dsc "$work/src-$2.part"
  mv "$work/src-$2.part" "$work/src-$2"
}

# Where Qt is taken from is the folder that it is built in; -O1 halves the time and nobody sees it.
qt() {
  source_of qt6-base qt
  if [ ! -f "$work/qt-build/build.ninja" ]; then
    quietly cmake -S "$work/src-qt" -B "$work/qt-build" "${configure[@]}" -DCMAKE_BUILD_TYPE=None "-DCMAKE_C_FLAGS=-O1 -DNDEBUG" \
      "-DCMAKE_CXX_FLAGS=-O1 -DNDEBUG" -DQT_HOST_PATH=/usr "-DQT_HOST_PATH_CMAKE_DIR=$host" -DQT_QMAKE_TARGET_MKSPEC=win32-g++ \
      -DQT_BUILD_EXAMPLES=OFF -DQT_BUILD_TESTS=OFF -DQT_BUILD_TOOLS_WHEN_CROSSCOMPILING=OFF -DFEATURE_pkg_config=OFF \
      -DFEATURE_sql_sqlite=OFF -DFEATURE_sql_odbc=ON -DFEATURE_schannel=ON -DFEATURE_dbus=OFF -DINPUT_opengl=no \
      -DFEATURE_tabletevent=OFF -DFEATURE_system_zlib=OFF -DFEATURE_system_pcre2=OFF -DFEATURE_system_doubleconversion=OFF \
      -DINPUT_freetype=qt -DINPUT_harfbuzz=qt -DINPUT_libpng=qt -DINPUT_libjpeg=qt
  fi
  building "$work/qt-build" --target EntryPointImplementation Core Gui Widgets Network Sql PrintSupport Test QWindowsIntegrationPlugin \
    QOffscreenIntegrationPlugin QWindowsVistaStylePlugin QODBCDriverPlugin QJpegPlugin QSchannelBackendPlugin
}

# with_cmake NAME FOLDER SETTING...: builds and installs one that CMake builds.
with_cmake() {
  local name=$1 folder=$2
  shift 2
  [ ! -f "$work/$name-build/installed" ] || return 0
  quietly cmake -S "$folder" -B "$work/$name-build" "${configure[@]}" -DCMAKE_BUILD_TYPE=Release "$@"
  quietly cmake --build "$work/$name-build"
  quietly cmake --install "$work/$name-build"
  : >"$work/$name-build/installed"
}

curl_library() {
  source_of curl curl
  local protocol off=()
  for protocol in FTP LDAP LDAPS TELNET DICT FILE TFTP RTSP POP3 IMAP SMB GOPHER MQTT; do
    off+=("-DCURL_DISABLE_$protocol=ON")
  done
  with_cmake curl "$work/src-curl" "${off[@]}" -DCURL_USE_SCHANNEL=ON -DBUILD_CURL_EXE=OFF -DBUILD_TESTING=OFF \
    -DCURL_USE_LIBSSH2=OFF -DCURL_ZLIB=OFF -DUSE_LIBIDN2=OFF -DCURL_USE_LIBPSL=OFF
}

sqlite_library() {
  source_of sqlite3 sqlite
  [ ! -f "$work/root/lib/libsqlite3.a" ] || return 0
  (cd "$work/src-sqlite" && quietly ./configure && quietly make sqlite3.c)
  mkdir -p "$work"/root/{include,lib}
  quietly "$cross-gcc-posix" -O2 -DSQLITE_ENABLE_COLUMN_METADATA -DSQLITE_MAX_VARIABLE_NUMBER=250000 \
    -c "$work/src-sqlite/sqlite3.c" -o "$work/src-sqlite/sqlite3.obj"
  cp "$work/src-sqlite/sqlite3.h" "$work/root/include/"
  quietly "$cross-ar" rcs "$work/root/lib/libsqlite3.a" "$work/src-sqlite/sqlite3.obj"
}

tidy_library() {
  source_of tidy-html5 tidy
  with_cmake tidy "$work/src-tidy" -DBUILD_SHARED_LIB=OFF -DSUPPORT_CONSOLE_APP=OFF -DSUPPORT_LOCALIZATIONS=OFF
}

step "Qt, once (some 1,200 sources)"
qt
step "libcurl, SQLite, HTML Tidy, GoogleTest"
curl_library
sqlite_library
tidy_library
with_cmake googletest /usr/src/googletest -DBUILD_GMOCK=OFF

step "Icon and manual, by this machine's own build"
build release zarim_icons zarim_manual
quietly build/release/tools/zarim_icons "$work/zarim.ico"

step "The program"
zarim=$work/zarim
quietly cmake -S . -B "$zarim" -G Ninja "-DCMAKE_TOOLCHAIN_FILE=$here/toolchain.cmake" -DCMAKE_BUILD_TYPE=Release \
  "-DCMAKE_PREFIX_PATH=$work/qt-build;$work/root" -DQT_HOST_PATH=/usr "-DQT_HOST_PATH_CMAKE_DIR=$host" \
  "-DZARIM_ICON=$work/zarim.ico"
building "$zarim"
rm -rf "$zarim/manual"
cp -r build/release/manual "$zarim/manual"  # where the roads' program and the tests look for it
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$zarim/CMakeCache.txt")

step "Setup and zip"
files=$work/files
rm -rf "$files"
mkdir -p "$files"/{bin,plugins/{platforms,styles,sqldrivers,imageformats,tls},translations,licencas,exemplos}
cp "$zarim/src/zarim.exe" "$zarim/packaging/windows/zarim-inicio.exe" "$zarim/tools/zarim_install.exe" "$work/root/bin/libcurl.dll" \
  "$work"/qt-build/bin/Qt6{Core,Gui,Widgets,Network,Sql,PrintSupport}.dll "$files/bin/"
for library in libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll; do
  cp "$("$cross-g++-posix" -print-file-name="$library")" "$files/bin/"
done
for plugin in platforms/{qwindows,qoffscreen} styles/qwindowsvistastyle sqldrivers/qsqlodbc imageformats/qjpeg tls/qschannelbackend; do
  cp "$work/qt-build/plugins/$plugin.dll" "$files/plugins/$plugin.dll"
done
printf '[Paths]\nPrefix = ..\n' >"$files/bin/qt.conf"
quietly "$cross-strip" "$files"/bin/*.dll "$files"/bin/*.exe "$files"/plugins/*/*.dll
cp /usr/share/qt6/translations/qtbase_pt_BR.qm "$files/translations/"
cp -r "$zarim/manual" "$files/manual"
cp packaging/examples/* "$files/exemplos/"
cp LICENSE "$files/licencas/zarim.txt"
for library in qt curl sqlite tidy; do cp "$work/src-$library/debian/copyright" "$files/licencas/$library.txt"; done
cp /usr/share/doc/g++-mingw-w64-x86-64-posix/copyright "$files/licencas/gcc.txt"
cp /usr/share/doc/mingw-w64-common/copyright "$files/licencas/mingw-w64.txt"
# The texts that Debian keeps once for all packages.
grep -ohE 'common-licenses/[A-Z][-A-Za-z0-9.]*[A-Za-z0-9]' "$files"/licencas/*.txt | sort -u | while read -r named; do
  cp "/usr/share/$named" "$files/licencas/${named#*/}.txt"
done
# What the uninstaller takes away: each file by its name, then the folders from the innermost on.
(cd "$files" && find . -mindepth 1 \( -type f -printf 'Delete "$INSTDIR\\%P"\n' \) -o \( -type d -printf 'RMDir "$INSTDIR\\%P"\n' \) |
  tr / '\\' | sort -r | sort -s -k1,1) >"$work/removal.nsh"
setup=$work/zarim-$version-setup.exe zip=$work/zarim-$version-windows.zip
quietly makensis -V2 -INPUTCHARSET UTF8 "-DVERSION=$version" "-DFILES=$files" "-DOUTPUT=$setup" "-DICON=$work/zarim.ico" \
  "-DREMOVAL=$work/removal.nsh" "$here/setup.nsi"
rm -f "$zip"
(cd "$files" && quietly zip -q -9 -r "$zip" .)
step "$(cd "$work" && du -h --apparent-size "${setup##*/}" "${zip##*/}" | sed 's/\t/ /' | paste -sd, | sed 's/,/, /'), in $work"
