#!/bin/sh
# Runs clang-tidy over src/ with the compile commands of a build folder; any finding fails.
# Usage: check-lint.sh BUILD_FOLDER
set -eu
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."

# GCC's precompiled headers mean nothing to Clang: it reads every source without them.
mkdir -p "$build/lint"
sed -E 's/ -include .*cmake_pch\.hxx(\\")?//' "$build/compile_commands.json" \
  >"$build/lint/compile_commands.json"

# GCC's own warnings in the compile commands are unknown to Clang.
run-clang-tidy -quiet -p "$build/lint" -extra-arg=-Wno-unknown-warning-option \
  "^$PWD/src/.*\.cpp$" 2>&1 |
  awk '/error:|warning:|note:/ { print } /error:/ { failed = 1 } END { exit failed }'
