#!/bin/sh
# Makes the pictures of the manual and of the first page anew, from the program's own windows: immagini.sh
# To be run before each release, and whenever a window has changed; then look at every picture.
set -eu
cd "$(dirname "$0")/../.."

cmake --preset dev >/dev/null
cmake --build --preset dev --target parvik_immagini
build/dev/tests/immagini/parvik_immagini docs/manuale/immagini
ls -l docs/manuale/immagini
