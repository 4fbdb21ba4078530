#!/bin/sh
# Installs what building and running need, builds, and starts the editor on the example installation. Run it again at
# any time.
set -eu
cd "$(dirname "$0")"

./packaging/install-packages.sh run-packages.txt
echo "Building the release programs ..."
cmake --preset programs
cmake --build --preset programs

programs=build/release/velkor/PARVIK
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  echo "Starting $programs/parvik32 on the example installation in build/release/velkor."
  exec "$programs/parvik32"
fi
template=build/release/velkor/D_IMG/FATT01.IMG
echo
echo "There is no display here (neither DISPLAY nor WAYLAND_DISPLAY is set), so the editor cannot open its window."
echo "This is what $programs/parvik32-batch makes of $template:"
echo
"$programs/parvik32-batch" stampa --tipo 1 "$template" | iconv -f WINDOWS-1252 -t UTF-8
