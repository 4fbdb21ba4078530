#!/bin/sh
# Builds the core, the batch program and their tests for Windows with the cross compiler, and runs them under Wine
# (docs/windows.md): test-windows.sh. Status 0: everything was tried, and is well. 1: something is not. 3: nothing was tried,
# for the compiler, Wine or their packages are missing; the last line says which.
set -eu
cd "$(dirname "$0")"
build=$PWD/build/windows

not_tried() {
  echo "test-windows.sh: NOT tried: $1" >&2
  exit 3
}

fail() {
  echo "test-windows.sh: $1" >&2
  exit 1
}

./packaging/install-packages.sh windows-packages.txt || not_tried "the packages of packaging/windows-packages.txt are missing"
command -v x86_64-w64-mingw32-g++-posix >/dev/null || not_tried "there is no x86_64-w64-mingw32-g++-posix"
command -v wine >/dev/null || not_tried "there is no wine"

echo "Building for Windows ..."
mkdir -p "$build"
cmake --preset windows >"$build/cmake.log" 2>&1 || { cat "$build/cmake.log"; fail "the build cannot be set up"; }
cmake --build --preset windows

# A Windows of its own, made anew, without a display and without the parts that would ask to be downloaded.
export WINEPREFIX="$build/wine" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
unset DISPLAY WAYLAND_DISPLAY
rm -rf "$WINEPREFIX" "$build/esiti" "$build/esiti.xml"
mkdir -p "$build/esiti"
wineboot -i >"$build/wine.log" 2>&1 || { cat "$build/wine.log"; not_tried "wine does not start"; }
trap 'wineserver -k || true' EXIT

version=$(wine "$build/velkor/PARVIK/parvik32-batch.exe" --version)
expected=$(sed -n 's/^project(parvik32 VERSION \([0-9]*\.[0-9]*\)\.[0-9]*\.\([0-9]*\).*/\1.\2/p' CMakeLists.txt)
[ "$version" = "Ordavia (parvik32-batch) Version $expected" ] || fail "the program says it is: $version"
echo "$version, under $(wine --version)"

# Whole programs, as many at once as there are processors.
echo "Running the tests ..."
ctest --preset windows --parallel "$(nproc)"

while read -r program; do
  results=$build/esiti/$(basename "$program" .exe).xml
  grep -q '<testcase ' "$results" || fail "no results of $program"
done <"$build/programmi-di-prova.txt"
# count TEXT: how many tests of the results have it.
count() {
  cat "$build"/esiti/*.xml | grep '<testcase ' | grep -c "$1" || true
}
./packaging/check-skips.sh "$build" allowed-skips-windows.txt
echo "Not built, for there is no RapidCheck for Windows (docs/windows.md):"
sed 's/^/  /' "$build/senza-rapidcheck.txt"
echo "$(count 'status="run"') tests of $(wc -l <"$build/programmi-di-prova.txt") programs ran, of which $(count 'result="skipped"') skipped themselves, as listed."
