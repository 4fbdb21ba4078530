#!/bin/sh
# Each fuzz target for half a minute, two at a time.
set -eu
cd "$(dirname "$0")/.."
. fuzz/bersagli.sh

if [ "${1:-}" = uno ]; then
  esegui "$2" -max_total_time="${SECONDI:-30}"
  exit
fi
prepara
# shellcheck disable=SC2086 # a list of words
printf '%s\n' $BERSAGLI | xargs -n 1 -P 2 ./fuzz/prova-breve.sh uno
