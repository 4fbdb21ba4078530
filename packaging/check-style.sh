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

# Windows are the files named frm* (forms), qt* (what else knows Qt), those named after their control, and main.
core=$(echo "$files" | grep '^src/' | grep -vE '/((frm|qt|txt|lbl|ric|bar|pnl|presa)[A-Z][A-Za-z]*|righello)\.(h|cpp)$|^src/app/main\.cpp$')
# shellcheck disable=SC2086
found=$(grep -lE '#include [<"](Q[A-Z]|frm|ui_|[a-z]+/((frm|qt|txt|lbl|ric|bar|pnl|presa)[A-Z]|righello))' $core || true)
[ -z "$found" ] || complain "Qt or a window included in the core: $found"

# The system is in one room, behind headers that name none: outside it the C++ library is enough,
# and the instructions of a processor.
outside=$(echo "$files" | grep '^src/' | grep -vE '^src/sistema/(posix|windows)/')
# shellcheck disable=SC2086
found=$(grep -nE '#include (<([a-z_0-9/]+\.h|cerrno|clocale|csignal)>|"sistema/(posix|windows)/)|[^A-Za-z0-9_>]::[a-z_0-9]+\(|\bgetenv\(|"/(dev|etc|proc|tmp)\b' \
  $outside | grep -v '#include <emmintrin.h>' || true)
[ -z "$found" ] || complain "the system outside its folders in src/sistema: $found"

# A text of a path, which may be none of bytes, is common/TestoPercorso.h's: the library's own follows a code page.
# shellcheck disable=SC2046,SC2086
found=$(grep -nE '(\.|->)string\(\)' $(echo "$core" | grep -v '^src/sistema/posix/') || true)
[ -z "$found" ] || complain "TestoPercorso instead of string(): $found"

# Names that belong to the compiler are used where it gives them, and made nowhere.
# shellcheck disable=SC2046
found=$(grep -noP '(?<![\w"])(_[A-Z]\w*|\w*__\w*)' $(echo "$files" | grep '^src/') |
  grep -vE ':(__(FILE|LINE|func|SSE2)__|__m128i|_Exit|_O_BINARY|_WIN32)$' || true)
[ -z "$found" ] || complain "reserved names: $found"

# A form is a dialog or the main window: what else knows Qt has another mark.
for header in src/*/frm*.h; do
  grep -qE '^class frm[A-Za-z]+( final)? : public (QDialog|QMainWindow|frm[A-Za-z]+)\b' "$header" ||
    complain "no form: $header"
done

exit $failed
