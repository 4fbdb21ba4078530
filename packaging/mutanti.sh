#!/usr/bin/env bash
# Changes the sources in small ways, one at a time, and sees whether the tests notice: mutanti.sh [LIST]
# A line of the list (packaging/mutanti.txt) is a file, a text that stands in it once, and what comes in its place ("-" for
# nothing), with " ==> " between the last two. Works in a copy of the last commit, in a folder of its own. Prints each mutant that no test
# noticed, and how many were; fails when those are fewer than 95 of 100. Takes long, and is no part of continuous integration.
set -euo pipefail
cd "$(dirname "$0")/.."
list=$(realpath "${1:-packaging/mutanti.txt}")
wanted=95
copy=$(mktemp -d)/copia
git worktree add --quiet --detach "$copy" HEAD
trap 'git worktree remove --force "$copy"; rm -r "$(dirname "$copy")"' EXIT
cd "$copy"
export QT_QPA_PLATFORM=offscreen

# What is built and run, quickest first: a folder of tests, and which of them.
tests=("tokens:*Pezzi*:*Codice*:*Filtro*" "template:-*MilioneDiModelli*:*Immagin*" "docs:KeyRules*:CodeGrammar*" "verifica:*" "editor:*"
  "gui:-*Stampa*:*Segnal*:*ogniVoce*")

build() {
  cmake --build --preset dev --target "parvik_$1_tests" >"$copy.log" 2>&1
}
# try: 0 when a test fails, 1 when none does, 2 when the change cannot be built.
try() {
  local test folder
  for test in "${tests[@]}"; do
    folder=${test%%:*}
    build "$folder" || return 2
    # A change that never comes to an end is noticed, too.
    timeout 120 "build/dev/tests/$folder/parvik_${folder}_tests" --gtest_filter="${test#*:}" --gtest_brief=1 \
      --gtest_fail_fast >"$copy.log" 2>&1 || return 0
  done
  return 1
}

cmake --preset dev >/dev/null
for test in "${tests[@]}"; do build "${test%%:*}"; done
if try; then
  echo "the tests fail without any change:" >&2
  tail -n 20 "$copy.log" >&2
  exit 2
fi

all=0
killed=0
while IFS= read -r line; do
  [[ $line && $line != '#'* ]] || continue
  file=${line%%: *}
  change=${line#*: }
  from=${change%% ==> *}
  to=${change#* ==> }
  [ "$to" != - ] || to=
  FROM=$from TO=$to perl -0777 -i -pe '
    my ($from, $to) = @ENV{"FROM", "TO"};
    my $count = () = /\Q$from\E/g;
    die "stands $count times in $ARGV: $from\n" unless $count == 1;
    s/\Q$from\E/$to/' "$file"
  result=0
  try || result=$?
  case $result in
    0) killed=$((killed + 1)) ;;
    1) echo "not noticed: $line" ;;
    *) echo "does not build: $line" ;;
  esac
  [ $result -eq 2 ] || all=$((all + 1))
  git checkout --quiet "$file"
done <"$list"
echo "$killed of $all noticed"
[ "$((killed * 100))" -ge "$((all * wanted))" ]
