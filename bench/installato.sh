#!/bin/bash
# What an office gets: start-up and memory of the installed editor, and the size of the package. Rows of the table of
# docs/prestazioni.md. Makes the package where there is none.
set -euo pipefail
cd "$(dirname "$0")/.."
./bench/costruisci.sh parvik32 parvik32-batch parvik32-stampa bench_avvio bench_nuda
programmi=build/release/bench/finestre
radice=$(mktemp -d)
trap 'rm -rf "$radice"' EXIT

cmake --install build/release --prefix "$radice/usr" --strip >"$radice/log"
mkdir "$radice/.config"
printf '[AMBIENTE]\r\nDir velkor=%s\r\n' "$radice/usr/share/doc/ordavia/examples/velkor" >"$radice/.config/VELKOR.INI"
HOME=$radice XDG_CONFIG_HOME=$radice/.config \
  ./bench/con-schermo.sh "$programmi/bench_avvio" "$radice/usr/bin/parvik32" "$programmi/bench_nuda" | sed 's/^/installed: /'

pacchetti() {
  find build/pacchetto -maxdepth 1 -name '*.deb' 2>/dev/null
}
[ -n "$(pacchetti)" ] || packaging/pacchetto.sh >&2
dpkg-deb --field "$(pacchetti)" Installed-Size | awk -v byte="$(stat -c %s "$(pacchetti)")" '{
  printf "package, MiB\t%.2f\t\t\n", byte / 1048576
  printf "package, MiB when it is installed\t%.2f\t\t\n", $1 / 1024
}'
