#!/bin/sh
# Reads built programs and fails, naming what is missing, unless they are hardened as cmake/Flags.cmake asks:
# check-hardening.sh PROGRAM..., modules (*.so) included.
# What leaves no trace in a program (FORTIFY where the compiler proved every call) is read from the
# compile_commands.json of its build folder. See docs/checks.md.
set -eu
export LC_ALL=C
[ $# -gt 0 ] || { echo "check-hardening.sh PROGRAM..." >&2; exit 2; }

complain() {
  echo "$program: $1"
  failed=1
}

# has TEXT PATTERN
has() {
  printf '%s\n' "$1" | grep -qE -e "$2"
}

# The compile_commands.json in the folder of a program or in one above it; nothing where there is none. Units of
# programs are those below src/; the tests' library of faults is built without FORTIFY on purpose.
commands_of() {
  folder=$(cd "$(dirname "$1")" && pwd)
  while [ ! -f "$folder/compile_commands.json" ]; do
    [ "$folder" != / ] || return 0
    folder=$(dirname "$folder")
  done
  echo "$folder/compile_commands.json"
}

is_module() {
  case $program in *.so) return 0 ;; *) return 1 ;; esac
}

check_position() {
  if is_module; then
    { has "$header" 'Type: +DYN' && ! has "$segments" '^ +INTERP' && ! has "$dynamic" 'TEXTREL'; } ||
      complain "no position-independent module (-shared -fPIC)"
  else
    { has "$header" 'Type: +DYN' && has "$segments" '^ +INTERP' && has "$dynamic" 'FLAGS_1.*\bPIE\b'; } ||
      complain "no position-independent executable (-pie)"
  fi
}

check_addresses() {
  has "$segments" '^ +GNU_RELRO' || complain "no RELRO (-Wl,-z,relro)"
  has "$dynamic" '\(FLAGS\).*BIND_NOW|\(BIND_NOW\)|FLAGS_1.*\bNOW\b' ||
    complain "bound lazily, so RELRO is partial (-Wl,-z,now)"
}

# A segment's flags stand between its sizes and its alignment.
check_segments() {
  has "$segments" '^ +GNU_STACK ' || complain "no GNU_STACK header: the stack may be executable"
  has "$segments" '^ +GNU_STACK .* R?W?E +0x' && complain "executable stack (-Wl,-z,noexecstack)"
  has "$segments" '^ +LOAD .* RWE +0x' && complain "a segment is writable and executable"
  return 0
}

# GCC writes the switches of every unit into the program, each set of switches once (-frecord-gcc-switches).
check_switches() {
  switches=$(readelf -p .GCC.command.line "$program" 2>/dev/null | grep -E '^ +\[ *[0-9a-f]+\]' || true)
  if [ -z "$switches" ]; then
    complain "does not tell its switches (-frecord-gcc-switches)"
    return
  fi
  for switch in -fstack-protector-strong -fstack-clash-protection $cet; do
    has "$(printf '%s\n' "$switches" | grep -vFe " $switch")" . && complain "a unit was compiled without $switch"
  done
  for switch in -fno-stack-protector -fno-stack-clash-protection ${cet:+-fcf-protection=none}; do
    has "$switches" "$switch" && complain "a unit was compiled with $switch"
  done
  return 0
}

check_stack_protector() {
  has "$imports" '^__stack_chk_fail(@|$)' || complain "no stack protector (-fstack-protector-strong)"
}

# The linker marks a program for CET only if the C library's start files are marked, which Debian's are not:
# the landing pad at the begin of main, or of what a module exports, shows that the instructions are there.
check_cet() {
  [ -n "$cet" ] || return 0
  has "$(readelf -nW "$program")" 'x86 feature:.*IBT.*SHSTK' && return
  start=$(readelf -nW "$(g++ -print-file-name=Scrt1.o)")
  has "$start" 'x86 feature:.*IBT.*SHSTK' && complain "not marked for CET, though the C library is ($cet)"
  entry=main
  ! is_module || entry=$(readelf --dyn-syms -W "$program" | awk '$4 == "FUNC" && $7 != "UND" { print $8; exit }')
  has "$(objdump -d --no-show-raw-insn "$program" | grep -A1 "<$entry>:\$")" 'endbr64' ||
    complain "no CET instructions ($cet)"
}

check_fortify() {
  commands=$(commands_of "$program")
  if [ -z "$commands" ]; then
    complain "no compile_commands.json above it, so nothing tells of FORTIFY"
    return
  fi
  units=$(grep -e ' -o src/' "$commands" || true)
  [ -n "$units" ] || complain "no unit of $commands is a program's"
  has "$(printf '%s\n' "$units" | grep -vE -e ' -O[123s] .*-D_FORTIFY_SOURCE=[23] ')" . &&
    complain "a unit was compiled without FORTIFY (-O2 -D_FORTIFY_SOURCE=2)"
  return 0
}

checked_calls() {
  calls=$(printf '%s\n' "$imports" | sed -n 's/^\(__[a-z]*_chk\)@.*$/\1/p' | tr '\n' ' ')
  echo "${calls:-none was left to check}"
}

check() {
  program=$1
  header=$(readelf -hW "$program")
  segments=$(readelf -lW "$program")
  dynamic=$(readelf -dW "$program")
  imports=$(readelf --dyn-syms -W "$program" | awk '$7 == "UND" { print $8 }')
  case $header in *X86-64*) cet=-fcf-protection=full ;; *) cet= ;; esac
  check_position
  check_addresses
  check_segments
  check_stack_protector
  check_switches
  check_cet
  check_fortify
}

all=0
for named in "$@"; do
  failed=0
  check "$named"
  [ $failed -ne 0 ] || echo "$named: hardened; calls checked by FORTIFY: $(checked_calls)"
  [ $failed -eq 0 ] || all=1
done
exit $all
