#!/usr/bin/env bash
# Installs what is missing, builds, and measures: one line per measurement at the end, with its floor.
#   ./bench.sh              all measurements
#   ./bench.sh WORD         those of one subject: start, quotes, drafts, lookups, searches, mass, documents, pages, panes, lists,
#                           server (through the driver, with 10 ms of network)
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")"
. setup/common.sh

set_up
build release zarim_bench zarim_bare
QT_LOGGING_RULES='*=false' build/release/bench/zarim_bench ${1:+--only "$1"} 2>"$state/log/bench.log" ||
  { tail -n 20 "$state/log/bench.log" >&2; fail "The measurements ended early; see $state/log/bench.log."; }
