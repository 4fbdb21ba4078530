#!/bin/sh
# Reads the releases in CHANGELOG.md and writes them as others want them: rilasci.sh appstream|debian|note VERSION
#   appstream  the <release> elements of the metainfo file
#   debian     a Debian changelog
#   note       the lines of the newest release, for people
# A release is a heading "## VERSION - DATE". What stands under "## Unreleased" becomes VERSION, of the day that
# SOURCE_DATE_EPOCH names, else of the last commit, else of today.
set -eu
[ $# -eq 2 ] || { echo "rilasci.sh appstream|debian|note VERSION" >&2; exit 2; }
cd "$(dirname "$0")/.."

seconds=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || date +%s)}
today=$(date -u -d "@$seconds" +%Y-%m-%d)
export LC_ALL=C

# One line a change: VERSION, DATE and TEXT between tabs.
changes() {
  awk -v unreleased="$1" -v today="$today" '
    function flush() { if (text != "") print version "\t" date "\t" text; text = "" }
    /^## / {
      flush()
      if ($2 == "Unreleased") { version = unreleased; date = today } else { version = $2; date = $4 }
      next
    }
    /^- / { flush(); text = substr($0, 3); next }
    /^  [^ ]/ { if (text != "") text = text " " substr($0, 3); next }
    { flush() }
    END { flush() }' CHANGELOG.md
}

appstream() {
  changes "$1" | sed 's/&/\&amp;/g; s/</\&lt;/g; s/>/\&gt;/g; s/`//g' | awk -F '\t' '
    $1 != version {
      if (version != "") print "        </ul>\n      </description>\n    </release>"
      version = $1
      print "    <release version=\"" $1 "\" date=\"" $2 "\">\n      <description>\n        <ul>"
    }
    { print "          <li>" $3 "</li>" }
    END { if (version != "") print "        </ul>\n      </description>\n    </release>" }'
}

debian() {
  changes "$1" | while IFS='	' read -r version date text; do
    printf '%s\t%s\t%s\n' "$version" "$(date -u -d "$date" '+%a, %d %b %Y %H:%M:%S +0000')" "$text"
  done | awk -F '\t' '
    function sign() { if (version != "") print "\n -- Ordavia <ordavia@ordavia.example>  " date "\n" }
    $1 != version { sign(); version = $1; date = $2; print "ordavia (" $1 ") stable; urgency=medium\n" }
    { rest = "* " $3; margin = "  "
      while (length(rest) > 74) {
        cut = 74
        while (cut > 1 && substr(rest, cut, 1) != " ") cut--
        if (cut == 1) break
        print margin substr(rest, 1, cut - 1); rest = substr(rest, cut + 1); margin = "    "
      }
      print margin rest }
    END { sign() }'
}

case $1 in
  appstream) appstream "$2" ;;
  debian) debian "$2" ;;
  note) changes "$2" | awk -F '\t' 'NR == 1 { first = $1 } $1 == first { print "- " $3 }' ;;
  *) echo "rilasci.sh: appstream, debian or note, not $1" >&2; exit 2 ;;
esac
