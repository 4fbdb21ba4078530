#!/bin/sh
# Installs what is missing of a list in this folder, and says what it does: install-packages.sh [LIST]
# Without a list it is debian-packages.txt. Nothing is asked of the network when nothing is missing.
set -eu
list=$(dirname "$0")/${1:-debian-packages.txt}

missing=
for package in $(sed 's/#.*//' "$list"); do
  state=$(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null || true)
  [ "$state" = installed ] || missing="$missing $package"
done
if [ -z "$missing" ]; then
  echo "Packages: all there."
  exit 0
fi

as_root=
if [ "$(id -u)" -ne 0 ]; then
  if ! command -v sudo >/dev/null; then
    echo "Missing packages, and neither root nor sudo to install them:$missing" >&2
    exit 1
  fi
  as_root=sudo
fi
echo "Packages: installing$missing"
$as_root apt-get update -q
# shellcheck disable=SC2086 # a list of words
$as_root env DEBIAN_FRONTEND=noninteractive apt-get install -y -q --no-install-recommends $missing
