#!/bin/sh
# Makes the Debian package twice from nothing and compares; then lintian, whose every error and warning is one here:
# check-pacchetto.sh. The package is in build/pacchetto afterwards.
set -eu
cd "$(dirname "$0")/.."
first=$(mktemp -d)
trap 'rm -rf "$first"' EXIT

packaging/pacchetto.sh
cp build/pacchetto/*.deb "$first/"
packaging/pacchetto.sh
for package in build/pacchetto/*.deb; do
  cmp "$package" "$first/$(basename "$package")" || { echo "Two builds of one source differ." >&2; exit 1; }
  ls -l "$package"
  found=$(lintian --fail-on none "$package" | grep -E '^[EW]:' || true)
  [ -z "$found" ] || { echo "lintian: $found" >&2; exit 1; }
done
echo "The same bytes twice; lintian finds nothing."
