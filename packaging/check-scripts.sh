#!/bin/sh
# Looks for mistakes in every script of the project: check-scripts.sh. Every finding is an error.
set -eu
cd "$(dirname "$0")/.."
{
  git ls-files '*.sh'
  printf '%s\n' .ci/run tests/carta/cattura
} | xargs shellcheck
shellcheck -s bash packaging/completamento/*
echo "Nothing found."
