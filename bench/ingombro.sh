#!/bin/bash
# The memory of a long template in the editor and in a bare one: a row of the table of docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."
{
  cmake --preset bench
  cmake --build --preset bench --target bench_ingombro
} >&2
misura() {
  ./bench/con-schermo.sh build/release/bench/finestre/bench_ingombro "$1" 600000
}
awk -v nostra="$(misura editor)" -v sua="$(misura bare)" 'BEGIN {
  printf "memory of 600,000 lines in the editor, bytes a byte of the file\t%.1f\t\t\n", nostra
  printf "the same in a bare editor\t%.1f\t\t\n", sua
}'
