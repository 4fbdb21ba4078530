#!/bin/bash
# Runs a command with a display of its own, and no window manager: con-schermo.sh COMMAND...
set -euo pipefail
numero=$(mktemp)
Xvfb -displayfd 3 -screen 0 2560x900x24 -nolisten tcp 3>"$numero" 2>/dev/null &
schermo=$!
trap 'kill "$schermo"; wait "$schermo" || true; rm -f "$numero"' EXIT
for _ in $(seq 100); do
  [ ! -s "$numero" ] || break
  sleep 0.1
done
unset WAYLAND_DISPLAY QT_QPA_PLATFORM
DISPLAY=:$(cat "$numero") "$@"
