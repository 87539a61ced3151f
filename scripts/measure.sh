#!/bin/sh
# Builds the benchmarks, measures, and writes docs/performance.md.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# shellcheck disable=SC2086 # lists of package names
scripts/install-dependencies.sh $build_packages $bench_packages
cmake --preset bench >/dev/null
cmake --build --preset bench
# The system's own interpreter, because that is the one whose packages were installed.
QT_QPA_PLATFORM=xcb xvfb-run --auto-servernum --server-args="-screen 0 1280x1024x24" \
  /usr/bin/python3 scripts/measure.py
