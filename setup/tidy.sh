#!/usr/bin/env bash
# Runs clang-tidy on what users get, by the commands of the release build. Prints only its findings.
#   setup/tidy.sh            all sources
#   setup/tidy.sh FILE...    those
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
. setup/common.sh

[ -f build/release/compile_commands.json ] || fail "Build first: ./test.sh"
[ "$#" -gt 0 ] || mapfile -t sources < <(git ls-files 'src/*.cpp' 'tools/*.cpp' 'sample/*.cpp')
[ "$#" = 0 ] || sources=("$@")
# What is for Windows alone this system's headers can't read.
mapfile -t sources < <(printf '%s\n' "${sources[@]}" | grep -vE '_windows\.cpp$|^packaging/windows/')
# Without the precompiled headers, which are the compiler's own: each source has to name what it includes.
mkdir -p build/tidy
sed -E 's/ -Winvalid-pch| -include [^ ]*cmake_pch.hxx//g' build/release/compile_commands.json >build/tidy/compile_commands.json
printf '%s\n' "${sources[@]}" |
  xargs -P "$(nproc)" -n 2 clang-tidy -quiet -p build/tidy --extra-arg=-D__cpp_impl_coroutine=201902L 2>"$state/log/tidy.log" ||
  fail "clang-tidy found the lines above; the rest of its output is in $state/log/tidy.log."
