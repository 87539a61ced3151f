#!/bin/sh
# The main job on the samples, from the firmware source to sound flash files, without a desktop.
# Usage: main-job.sh VENDLINGUA_CLI SAMPLES FOLDER
set -eu
cli=$1
samples=$2
out=$3

say() { printf '\n== %s\n' "$*"; }

mkdir -p "$out"
cp "$samples/FW0417AB.MES" "$samples/FW0267AA.MES" "$samples/MP0417AA.MSX" "$out"
chmod u+w "$out"/*.M*

say "Import the firmware source for a board with two language slots"
"$cli" import "$samples/firmware.src" --languages 2 --memory-start '&HFF8000' \
  --memory-length '&H4000' --name ITALIANO --output "$out/FW0405AA.MES"
"$cli" new-language "$out/FW0405AA.MES" --name ENGLISH
"$cli" apply "$out/FW0405AA.MES" --language 2 "$samples/translations/english.csv"

say "Change a message"
"$cli" put "$out/FW0405AA.MES" --language 2 --message 45 --text "E08 Water tank"
"$cli" put "$out/MP0417AA.MSX" --language 2 --message 45 --text "E08 Water tank"

say "Compile nine languages"
"$cli" compile "$out/FW0417AB.MES" --languages 1,2,3,4,5,6,7,8,9 \
  --output "$out/FW0417AB.MHX" --copy "$out/FW0417AB.MSX"

say "Compile four of five languages"
"$cli" compile "$out/FW0267AA.MES" --languages 1,2,3,5 --output "$out/FW0267AA.MHX"

say "Compile two languages"
"$cli" compile "$out/FW0405AA.MES" --languages 1,2 --output "$out/FW0405AA.MHX"

say "Verify all of them"
"$cli" verify "$out"/*.MES "$out"/*.MHX "$out"/*.MSX
