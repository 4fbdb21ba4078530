#!/bin/sh
# Makes the first inputs of every fuzz target in a folder, out of the example installation: semi.sh FOLDER
set -eu
esempio=$(cd "$(dirname "$0")/../esempio" && pwd)
mkdir -p "$1"
cd "$1"
mkdir -p catalogo codici documento modello profilo stampa stili tasti verifica
# Bytes, not characters: the files are Windows-1252.
export LC_ALL=C

# Each file NAME.NUMBER holds one line of standard input.
per_riga() {
  awk -v nome="$1" '{ file = nome "." NR; printf "%s", $0 > file; close(file) }'
}

# section, key, file
{ printf 'AMBIENTE\036Dir velkor\036'; cat "$esempio/VELKOR.INI"; } > profilo/esempio
printf 'A\036b\036\357\273\277; nota\r\n [ a ] x\r\n B = "c:\\velkor" \r\nb='\''d'\''\n' > profilo/apici
printf 'A\036b\036\377\376[\0A\0]\0\n\0b\0=\0\254\040\251\003' > profilo/utf16

# A catalogue for each document type: its line, and the first lines of each of its ranges.
awk -F'[,;"]' '
  /^\/\// { if ($0 ~ /^\/\/fine/) corpo = 1; next }
  !corpo { tipo[++tipi] = $0; next }
  { riga[$1 + 0] = $0 }
  END {
    for (t = 1; t <= tipi; t++) {
      file = "catalogo/tipo" t
      printf "%s\n//fine documenti\r\n", tipo[t] > file
      n = split(tipo[t], campo, /[,;"]/)
      for (i = 6; i < n; i += 2) {
        for (k = campo[i] + 0; k <= campo[i + 1] && k < campo[i] + 4; k++) if (k in riga) print riga[k] > file
      }
      close(file)
    }
  }' "$esempio/D_IMG/CAMPI.TXT"

for file in "$esempio"/D_IMG/*.IMG; do
  nome=$(basename "$file" .IMG)
  { printf '\201'; cat "$file"; } > "modello/$nome"
  { printf '\200'; cat "$file"; } > "verifica/$nome"
  sed 's/^/\x81/' "$file" | sort -u | per_riga "verifica/$nome.riga"
  # As in the editor; the marker line separates the sections.
  sed 's/^\xAEC[0-9;CS]*\xAF\r$/\x1E/' "$file" | tr '\256\257' '\253\273' > "$nome.sezioni"
  { printf '\030\002\004\004\005'; cat "$nome.sezioni"; } > "stampa/$nome"
  { cat "$nome.sezioni"; printf '\036\001\000\004\204\000\010\000\003\002\000\060\003\001\000'; } > "tasti/$nome"
  sed 's/$/\x1E\x01\x00\x05\x02\x64\x00\x01\x00\x09\x06\xE1\xC1\x04/' "$nome.sezioni" | sort -u | per_riga "documento/$nome.riga"
  sed 's/.*/\x17\x02\x02\x01\x1F&\r/' "$nome.sezioni" | sort -u | per_riga "stampa/$nome.riga"
  sed 's/$/\x1E\x01\x01\x04\x82\x01\x01\x01\x05\x01\x01\x09/' "$nome.sezioni" | sort -u | per_riga "tasti/$nome.riga"
  sed 's/\xAB\(S;..\)[A-Z]*\xBB/\1/g' "$nome.sezioni" > "stili/$nome"
  cat "$nome.sezioni"
  rm "$nome.sezioni"
done | grep -ao '[^'"$(printf '\253')"']*'"$(printf '\273')" | tr -d '\273' | sort -u | per_riga codici/codice
printf 'S;S;GRaS;SS;;ITbS;' > stili/sovrapposti
