#!/bin/bash
# Runs a command with a display and a print server of its own: con-stampante.sh COMMAND...
# The server listens on a socket in a folder of its own and has one queue, "prova", whose jobs are kept in
# $PARVIK_LAVORI. Ends with 77 and says why where neither can be started; else with the command's status.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

skip() {
  echo "skipped: $1"
  exit 77
}

for program in cupsd Xvfb pdftotext pdffonts lpadmin; do
  PATH=$PATH:/usr/sbin command -v "$program" >/dev/null || skip "there is no $program"
done
# The server refuses to run its last steps for anybody but root.
[ "$(id -u)" -eq 0 ] || skip "the print server can only be started by root"

dir=$(mktemp -d /tmp/stampante-XXXXXX)
children=()
# shellcheck disable=SC2317 # the trap calls it
clean() {
  for child in "${children[@]}"; do
    kill "$child" 2>/dev/null || true
    wait "$child" 2>/dev/null || true
  done
  rm -rf "$dir"
}
trap clean EXIT

# --- the print server
mkdir -p "$dir"/{etc/ppd,spool/tmp,cache,state/certs,bin/backend,lavori}
chmod 755 "$dir"
chmod 777 "$dir/lavori"
for part in cgi-bin daemon driver filter monitor notifier; do
  [ ! -e "/usr/lib/cups/$part" ] || ln -s "/usr/lib/cups/$part" "$dir/bin/$part"
done
install -m 700 "$here/cattura" "$dir/bin/backend/cattura"
cat >"$dir/etc/cups-files.conf" <<END
ServerRoot $dir/etc
ServerBin $dir/bin
RequestRoot $dir/spool
TempDir $dir/spool/tmp
CacheDir $dir/cache
StateDir $dir/state
ErrorLog $dir/error_log
AccessLog $dir/access_log
PageLog $dir/page_log
FileDevice Yes
SystemGroup root
END
cat >"$dir/etc/cupsd.conf" <<END
Listen $dir/cups.sock
Browsing Off
DefaultAuthType None
WebInterface No
<Location />
  Order allow,deny
  Allow all
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow all
  </Limit>
</Policy>
END
cupsd=$(PATH=$PATH:/usr/sbin command -v cupsd)
"$cupsd" -f -c "$dir/etc/cupsd.conf" -s "$dir/etc/cups-files.conf" >"$dir/cupsd.log" 2>&1 &
children+=($!)
export CUPS_SERVER="$dir/cups.sock"
for _ in $(seq 50); do
  [ -S "$dir/cups.sock" ] && lpstat -r >/dev/null 2>&1 && break
  sleep 0.1
done
lpstat -r 2>/dev/null | grep -q 'is running' || skip "cupsd did not start: $(tail -n 3 "$dir/cupsd.log" "$dir/error_log" 2>&1)"
PATH=$PATH:/usr/sbin lpadmin -p prova -E -v "cattura:$dir/lavori" -P "$here/prova.ppd" -o printer-error-policy=abort-job 2>"$dir/lpadmin.log" ||
  skip "no queue could be made: $(cat "$dir/lpadmin.log")"

# --- the display
exec {readable}< <(exec Xvfb -displayfd 1 -screen 0 1280x1024x24 -nolisten tcp 2>"$dir/xvfb.log")
children+=($!)
read -r -t 20 -u "$readable" number || skip "Xvfb did not start: $(cat "$dir/xvfb.log")"
export DISPLAY=":$number"

export PARVIK_LAVORI="$dir/lavori"
set +e
"$@"
status=$?
[ "$status" -eq 0 ] || tail -n 20 "$dir/error_log"
exit "$status"
