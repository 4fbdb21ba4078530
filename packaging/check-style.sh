#!/bin/sh
# The cheap checks, the same by hand and in CI: format, line ends, tabs, and Qt where the core lives.
set -eu
cd "$(dirname "$0")/.."
failed=0
complain() {
  echo "$1"
  failed=1
}

files=$(find bench fuzz src tests -name '*.h' -o -name '*.cpp' | sort)
# shellcheck disable=SC2086 # a list of words
clang-format --dry-run --Werror $files || complain "clang-format: see above; clang-format -i mends it"

# shellcheck disable=SC2086
found=$(grep -lP '\r|\t| +$' $files CMakeLists.txt cmake/*.cmake README.md CHANGELOG.md || true)
[ -z "$found" ] || complain "carriage return, tab or trailing blank in: $found"
# Tables of the batch program's output stand in the documents as they are printed, tabs included.
found=$(grep -lP '\r| +$' docs/*.md || true)
[ -z "$found" ] || complain "carriage return or trailing blank in: $found"

# Windows are the files named frm*, those named after their control, and main.
core=$(echo "$files" | grep '^src/' | grep -vE '/(frm|txt|lbl|ric)[A-Z][A-Za-z]*\.(h|cpp)$|^src/app/main\.cpp$')
# shellcheck disable=SC2086
found=$(grep -lE '#include [<"](Q[A-Z]|frm|ui_|[a-z]+/(frm|txt|lbl|ric)[A-Z])' $core || true)
[ -z "$found" ] || complain "Qt or a window included in the core: $found"

exit $failed
