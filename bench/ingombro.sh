#!/bin/bash
# The memory of a long template in the editor and in a bare one: a row of the table of docs/prestazioni.md.
set -euo pipefail
cd "$(dirname "$0")/.."
./bench/costruisci.sh bench_ingombro
misura() {
  ./bench/con-schermo.sh build/release/bench/finestre/bench_ingombro "$@" 2>/dev/null
}
read -r _ nostra <<<"$(misura editor 60)"
read -r _ sua <<<"$(misura bare 60)"
read -r _ tutta <<<"$(misura all 60)"
read -r nostri _ <<<"$(misura editor 600000)"
read -r suoi _ <<<"$(misura bare 600000)"
awk -v nostra="$nostra" -v sua="$sua" -v tutta="$tutta" -v nostri="$nostri" -v suoi="$suoi" 'BEGIN {
  printf "60 lines open, MiB more than a bare editor\t%.2f\tat most 6.00\t%s\n", nostra - sua, nostra - sua <= 6 ? "yes" : "no"
  printf "60 lines open with panel, bars and recovery, MiB more than a bare editor\t%.2f\tat most 6.00\t%s\n", tutta - sua, tutta - sua <= 6 ? "yes" : "no"
  printf "600,000 lines open, bytes a byte of the file\t%.1f\tat most 12.0\t%s\n", nostri, nostri <= 12 ? "yes" : "no"
  printf "the same in a bare editor\t%.1f\t\t\n", suoi
}'
