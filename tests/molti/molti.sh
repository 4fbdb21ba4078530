#!/bin/bash
# Runs the commands of docs/molti-modelli.md on many templates, stopped on the way and given again:
# molti.sh PROGRAMS HOW_MANY. PROGRAMS is the folder of parvik32-batch.
set -euo pipefail
programs=$(cd "$1" && pwd)
many=$2
root=$(cd "$(dirname "$0")/../.." && pwd)
page=$root/docs/molti-modelli.md
export PATH=$programs:$PATH VELKOR=$root/esempio
unset MAKEFLAGS MFLAGS

dir=$(mktemp -d)
session=
clean() {
  [ -z "$session" ] || kill -KILL -- "-$session" 2>/dev/null || true
  rm -rf "$dir"
}
trap clean EXIT
passed=0
failed=0

# expect WHAT EXPECTED ACTUAL
expect() {
  if [ "$2" = "$3" ]; then
    passed=$((passed + 1))
  else
    echo "FAILED: $1: $3, and not $2" >&2
    failed=$((failed + 1))
  fi
}

# block COMMENT: the fenced block of the page behind that comment.
block() {
  awk -v comment="<!-- $1 -->" '
    $0 == comment { found = 1; next }
    found && /^```/ { if (inside) exit; inside = 1; next }
    inside' "$page" | grep . || { echo "the page has no block \"$1\"" >&2; exit 2; }
}
for name in stampa normalizza make; do block "run: $name" >"$dir/$name.sh"; done

# Templates that each tell their number, with bytes that normalising changes: delimiters as they are in memory.
mkdir -p "$dir/lavoro"
cd "$dir/lavoro"
mkdir D_IMG testi normali
for number in $(seq -w "$many"); do
  printf 'Modello %s \xABV1;10L\xBB\r\n' "$number" | cat - "$root/esempio/D_IMG/FATT01.IMG" >"D_IMG/FATT$number.IMG"
done
block "file: Makefile" >Makefile

# What each must become: by one run over all of them.
cp -r D_IMG "$dir/originali"
cp -r D_IMG "$dir/normali"
parvik32-batch --velkor "$VELKOR" stampa --tipo 1 -o "$dir/testi" D_IMG/*.IMG
parvik32-batch --velkor "$VELKOR" normalizza --tipo 1 "$dir"/normali/*.IMG
expect "templates that normalising would leave as they are" 0 \
  "$(cd "$dir/normali" && find . -type f -exec cmp -s {} ../originali/{} \; -print | wc -l)"
length=$(($(wc -c <"$dir/testi") / many))

# results FOLDER: what the killed have finished there; helper files are hidden.
results() {
  find "$1" -maxdepth 1 -type f ! -name '.*'
}

# Those that are not whole. All have one length, and the number that their name says.
torn() {
  results "$1" | while read -r file; do
    number=${file##*/FATT}
    [ "$(wc -c <"$file")" -eq "$2" ] && head -n 1 "$file" | grep -aqF "Modello ${number%.*} " || echo "$file"
  done
}

# stop_at PART SIGNAL WHOM FOLDER COMMAND: begins a command in a session of its own and stops it, the tool alone or all,
# as soon as that part of the results is there.
stop_at() {
  local part=$1 signal=$2 whom=$3 folder=$4 waited
  setsid bash "$5" >"$dir/uscita" 2>&1 &
  session=$!
  for ((waited = 0; waited < 6000; waited++)); do
    [ "$(results "$folder" | wc -l)" -lt $((many * part / 4)) ] || break
    kill -0 "$session" 2>/dev/null || break
    sleep 0.02
  done
  case $whom in
    all) kill "-$signal" -- "-$session" || true ;;
    *) kill "-$signal" "$(pgrep -s "$session" -o -f "$whom")" || true ;;
  esac
  wait "$session" 2>/dev/null || true
  while pgrep -s "$session" >/dev/null; do sleep 0.02; done  # a tool may leave jobs behind that still end
  session=
  expect "$5: stopped on the way" yes "$([ "$(results "$folder" | wc -l)" -lt "$many" ] && echo yes || echo "at the end")"
}

# try NAME FOLDER TOOL LENGTH: both stops, and what is there after them; then to the end.
try() {
  local name=$1 folder=$2 tool=$3
  stop_at 1 TERM "$tool" "$folder" "$dir/$name.sh"
  expect "$name, SIGTERM: results that are not whole" "" "$(torn "$folder" "$4")"
  stat -c '%i %y %n' "$folder"/F* >"$dir/prima"
  stop_at 2 KILL all "$folder" "$dir/$name.sh"
  expect "$name, SIGKILL: results that are not whole" "" "$(torn "$folder" "$4")"
  stat -c '%i %y %n' "$folder"/F* >>"$dir/prima"
  bash "$dir/$name.sh" >"$dir/uscita" 2>&1
  expect "$name: the last run's status" 0 $?
  expect "$name: results" "$many" "$(results "$folder" | wc -l)"
  expect "$name: helper files left behind" "" "$(find "$folder" -name '.*' -type f)"
  stat -c '%i %y %n' "$folder"/F* >"$dir/dopo"
  expect "$name: results written again" 0 "$(sort -u "$dir/prima" | grep -cvxFf "$dir/dopo" || true)"
  echo "$name: stopped twice, $(wc -l <"$dir/prima") results seen on the way, $many in the end"
}

try stampa testi '/parallel ' "$length"
expect "texts as rendered alone" same "$(cat testi/*.txt | cmp - "$dir/testi" && echo same)"

try normalizza normali '/parallel ' "$(wc -c <"$dir/normali/FATT$(printf "%0${#many}d" 1).IMG")"
expect "templates as normalised alone" "" "$(diff -rq normali "$dir/normali")"
expect "originals" "" "$(diff -rq D_IMG "$dir/originali")"

rm -r testi && mkdir testi
try make testi '^make ' "$length"
expect "texts as rendered alone, by make" same "$(cat testi/*.txt | cmp - "$dir/testi" && echo same)"
expect "left to do" "make: Nothing to be done for 'testi'." "$(LC_ALL=C make VELKOR="$VELKOR")"

# A template that cannot be read fails, and both tools say so.
mkdir -p "$dir/guasto/D_IMG/FATT1.IMG" "$dir/guasto/testi"
cd "$dir/guasto"
expect "parallel with a failure" fails "$(bash "$dir/stampa.sh" >"$dir/uscita" 2>&1 && echo succeeds || echo fails)"
expect "make with a failure" fails "$(make -f ../lavoro/Makefile VELKOR="$VELKOR" >"$dir/uscita" 2>&1 && echo succeeds || echo fails)"
find . -name '*.IMG' -delete
: >D_IMG/FATT2.IMG
chmod 644 D_IMG/FATT2.IMG
mkdir D_IMG/FATT3.IMG
rm -f stampa.log
expect "parallel with a folder among the templates" fails \
  "$(bash "$dir/stampa.sh" >"$dir/uscita" 2>&1 && echo succeeds || echo fails)"
expect "statuses in the log" "0 2" "$(tail -n +2 stampa.log | cut -f 7 | sort | xargs)"

echo "$passed passed, $failed failed"
[ $failed -eq 0 ]
