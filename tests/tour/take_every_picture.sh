#!/bin/sh
# Takes pictures of the windows in every interface language, light and dark, at 100 % and at 200 %, to be looked
# at: for each picture a sheet with all languages. BUILD is a build folder with the tour; OUT takes the sheets.
# Needs imagemagick.
# Usage: take_every_picture.sh BUILD OUT
set -eu
build=$(cd "$1" && pwd)
mkdir -p "$2"
out=$(cd "$2" && pwd)
cd "$(dirname "$0")/../.."
for scale in 1 2; do
  for theme in light dark; do
    pictures=$out/$theme-$scale
    QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=$scale \
      xvfb-run --auto-servernum --server-args="-screen 0 2400x2000x24" \
      "$build/tests/guide_pictures" data/samples "$build/bin/vendlingua-cli" "$pictures" every-language $theme
    for picture in "$pictures"/0/*.png; do
      name=$(basename "$picture" .png)
      montage "$pictures"/*/"$name.png" -tile 3x -geometry +8+8 "$out/$name-$theme-$scale.png"
    done
  done
done
