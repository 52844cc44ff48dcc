#!/usr/bin/env bash
# Takes the pictures of the manual anew by walking sample/roads/manual.road.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/../.."
./run.sh --road sample/roads/manual.road
mkdir -p docs/manual/pictures
cp .run/pictures/*.png docs/manual/pictures/
