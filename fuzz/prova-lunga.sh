#!/bin/sh
# Each fuzz target for a number of executions, one after the other: prova-lunga.sh [EXECUTIONS [TARGET...]]
set -eu
cd "$(dirname "$0")/.."
. fuzz/bersagli.sh

prepara
esecuzioni=${1:-10000000}
[ $# -eq 0 ] || shift
stato=0
for bersaglio in $BERSAGLI; do
  if [ $# -gt 0 ]; then
    case " $* " in *" ${bersaglio%:*} "*) ;; *) continue ;; esac
  fi
  esegui "$bersaglio" -runs="$esecuzioni" || stato=1
done
exit $stato
