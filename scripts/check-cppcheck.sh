#!/bin/sh
# Lets cppcheck look at the sources; what it says wrongly is explained in cppcheck.suppressions.
set -eu
cd "$(dirname "$0")/.."
cppcheck --enable=warning,performance,portability --error-exitcode=1 --quiet --std=c++20 --language=c++ \
  --suppressions-list=cppcheck.suppressions --suppress=missingInclude --inline-suppr -I src \
  --template='{file}:{line}: {id}: {message}' src
