#!/bin/bash
# From a key to what it paints, beside a bare editor: rows of the table of docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."
./bench/costruisci.sh bench_tasti bench_seguita bench_pannelli
./bench/con-schermo.sh build/release/bench/finestre/bench_tasti
./bench/con-schermo.sh build/release/bench/finestre/bench_seguita
./bench/con-schermo.sh build/release/bench/finestre/bench_pannelli
