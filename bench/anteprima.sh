#!/bin/bash
# The preview beside bare panes, and the memory of long templates: rows of the table of docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."
{
  cmake --preset bench
  cmake --build --preset bench --target bench_anteprima
} >&2
./bench/con-schermo.sh build/release/bench/finestre/bench_anteprima
