#!/bin/bash
# Start-up and memory of the editor beside a bare window: rows of the table of docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."
./bench/costruisci.sh parvik32 installazione-esempio bench_avvio bench_nuda
programmi=build/release/bench/finestre
editor=build/release/velkor/PARVIK/parvik32
./bench/con-schermo.sh "$programmi/bench_avvio" "$editor" "$programmi/bench_nuda"

# As of one who has everything shown and kept, and ten recent templates.
casa=$(mktemp -d)
trap 'rm -rf "$casa"' EXIT
mkdir -p "$casa/config/ordavia" "$casa/state/ordavia"
{
  printf '[General]\nRicorda=true\n[Mostra]\n'
  for scelta in AnteprimaAutomatica CampiAMisura BarraStrumenti BarraStato Righello FlagVeri Problemi PannelloCampi; do
    echo "$scelta=true"
  done
  printf '[Recenti]\nsize=10\n'
  for ((i = 1; i <= 10; i++)); do
    : >"$casa/$i.img"
    printf '%d\\File="@ByteArray(%s)"\n%d\\Tipo=1\n' "$i" "$casa/$i.img" "$i"
  done
} >"$casa/config/ordavia/parvik32.ini"
XDG_CONFIG_HOME=$casa/config XDG_STATE_HOME=$casa/state \
  ./bench/con-schermo.sh "$programmi/bench_avvio" "$editor" "$programmi/bench_nuda" | sed 's/^/all shown and kept: /'
