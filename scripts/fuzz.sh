#!/bin/sh
# Feeds every reader made-up files: "scripts/fuzz.sh [SECONDS]", by default 30 seconds a target. Ends
# non-zero when one of them crashes, hangs, leaks or takes too much memory; the inputs that did it are
# then in build/fuzz/findings.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# shellcheck disable=SC2086 # lists of package names
scripts/install-dependencies.sh $build_packages $fuzz_packages

seconds=${1:-30}
build=build/fuzz
# The command line changes its folder, so paths are whole.
corpus=$PWD/$build/corpus
findings=$PWD/$build/findings

echo "== fuzz: build"
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzz_targets
"$build/tests/make_fuzz_corpus" "$corpus"
# Files of real size beside the small ones.
cp data/samples/*.MES "$corpus/mes_file"
cp data/samples/*.MES "$corpus/rename"
cp data/samples/*.MSX "$corpus/msx_file"
# Every save is flushed to the disk; in memory that takes no time.
if [ -d /dev/shm ]; then
  export TMPDIR=${TMPDIR:-/dev/shm}
fi
mkdir -p "$findings"

failed=
for program in "$build"/tests/fuzz_*; do
  target=${program##*/fuzz_}
  log=$build/$target.log
  echo "== fuzz: $target, $seconds seconds"
  set -- "$corpus/$target"
  [ ! -f "tests/fuzz/dictionaries/$target.dict" ] || set -- "-dict=$PWD/tests/fuzz/dictionaries/$target.dict" "$@"
  if "$program" -max_total_time="$seconds" -timeout=10 -malloc_limit_mb=256 -print_final_stats=1 \
    -artifact_prefix="$findings/$target-" "$@" >"$log" 2>&1; then
    grep number_of_executed_units "$log"
  else
    failed="$failed $target"
    grep -v '^#' "$log" | tail -n 60
  fi
done
if [ -n "$failed" ]; then
  echo "Findings in:$failed. The inputs are in $findings, the logs in $build" >&2
  exit 1
fi
