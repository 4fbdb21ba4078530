#!/bin/sh
# Fails on a test that was skipped, or is disabled, unless allowed-skips.txt lists it with the reason it gave:
# check-skips.sh BUILD_FOLDER [LIST]. LIST is another list of this folder. Reads what the last run of every test left
# there: esiti.xml of ctest, and where a folder's tests are one test to ctest, as under the sanitizers, their own files in
# esiti/.
set -eu
[ $# -eq 1 ] || [ $# -eq 2 ] || { echo "check-skips.sh BUILD_FOLDER [LIST]" >&2; exit 2; }
folder=$1
name=${2:-allowed-skips.txt}
list=$(cd "$(dirname "$0")" && pwd)/$name
grep -q '<testcase ' "$folder/esiti.xml" 2>/dev/null || {
  echo "check-skips.sh: no results of tests in $folder/esiti.xml" >&2
  exit 2
}
set -- "$folder/esiti.xml"
for results in "$folder"/esiti/*.xml; do
  [ ! -f "$results" ] || set -- "$@" "$results"
done

# Prints "NAME: REASON" of each test that was not run. A reason is what a test says in the line after "FILE:LINE: Skipped"
# (GoogleTest), or behind "skipped: " (our scripts).
skipped() {
  awk '
    function attribute(name,   at, rest) {
      at = index($0, " " name "=\"")
      if (at == 0) return ""
      rest = substr($0, at + length(name) + 3)
      return substr(rest, 1, index(rest, "\"") - 1)
    }
    function line_after(sign,   rest) {
      rest = substr($0, index($0, sign) + length(sign))
      return substr(rest, 1, match(rest, /["\n]|&#x0A;/) - 1)
    }
    BEGIN { RS = "<testcase"; ORS = "\n" }
    NR > 1 && (/<skipped/ || /status="disabled"/ || /result="suppressed"/) {
      name = attribute("name")
      suite = attribute("classname")
      if (suite != "" && suite != name) name = suite "." name
      sub(/ *# GetParam\(\).*/, "", name)
      if (!/<skipped/) reason = "disabled"
      else if (index($0, ": Skipped\n")) reason = line_after(": Skipped\n")
      else if (index($0, "&#x0A;")) reason = line_after("&#x0A;")
      else if (index($0, "skipped: ")) reason = line_after("skipped: ")
      else reason = attribute("message")
      print name ": " reason
    }' "$@" | sed 's/&quot;/"/g; s/&apos;/'"'"'/g; s/&lt;/</g; s/&gt;/>/g; s/&amp;/\&/g'
}

# allowed NAME REASON
allowed() {
  while IFS= read -r line; do
    case $line in '' | '#'*) continue ;; esac
    # shellcheck disable=SC2254 # a pattern
    case $1 in ${line%%: *}) [ "$2" != "${line#*: }" ] || return 0 ;; esac
  done <"$list"
  return 1
}

failed=0
found=$(skipped "$@")
[ -n "$found" ] || { echo "No test was skipped."; exit 0; }
while IFS= read -r skip; do
  if allowed "${skip%%: *}" "${skip#*: }"; then
    echo "skipped, as listed: $skip"
  else
    echo "SKIPPED, and not listed in packaging/$name: $skip"
    failed=1
  fi
done <<END
$found
END
exit $failed
