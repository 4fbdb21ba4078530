#!/bin/sh
# Makes the golden files of the example templates anew: what the batch program prints now becomes what the tests
# expect. Look at the difference before it is committed; the output tests must pass first, they compare the renderer
# with its rules word for word.
#
#   tests/batch/accetta-stampe.sh [PARVIK32-BATCH]
set -eu
radice=$(cd "$(dirname "$0")/../.." && pwd)
programma=${1:-$radice/build/dev/velkor/PARVIK/parvik32-batch}
dove=$radice/tests/dati/stampa
mkdir -p "$dove"

esegui() { "$programma" --velkor "$radice/esempio" "$@"; }

# Template and document type; batch/Esempi.cpp has the same list.
while read -r nome tipo; do
  # The flags of the type, each number once, and the page conditions.
  veri=$(esegui campi --tipo "$tipo" | awk -F '\t' '$2 == "F" { print $3 }' | sort -nu | tr '\n' ',')97,98,99
  modello=$radice/esempio/D_IMG/$nome.IMG
  esegui stampa --tipo "$tipo" -o "$dove/$nome.txt" "$modello"
  esegui stampa --tipo "$tipo" --veri "$veri" -o "$dove/$nome.veri.txt" "$modello"
done <<'MODELLI'
FATT01 1
FATTEST 1
NCRED01 3
DDT01 4
ORDCL01 5
PREV01 7
RICEV01 8
ESTCL01 10
LIST01 12
COLLO01 14
SOLL01 15
MODELLI
