#!/bin/sh
# Installs what is missing of the lists in this folder, and says what it does: install-packages.sh LIST...
# Nothing is asked of the network, and nobody has to be root, when nothing is missing. Without root or sudo it prints
# the command for who is.
set -eu
[ $# -gt 0 ] || { echo "install-packages.sh LIST..." >&2; exit 2; }
folder=$(dirname "$0")

missing=
for list in "$@"; do
  # shellcheck disable=SC2013 # words are wanted
  for package in $(sed 's/#.*//' "$folder/$list"); do
    state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
    [ "$state" = installed ] || missing="$missing $package"
  done
done
if [ -z "$missing" ]; then
  echo "Packages: all there."
  exit 0
fi

as_root=
if [ "$(id -u)" -ne 0 ]; then
  as_root=sudo
fi
install="apt-get install -y --no-install-recommends$missing"

# give_up REASON: one command to copy, whole and in one line.
give_up() {
  echo "$1 As root, run this once, then try again:" >&2
  echo "apt-get update && $install" >&2
  exit 1
}

[ -z "$as_root" ] || command -v sudo >/dev/null || give_up "Packages are missing, and there is neither root nor sudo."
echo "Packages: installing$missing"
# shellcheck disable=SC2086 # lists of words
{
  $as_root apt-get update -q && $as_root env DEBIAN_FRONTEND=noninteractive $install
} || give_up "The packages could not be installed."
