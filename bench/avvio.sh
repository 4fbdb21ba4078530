#!/bin/bash
# Start-up and memory of the editor beside a bare window: rows of the table of docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."
./bench/costruisci.sh parvik32 installazione-esempio bench_avvio bench_nuda
programmi=build/release/bench/finestre
./bench/con-schermo.sh "$programmi/bench_avvio" build/release/velkor/PARVIK/parvik32 "$programmi/bench_nuda"
