#!/usr/bin/env bash
# Runs clang-tidy on what users get, by the commands of the release build, its checks of coroutines among them. Prints
# only its findings.
#   setup/tidy.sh            all sources
#   setup/tidy.sh FILE...    those
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. setup/common.sh

install_packages setup/packages.txt setup/check_packages.txt
[ -f build/release/compile_commands.json ] || fail "Build first: ./test.sh"
[ "$#" -gt 0 ] || mapfile -t sources < <(git ls-files 'src/*.cpp' 'tools/*.cpp' 'sample/*.cpp')
[ "$#" = 0 ] || sources=("$@")
# What is for Windows alone this system's headers can't read.
mapfile -t sources < <(printf '%s\n' "${sources[@]}" | grep -vE '_windows\.cpp$|^packaging/windows/')
# Without the precompiled headers, which are the compiler's own: each source has to name what it includes.
mkdir -p build/tidy
sed -E 's/ -Winvalid-pch| -include [^ ]*cmake_pch.hxx//g' build/release/compile_commands.json >build/tidy/compile_commands.json
tidy() { xargs -r -P "$(nproc)" -n 2 "$@" -quiet -p build/tidy 2>"$state/log/tidy.log" ||
  fail "clang-tidy found the lines above; the rest of its output is in $state/log/tidy.log."; }
printf '%s\n' "${sources[@]}" | tidy clang-tidy --extra-arg=-D__cpp_impl_coroutine=201902L
# The checks of coroutines are newer than the rest; setup/asked.py looks for what they don't know.
coroutines='-*,cppcoreguidelines-avoid-*coroutine*,misc-coroutine-hostile-raii'
hostile='forms::WaitPointer;QSignalBlocker;std::lock_guard;std::scoped_lock'
{ grep -l co_await -- "${sources[@]}" || true; } | tidy clang-tidy-19 --config="{Checks: '$coroutines', WarningsAsErrors: '*',
  CheckOptions: {misc-coroutine-hostile-raii.RAIITypesList: '$hostile'}}"
