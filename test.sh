#!/bin/sh
# Installs what is missing, builds everything with its tests, and runs them all. Run it again at any time.
set -eu
cd "$(dirname "$0")"

./packaging/install-packages.sh run-packages.txt test-packages.txt
echo "Checking the style of the sources ..."
./packaging/check-style.sh
echo "Building the programs and their tests ..."
cmake --preset dev
cmake --build --preset dev
echo "Running every test ..."
rm -rf build/dev/esiti
ctest --preset dev --parallel "$(nproc)"
echo "$(cat build/dev/esiti/*.xml | grep -c '<testcase ') tests in $(find build/dev/esiti -name '*.xml' | wc -l) programs, and the scripts' own."
