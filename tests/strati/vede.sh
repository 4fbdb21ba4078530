#!/bin/sh
# Fails unless exactly the folders that are named can be included from: vede.sh COMPILER SRC "INCLUDE_DIRECTORY ..." FOLDER...
set -eu
compiler=$1 src=$2 directories=$3
shift 3
options=
for directory in $directories; do options="$options -I$directory"; done

failed=0
opens=0
for folder in "$src"/*/; do
  folder=$(basename "$folder")
  # The windows' own headers want the toolkit: any other tells whether the folder is open.
  header=$(cd "$src" && find "$folder" -maxdepth 1 -name '[A-Z]*.h' | sort | head -n 1)
  [ -n "$header" ] || continue
  # shellcheck disable=SC2086 # a list of words
  if printf '#include "%s"\n' "$header" | "$compiler" -std=c++20 -E $options -x c++ - >/dev/null 2>&1; then open=yes; else open=no; fi
  case " $* " in *" $folder "*) allowed=yes opens=$((opens + 1)) ;; *) allowed=no ;; esac
  [ $open = $allowed ] || { echo "$header: open $open, should be $allowed"; failed=1; }
done
[ $opens -eq $# ] || { echo "a folder of $* has no header"; failed=1; }
[ $failed -ne 0 ] || echo "Open: $*"
exit $failed
