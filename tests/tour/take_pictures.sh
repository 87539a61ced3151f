#!/bin/sh
# Takes the pictures of the user's guide anew, twice as large as on the screen, under a
# display of its own. BUILD is a build folder with the tour.
# Usage: take_pictures.sh BUILD
set -eu
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/../.."
pictures=$(mktemp -d)
trap 'rm -rf "$pictures"' EXIT
QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=2 xvfb-run --auto-servernum --server-args="-screen 0 2400x2000x24" \
  "$build/tests/guide_pictures" data/samples "$build/bin/vendlingua-cli" "$pictures"
for language in en it; do
  mkdir -p docs/guide/images/$language
  cp "$pictures/$language"/*.png docs/guide/images/$language
done
