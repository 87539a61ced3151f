#!/bin/sh
# Runs clang-tidy over src/ with the compile commands of a build folder; any finding fails.
# Usage: check-lint.sh BUILD_FOLDER
set -eu
build=$(cd "$1" && pwd)
cd "$(dirname "$0")/.."
# GCC's -Wno-restrict in the compile commands is unknown to Clang.
run-clang-tidy -quiet -p "$build" -extra-arg=-Wno-unknown-warning-option "^$PWD/src/.*\.cpp$" 2>&1 |
  awk '/error:|warning:|note:/ { print } /error:/ { failed = 1 } END { exit failed }'
