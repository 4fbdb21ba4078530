#!/bin/sh
# Makes the Debian package from nothing: pacchetto.sh [VERSION]. The package lies in build/pacchetto afterwards.
# The same sources, in the same folder, give the same bytes (docs/installare.md). VERSION, for trying out an upgrade, is
# that of the project unless it is given.
set -eu
cd "$(dirname "$0")/.."
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export SOURCE_DATE_EPOCH

programs=build/pacchetto/programmi
rm -rf build/pacchetto
mkdir -p build
cmake --preset release -B "$programs" -DCMAKE_INSTALL_PREFIX=/usr -DPARVIK_TESTS=OFF >build/pacchetto.log
cmake --build "$programs" --target parvik32 parvik32-batch parvik32-stampa >>build/pacchetto.log
cpack --config "$programs/CPackConfig.cmake" -B build/pacchetto ${1:+-D CPACK_PACKAGE_VERSION="$1"} >>build/pacchetto.log
ls build/pacchetto/*.deb
