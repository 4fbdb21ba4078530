# shellcheck shell=sh disable=SC2034
# Read by the scripts beside it. The targets, and how long an input may be.
BERSAGLI='profilo:256 codici:128 documento:512 tasti:256 stili:256 modello:512 catalogo:512 stampa:256 verifica:512'

# Call stacks for every allocation, and keeping freed memory for long, would take a third of the time: what is found is
# looked at with build/fuzz/fuzz/fuzz_TARGET alone.
export ASAN_OPTIONS="malloc_context_size=0:quarantine_size_mb=1:${ASAN_OPTIONS:-}"

# Builds everything, makes the seeds and the folders.
prepara() {
  cmake --preset fuzz > /dev/null
  cmake --build --preset fuzz
  rm -rf build/fuzz/semi
  ./fuzz/semi.sh build/fuzz/semi
  mkdir -p build/fuzz/trovati build/fuzz/registri
}

# esegui TARGET:LENGTH OPTION...: one target, its own corpus growing in build/fuzz/corpus. What violates a
# property, crashes, leaks, takes ten seconds or 2 GB is left in build/fuzz/trovati, and fails.
esegui() {
  nome=${1%:*}
  lunghezza=${1#*:}
  shift
  mkdir -p "build/fuzz/corpus/$nome"
  if nice -n 19 "build/fuzz/fuzz/fuzz_$nome" -max_len="$lunghezza" -dict=fuzz/parole.dict -timeout=10 \
    -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="build/fuzz/trovati/$nome-" "$@" \
    "build/fuzz/corpus/$nome" "build/fuzz/semi/$nome" > "build/fuzz/registri/$nome" 2>&1; then
    esito=bene
  else
    esito='TROVATO QUALCOSA'
  fi
  awk -v nome="$nome" -v esito="$esito" '
    /^stat::number_of_executed_units/ { esecuzioni = $2 }
    /^stat::average_exec_per_sec/ { ritmo = $2 }
    /^Done/ { secondi = $5 }
    END { printf "%-10s %12d esecuzioni %8d al secondo %8d secondi  %s\n", nome, esecuzioni, ritmo, secondi, esito }
  ' "build/fuzz/registri/$nome"
  [ "$esito" = bene ] || { tail -n 40 "build/fuzz/registri/$nome"; return 1; }
}
