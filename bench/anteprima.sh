#!/bin/bash
# The preview beside bare panes, and the memory of long templates: rows of the table of docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."
./bench/costruisci.sh bench_anteprima
./bench/con-schermo.sh build/release/bench/finestre/bench_anteprima
