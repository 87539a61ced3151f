#!/bin/sh
# Fails when a source is not formatted as .clang-format says, or a line is wider than 100 columns.
set -eu
cd "$(dirname "$0")/.."
find src tests -name '*.h' -o -name '*.cpp' | sort | xargs clang-format --dry-run --Werror
