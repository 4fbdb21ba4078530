#!/bin/bash
# Runs a command with FONT as the fixed-pitch font of the system: con-carattere.sh FONT COMMAND...
set -euo pipefail
font=$1
shift
dir=$(mktemp -d)
trap 'rm -rf "$dir"' EXIT
cat >"$dir/fonts.conf" <<END
<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "fonts.dtd">
<fontconfig>
  <match target="pattern">
    <test name="family" qual="any"><string>monospace</string></test>
    <edit name="family" mode="prepend" binding="strong"><string>$font</string></edit>
  </match>
  <include>/etc/fonts/fonts.conf</include>
</fontconfig>
END
export FONTCONFIG_FILE="$dir/fonts.conf"
found=$(fc-match -f '%{family}' monospace)
[ "$found" = "$font" ] || {
  echo "$font is not installed: the fixed-pitch font is $found" >&2
  exit 1
}
"$@"
