#!/bin/sh
# Looks for mistakes in the sources without running them: check-static.sh [BUILD_FOLDER]
# clang-tidy (.clang-tidy) on every source of the programs, and cppcheck. The build folder must have been built:
# both read headers that the build makes. See docs/checks.md.
set -eu
cd "$(dirname "$0")/.."
build=${1:-build/dev}
processors=$(nproc)
failed=0

if [ ! -f "$build/compile_commands.json" ] || [ ! -f "$build/src/generati/start/Versione.h" ]; then
  echo "check-static.sh: build $build first" >&2
  exit 2
fi

echo "cppcheck ..."
check() {
  cppcheck --quiet -j "$processors" --std=c++20 --enable=warning,performance,portability \
    --suppressions-list=packaging/cppcheck.supp --error-exitcode=1 -I src -I tests -I "$build/src/generati" "$@" || failed=1
}
check --library=qt --library=posix -i src/sistema/windows src fuzz tests/supporto
check --library=windows --platform=win64 src/sistema/windows

# clang reads no headers that GCC has precompiled.
commands=$build/comandi
mkdir -p "$commands"
sed -E 's/ -Winvalid-pch//g; s/ -include [^ ]*cmake_pch\.hxx//g' "$build/compile_commands.json" >"$commands/compile_commands.json"

# The largest sources first, so that no processor is left with one at the end; the windows' own header lines cost most. What
# is built for Windows alone has no commands here.
echo "clang-tidy ..."
find src -name '*.cpp' ! -path 'src/sistema/windows/*' -exec grep -c '#include <Q' {} + | sort -t: -k2,2nr | cut -d: -f1 |
  xargs -P "$processors" -n 2 clang-tidy --quiet -p "$commands" 2>"$build/clang-tidy.log" || failed=1
grep -vE '^[0-9]+ warnings?( and [0-9]+ errors?)? (generated|treated as error)' "$build/clang-tidy.log" || true

[ $failed -ne 0 ] || echo "Nothing found."
exit $failed
