#!/bin/bash
# Builds benchmarks, and tells of it on standard error: costruisci.sh TARGET...
set -euo pipefail
cd "$(dirname "$0")/.."
{
  cmake --preset bench
  cmake --build --preset bench --target "$@"
} >&2
