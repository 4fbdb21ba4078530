#!/bin/bash
# From a key to what it paints, beside a bare editor: rows of the table of docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."
{
  cmake --preset bench
  cmake --build --preset bench --target bench_tasti
} >&2
./bench/con-schermo.sh build/release/bench/finestre/bench_tasti
