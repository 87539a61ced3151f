#!/bin/sh
# The full dose of what ./test gives in a small one, for hours: "scripts/torture.sh [SEED]". Faults at every
# call of the system, power cuts, kills, full disks, many programs on one file, a user who does anything.
# The same seed makes the same run, but for the moments of real kills.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# shellcheck disable=SC2086 # lists of package names
scripts/install-dependencies.sh $build_packages $test_packages

TORTURE_SEED=${1:-$(date +%s)}
export TORTURE_SEED
export TORTURE_SHARE=1 TORTURE_STATES=20 TORTURE_ROUNDS=1000 TORTURE_KILLS=500 TORTURE_SIZES=40
export KILLED_WINDOWS=500 BOUNDS_MIB=15 QTEST_FUNCTION_TIMEOUT=86400000
echo "== torture: seed $TORTURE_SEED"

cmake --preset release -DVENDLINGUA_TESTS=ON >/dev/null
cmake --build --preset release
ctest --preset release --verbose --tests-regex '^torture\.|^cli\.bounds$|^gui\.killed_window_test$'

cmake --preset asan -DVENDLINGUA_TESTS=ON >/dev/null
cmake --build --preset asan
MONKEY_ACTIONS=20000 MONKEY_SEED=$TORTURE_SEED \
  ctest --preset asan --verbose --tests-regex '^gui\.(monkey_test|unsaved_edits_test)$'
