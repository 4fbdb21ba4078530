#!/bin/sh
# Holds check-hardening.sh against tiny programs: one that has everything, and for each thing one that lacks it.
set -eu
cd "$(dirname "$0")"
check=$PWD/check-hardening.sh
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
cd "$dir"
failed=0
built=a

cat >a.cpp <<'END'
#include <cstdio>
#include <cstring>

#ifdef WRITABLE_CODE
asm(".section .both, \"awx\"\n.zero 8\n.text");
#endif

int main(int count, char** words) {
  char copy[64];
  std::strcpy(copy, words[count - 1]);
  std::puts(copy);
}
END

all="-O2 -fPIE -fstack-protector-strong -fstack-clash-protection -fcf-protection -U_FORTIFY_SOURCE
  -D_FORTIFY_SOURCE=2 -frecord-gcc-switches -pie -Wl,-z,relro -Wl,-z,now -Wl,-z,noexecstack"

# expect NAME EXPECTED FLAG...: builds a.cpp as $built with the flags; the check says EXPECTED and no more.
expect() {
  name=$1
  expected=$2
  shift 2
  g++ "$@" -o "$built" a.cpp
  printf '[\n{ "command": "g++ %s -o src/a.o -c a.cpp" }\n]\n' "$*" >compile_commands.json
  compare "$name" "$expected"
}

compare() {
  status=0
  said=$("$check" "$built") || status=1
  case $2 in "$built: hardened"*) must=0 ;; *) must=1 ;; esac
  if [ "$said" = "$2" ] && [ $status -eq $must ]; then
    echo "well: $1"
  else
    printf 'FAILED: %s\n--- expected, status %s\n%s\n--- said, status %s\n%s\n' "$1" $must "$2" $status "$said"
    failed=1
  fi
}

# Makes the program's GNU_STACK header one that means nothing: the table begins at byte 64, 56 bytes a header.
forget_stack() {
  row=$(readelf -lW a | grep -E '^  [A-Z_]+ +0x' | grep -n GNU_STACK | cut -d: -f1)
  printf '\0\0\0\0' | dd of=a bs=1 seek=$((64 + (row - 1) * 56)) conv=notrunc status=none
}

# without FLAG: all the others
without() {
  for flag in $all; do
    [ "$flag" = "$1" ] || printf '%s ' "$flag"
  done
}

# shellcheck disable=SC2086,SC2046 # lists of words
{
  expect "everything" "a: hardened; calls checked by FORTIFY: __strcpy_chk " $all
  forget_stack
  compare "no stack header" "a: no GNU_STACK header: the stack may be executable"
  expect "no PIE" "a: no position-independent executable (-pie)" $(without -pie) -no-pie
  expect "no RELRO" "a: no RELRO (-Wl,-z,relro)" $(without -Wl,-z,relro) -Wl,-z,norelro
  expect "lazy binding" "a: bound lazily, so RELRO is partial (-Wl,-z,now)" $(without -Wl,-z,now) -Wl,-z,lazy
  expect "executable stack" "a: executable stack (-Wl,-z,noexecstack)" $all -Wl,-z,execstack
  expect "writable code" "a: a segment is writable and executable" $all -DWRITABLE_CODE -Wl,--no-warn-rwx-segments
  expect "no stack protector" "a: no stack protector (-fstack-protector-strong)
a: a unit was compiled with -fno-stack-protector" $all -fno-stack-protector
  expect "a weaker stack protector" "a: a unit was compiled without -fstack-protector-strong" \
    $(without -fstack-protector-strong) -fstack-protector
  expect "no stack clash protection" "a: a unit was compiled without -fstack-clash-protection" \
    $(without -fstack-clash-protection)
  expect "no switches" "a: does not tell its switches (-frecord-gcc-switches)" $(without -frecord-gcc-switches)
  expect "no FORTIFY" "a: a unit was compiled without FORTIFY (-O2 -D_FORTIFY_SOURCE=2)" \
    $(without -D_FORTIFY_SOURCE=2)
  if [ "$(uname -m)" = x86_64 ]; then
    expect "no CET" "a: a unit was compiled with -fcf-protection=none
a: no CET instructions (-fcf-protection=full)" $all -fcf-protection=none
  fi
  expect "everything again" "a: hardened; calls checked by FORTIFY: __strcpy_chk " $all
  echo '[]' >compile_commands.json
  compare "no command of a program" "a: no unit of $dir/compile_commands.json is a program's"
  rm compile_commands.json
  compare "commands lost" "a: no compile_commands.json above it, so nothing tells of FORTIFY"

  built=a.so
  module="$(without -pie) -fPIC -shared"
  expect "a module" "a.so: hardened; calls checked by FORTIFY: __strcpy_chk " $module
  expect "a module that is bound lazily" "a.so: bound lazily, so RELRO is partial (-Wl,-z,now)" $module -Wl,-z,lazy
  if [ "$(uname -m)" = x86_64 ]; then
    expect "a module without CET" "a.so: a unit was compiled with -fcf-protection=none
a.so: no CET instructions (-fcf-protection=full)" $module -fcf-protection=none
    expect "a program for a module" "a.so: no position-independent module (-shared -fPIC)
a.so: no CET instructions (-fcf-protection=full)" $all
  fi
}
exit $failed
