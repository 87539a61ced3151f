#!/bin/sh
# Makes the sample message files from the firmware source and the translations beside this script.
# Usage: make_samples.sh VENDLINGUA_CLI FOLDER
set -eu
cli=$1
out=$2
samples=$(cd "$(dirname "$0")" && pwd)

# A message file for a board of $2 language slots; the languages behind the first one follow.
make_message_file() {
  file=$out/$1
  "$cli" import "$samples/firmware.src" --languages "$2" --memory-start "$3" --memory-length "$4" \
    --name ITALIANO --output "$file"
  shift 4
  number=1
  for language in "$@"; do
    number=$((number + 1))
    name=$(echo "$language" | tr '[:lower:]' '[:upper:]')
    "$cli" new-language "$file" --from 1 --name "$name"
    "$cli" apply "$file" --language $number "$samples/translations/$language.csv"
  done
}

make_message_file FW0417AB.MES 9 '&HFF0000' '&HFFF0' \
  english deutsch francais espanol portugues nederlands dansk svenska
make_message_file FW0267AA.MES 4 '&HFF8000' '&H8000' english deutsch francais espanol

# The identified copy of all nine languages; the flash file itself is not a sample.
flash_folder=$(mktemp -d)
trap 'rm -rf "$flash_folder"' EXIT
"$cli" compile "$out/FW0417AB.MES" --languages 1,2,3,4,5,6,7,8,9 \
  --output "$flash_folder/FW0417AB.MHX" --copy "$out/MP0417AA.MSX"
