#!/usr/bin/env bash
# Has the cross compiler for Windows read the program's sources, with the release build's generated headers and Debian's
# Qt headers: their text is the same on all systems, their settings are those of Linux. Nothing is linked.
#   setup/windows.sh [FILE...]     all sources of the program unless files are named
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. setup/common.sh

install_packages setup/packages.txt setup/windows_packages.txt
[ -d build/release/src/zarim_screens_autogen ] || fail "Build first: ./test.sh"
[ "$#" -gt 0 ] || mapfile -t sources < <(git ls-files 'src/*.cpp' | grep -v '_unix\.cpp$')
[ "$#" = 0 ] || sources=("$@")

# Nothing of the system's own headers but those of the libraries that are the same everywhere.
mkdir -p build/windows
ln -sfn /usr/include/sqlite3.h build/windows/sqlite3.h
ln -sfn "/usr/include/$(gcc -print-multiarch)/curl" build/windows/curl
ln -sfn /usr/include/tidy build/windows/tidy
# The version is a setting of one source.
flags=('-DZARIM_VERSION="0"' -std=c++20 -fsyntax-only -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Werror -Isrc -isystem build/windows -isystem build/windows/tidy)
for made in build/release/src build/release/src/*_autogen/include; do flags+=("-I$made"); done
qt=/usr/include/$(gcc -print-multiarch)/qt6
flags+=(-isystem "$qt")
for module in "$qt"/Qt*; do flags+=(-isystem "$module"); done
printf '%s\n' "${sources[@]}" | xargs -P "$(nproc)" -n 1 x86_64-w64-mingw32-g++-posix "${flags[@]}" ||
  fail "The cross compiler refused the lines above."
printf 'Read without a warning: %s sources\n' "${#sources[@]}"
