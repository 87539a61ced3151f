#!/bin/sh
# Builds the benchmarks, measures, and writes docs/performance.md.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# shellcheck disable=SC2086 # lists of package names
scripts/install-dependencies.sh $build_packages $bench_packages
for preset in release bench; do
  cmake --preset $preset >/dev/null
  cmake --build --preset $preset
done
scripts/measure.py
