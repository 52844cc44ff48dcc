#!/usr/bin/env bash
# Installs what is missing, builds, runs all tests, and ends with their count.
#   ./test.sh               the release build
#   ./test.sh sanitizers    with address and undefined-behaviour checks
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. setup/common.sh

preset=${1:-release}
set_up setup/packages.txt setup/test_packages.txt
build "$preset" all

results=build/$preset/results
rm -rf "$results"
mkdir -p "$results"
# What a test that is killed leaves goes with the next run.
export TMPDIR=$PWD/build/$preset/tmp
rm -rf "$TMPDIR"
mkdir -p "$TMPDIR"
export QT_QPA_PLATFORM=offscreen
export LSAN_OPTIONS=suppressions=$PWD/setup/leaks.txt:print_suppressions=0
status=0
ctest --test-dir "build/$preset" -j2 --output-on-failure >"$state/log/tests.log" 2>&1 </dev/null || status=$?
if [ "$status" != 0 ]; then
  grep -E '^\[  FAILED  \]|Failure$|\*\*\*|Failed' "$state/log/tests.log" | sort -u | head -n 60 || true
  printf 'All of it: %s\n' "$state/log/tests.log"
fi

# A program that wrote no result has crashed: it counts as one failure.
programs=$(ctest --test-dir "build/$preset" -N | grep -c 'Test *#.*: test_')
reports=$(ls "$results" | wc -l)
cat "$results"/*.xml | awk -v crashed=$((programs - reports)) '
  /<testsuites / { match($0, /tests="[0-9]+"/); tests += substr($0, RSTART + 7, RLENGTH - 8)
                   match($0, /failures="[0-9]+"/); failed += substr($0, RSTART + 10, RLENGTH - 11) }
  /<skipped/ { skipped++ }
  END { failed += crashed; tests += crashed
        printf "%d passed, %d failed, %d skipped\n", tests - failed - skipped, failed, skipped }'
rm -rf "$TMPDIR"
exit "$status"
