#!/bin/sh
# The main job on the samples: a tour through the real windows edits, saves and compiles, and leaves a
# picture of every step; then vendlingua-cli does the same work on the same samples. Ends with status 0
# only if both made the same files, byte for byte.
# Usage: main-job.sh TOUR CLI SAMPLES FOLDER
set -eu
tour=$1
cli=$2
samples=$3
out=$4

windows=$out/windows
command_line=$out/command-line
rm -rf "$windows" "$command_line"
mkdir -p "$windows" "$command_line"

echo "== The tour through the windows"
QT_LOGGING_RULES='*.warning=false' "$tour" "$samples" "$windows"

echo "== The same on the command line"
msx=$command_line/MP0417AA.MSX
mes=$command_line/FW0417AB.MES
cp "$samples/MP0417AA.MSX" "$samples/FW0417AB.MES" "$command_line"
chmod u+w "$msx" "$mes"
"$cli" put "$msx" --language 2 --message 45 --text "E08 Tank empty"
"$cli" put "$msx" --language 2 --message 43 --text "E12 Coffee<60 ßC"
"$cli" new-language "$mes" --from 2 --name POLSKI
"$cli" put "$mes" --language 10 --message 14 --text "Wybierz produkt"
"$cli" put "$mes" --language 10 --message 15 --text "i wcisnij guzik"
"$cli" compile "$mes" --languages 1,2,3,4,5,6,7,8,10 \
  --output "$command_line/FW0417AB.MHX" --copy "$command_line/FW0417AB.MSX"
"$cli" verify "$msx" "$mes" "$command_line/FW0417AB.MHX" "$command_line/FW0417AB.MSX"

echo "== Comparing"
diff -rq --exclude='*.png' "$windows" "$command_line"
for file in "$command_line"/*; do
  echo "the same in both: ${file##*/}"
done
