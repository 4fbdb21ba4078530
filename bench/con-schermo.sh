#!/bin/bash
# Runs a command with a display of its own, and no window manager: con-schermo.sh COMMAND...
# Ends with 77 and says why where there can be no display; else with the command's status.
set -euo pipefail
numero=$(mktemp)
Xvfb -displayfd 3 -screen 0 2560x900x24 -nolisten tcp 3>"$numero" 2>/dev/null &
schermo=$!
trap 'kill "$schermo" 2>/dev/null || true; wait "$schermo" || true; rm -f "$numero"' EXIT
for _ in $(seq 100); do
  [ ! -s "$numero" ] || break
  sleep 0.1
done
[ -s "$numero" ] || {
  echo "skipped: Xvfb did not start"
  exit 77
}
unset WAYLAND_DISPLAY QT_QPA_PLATFORM
DISPLAY=:$(cat "$numero") "$@"
