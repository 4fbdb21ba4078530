#!/bin/bash
# Replacing everywhere in a long section: rows of the table of docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."
./bench/costruisci.sh bench_sostituisci
./bench/con-schermo.sh build/release/bench/finestre/bench_sostituisci
