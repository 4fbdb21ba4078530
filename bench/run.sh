#!/usr/bin/env bash
# Builds the benchmarks, runs every part, prints one table and writes it, with the machine that it was measured on,
# between the markers of docs/prestazioni.md. Ratios: the machine may be at other work, but had better not be.
set -euo pipefail
cd "$(dirname "$0")/.."
pagina=docs/prestazioni.md
programmi=build/release/bench
dati=$programmi/dati

# Every part is a command that prints rows: what, measure, bar, "yes" or "no" (or nothing), with tabs between them.
misure() {
  "$programmi/bench_misure" --benchmark_repetitions="${RIPETIZIONI:-15}" --benchmark_min_time=0.03 \
    --benchmark_enable_random_interleaving=true 2>"$programmi/misure.txt"
}
modifiche() {
  "$programmi/bench_modifiche" --benchmark_repetitions="${RIPETIZIONI:-15}" --benchmark_min_time=0.03 \
    --benchmark_enable_random_interleaving=true 2>"$programmi/modifiche.txt"
}
voci() {
  "$programmi/bench_voci" --benchmark_repetitions="${RIPETIZIONI:-15}" --benchmark_min_time=0.03 \
    --benchmark_enable_random_interleaving=true 2>"$programmi/voci.txt"
}
processi() {
  "$programmi/bench_dati" "$dati"
  "$programmi/bench_processi" build/release/velkor/PARVIK/parvik32-batch "$programmi" "$dati"
}
parti=(misure modifiche voci processi ./bench/avvio.sh ./bench/tasti.sh ./bench/sostituisci.sh ./bench/anteprima.sh ./bench/ingombro.sh
  ./bench/installato.sh)

macchina() {
  local modello memoria
  modello=$(sed -n 's/^model name[^:]*: //p' /proc/cpuinfo | head -n 1)
  memoria=$(awk '/^MemTotal/ { printf "%.0f GB", $2 / 1e6 }' /proc/meminfo)
  echo "Measured on $(date +%Y-%m-%d): ${modello:-unknown processor}, $(nproc) cores, $memoria; Linux $(uname -r | sed 's/-.*//'), $(c++ --version | head -n 1), Qt $(qtpaths6 --qt-version 2>/dev/null || qmake6 -query QT_VERSION 2>/dev/null || echo unknown)."
}

cmake --preset bench >/dev/null
cmake --build --preset bench

righe=$(mktemp)
tabella=$(mktemp)
trap 'rm -f "$righe" "$tabella"' EXIT
for parte in "${parti[@]}"; do
  echo "Measuring: $parte ..." >&2
  "$parte" >>"$righe"
done

{
  macchina
  echo
  echo "| what | measured | bar | met |"
  echo "|---|---|---|---|"
  sed 's/\t/ | /g; s/^/| /; s/$/ |/; s/  *|/ |/g' "$righe"
} >"$tabella"
column -t -s "$(printf '\t')" "$righe"

awk -v tabella="$tabella" '
  /^<!-- measured: end -->$/ { fuori = 0 }
  !fuori { print }
  /^<!-- measured: begin -->$/ {
    print ""
    while ((getline riga < tabella) > 0) print riga
    print ""
    fuori = 1
  }' fuori=0 "$pagina" >"$pagina.nuova"
mv "$pagina.nuova" "$pagina"
if grep -q "$(printf '\tno$')" "$righe"; then
  echo "Bars were missed: see above, and $pagina for the reasons." >&2
fi
