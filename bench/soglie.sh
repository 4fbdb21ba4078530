#!/usr/bin/env bash
# Counts the instructions of reading, writing, rendering and typing, and holds them against bench/soglie.txt.
#   bench/soglie.sh             fails when something takes 5 % more than it is allowed
#   bench/soglie.sh --rinnova   writes the counts of today
set -euo pipefail
cd "$(dirname "$0")/.."
soglie=bench/soglie.txt
stanza=5 # per cent
# The C library picks its memory functions by the processor: here it takes those that every one of them has.
export GLIBC_TUNABLES=glibc.cpu.hwcaps=-AVX512VL,-AVX512BW,-AVX2,-AVX,-AVX_Fast_Unaligned_Load,-SSE4_2,-SSE4_1,-SSSE3,-BMI2,-ERMS,-FSRM

# The toolkit does nothing by chance, and needs no display.
export QT_QPA_PLATFORM=offscreen QT_HASH_SEED=0

# What the counts depend on besides the sources. With anything else they say nothing.
ambiente() {
  dpkg-query -W -f '#= ${Package} ${Version}\n' g++-12 libc6 libstdc++6 libqt6widgets6 libharfbuzz0b valgrind
  echo "#= font $(fc-match monospace)"
  echo "#= processor $(uname -m)$(grep -qw avx2 /proc/cpuinfo && echo ' with avx2')"
}

# What is counted, one a line: a name, the function that switches the counting on and off, and the command.
lavori() {
  cat <<'LAVORI'
read parvik::bench::Misurata* build/release/bench/bench_conta read
write parvik::bench::Misurata* build/release/bench/bench_conta write
render parvik::bench::Misurata* build/release/bench/bench_conta render
key *::Battitura::Premi* build/release/bench/finestre/bench_tasti editor
LAVORI
}

conta() { # FUNCTION COMMAND...
  local funzione=$1 registro
  shift
  registro=$(mktemp)
  if ! valgrind --tool=callgrind --callgrind-out-file=/dev/null --toggle-collect="$funzione" "$@" \
    >/dev/null 2>"$registro"; then
    cat "$registro" >&2
    rm "$registro"
    return 1
  fi
  sed -n 's/^==[0-9]*== Collected : \([0-9]*\).*/\1/p' "$registro"
  rm "$registro"
}

command -v valgrind >/dev/null || { echo "bench/soglie.sh needs valgrind (packaging/ci-packages.txt)" >&2; exit 2; }
env -u GLIBC_TUNABLES cmake --preset bench >/dev/null
env -u GLIBC_TUNABLES cmake --build --preset bench --target bench_conta bench_tasti >/dev/null

nuove=$(mktemp)
trap 'rm -f "$nuove"' EXIT
lavori | while read -r nome funzione comando; do
  # shellcheck disable=SC2086 # a command and its arguments
  echo "$nome $(conta "$funzione" $comando </dev/null)"
done >"$nuove"
[ "$(wc -l <"$nuove")" = "$(lavori | wc -l)" ] || exit 2
if grep -vE '^[a-z-]+ [1-9][0-9]*$' "$nuove" >&2; then
  echo "nothing was counted" >&2
  exit 2
fi

if [ "${1:-}" = --rinnova ]; then
  { sed -n '/^# /p' "$soglie"; ambiente; cat "$nuove"; } >"$soglie.nuovo"
  mv "$soglie.nuovo" "$soglie"
  cat "$soglie"
  exit 0
fi

if ! diff <(grep '^#=' "$soglie") <(ambiente); then
  cat "$nuove"
  echo "not compared: $soglie was counted with other packages than these, see above"
  exit 0
fi
awk -v stanza=$stanza '
  NR == FNR { if (!/^#/ && NF == 2) soglia[$1] = $2; next }
  !($1 in soglia) { print $1 ": no count is kept; bench/soglie.sh --rinnova"; male = 1; next }
  {
    visto[$1] = 1
    scarto = 100 * ($2 / soglia[$1] - 1)
    detto = sprintf("%s: %d instructions, %+.1f %% of %d", $1, $2, scarto, soglia[$1])
    if (scarto > stanza) { detto = detto ": SLOWER than allowed"; male = 1 }
    if (scarto < -stanza) detto = detto ": faster; bench/soglie.sh --rinnova keeps it so"
    print detto
  }
  END {
    for (nome in soglia) if (!(nome in visto)) { print nome ": kept, but not counted any more"; male = 1 }
    exit male
  }' "$soglie" "$nuove"
