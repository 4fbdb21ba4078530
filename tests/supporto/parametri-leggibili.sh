#!/bin/sh
# Fails when a row of a parameterised test is told by its bytes or by an address, which are other ones in every run:
# parametri-leggibili.sh TEST_PROGRAM... See ConNome.h.
set -eu
failed=0
for program in "$@"; do
  tests=$("$program" --gtest_list_tests)
  case $tests in *'
  '*) ;; *) echo "$program lists no tests"; failed=1 ;; esac
  found=$(printf '%s\n' "$tests" | LC_ALL=C grep -aE '# GetParam\(\) = .*(-byte object|0x[0-9a-fA-F]{4,})' || true)
  [ -z "$found" ] || { printf '%s\n%s\n' "$program:" "$found"; failed=1; }
done
[ $failed -ne 0 ] || echo "Every row is told by a text."
exit $failed
