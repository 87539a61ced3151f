#!/bin/sh
# Prints the coverage of the core library by the unit, property and command line tests, file by file.
# Ends non-zero when less than 98 % of its lines are reached, or less than 95 % of the regions of one of
# its readers.
set -eu
cd "$(dirname "$0")/.."
. scripts/packages.sh
# shellcheck disable=SC2086 # lists of package names
scripts/install-dependencies.sh $build_packages $test_packages $coverage_packages

build=build/coverage
profiles=$PWD/$build/profiles

echo "== coverage: build"
cmake --preset coverage >/dev/null
cmake --build --preset coverage

echo "== coverage: test"
rm -rf "$profiles"
# %4m: processes add to four files in turn instead of making thousands.
LLVM_PROFILE_FILE="$profiles/%4m.profraw" ctest --preset coverage --label-exclude static --quiet --output-on-failure

echo "== coverage: core"
llvm-profdata merge -sparse "$profiles"/*.profraw -o "$build/core.profdata"
llvm-cov report -instr-profile "$build/core.profdata" "$build/tests/unit_tests" -object "$build/tests/property_tests" \
  -object "$build/bin/vendlingua-cli" -show-functions=0 src/core
llvm-cov export -summary-only -instr-profile "$build/core.profdata" "$build/tests/unit_tests" \
  -object "$build/tests/property_tests" -object "$build/bin/vendlingua-cli" src/core |
  python3 scripts/check-coverage.py
