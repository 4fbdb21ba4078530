#!/bin/bash
# Checks what `cmake --install` lays out: check-installazione.sh [BUILD_FOLDER]. Every validator's every finding is an
# error. The packages that this needs are in ci-packages.txt.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}
id=org.ordavia.parvik32
failed=0

folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

complain() {
  echo "$1" >&2
  failed=1
}

# expect WHAT EXPECTED ACTUAL
expect() {
  [ "$2" = "$3" ] || complain "$1: $3, and not $2"
}

# Under a prefix of its own, once more with DESTDIR: the same tree.
cmake --install "$build" --prefix "$folder/a" >"$folder/log"
DESTDIR=$folder/b cmake --install "$build" --prefix /opt/ordavia >"$folder/log"
diff -r "$folder/a" "$folder/b/opt/ordavia" || complain "DESTDIR and prefix lay out different trees"
tree=$folder/a

desktop-file-validate "$tree/share/applications/$id.desktop" || complain "desktop-file-validate: see above"
appstreamcli validate --strict --no-net "$tree/share/metainfo/$id.metainfo.xml" >"$folder/appstream" ||
  complain "appstreamcli: $(cat "$folder/appstream")"
# That a page mentions the other one is no mistake where neither is installed.
pages=$(mandoc -T lint "$tree"/share/man/man1/*.1 "$tree"/share/man/it/man1/*.1 |
  grep -v 'referenced manual not found: Xr parvik32' || true)
[ -z "$pages" ] || complain "mandoc: $pages"

# The file type: of a template, of a disk image, of a text with another name. The system's own types lie beside it.
types=$folder/tipi/mime
mkdir -p "$types/packages"
cp /usr/share/mime/packages/freedesktop.org.xml "$tree/share/mime/packages/$id.xml" "$types/packages/"
export XDG_DATA_HOME=$folder/nessuna XDG_DATA_DIRS=$folder/tipi
update-mime-database "$types" >"$folder/mime" 2>&1 || complain "update-mime-database: $(cat "$folder/mime")"
[ ! -s "$folder/mime" ] || complain "update-mime-database: $(cat "$folder/mime")"
type_of() {
  gio info -a standard::content-type "$1" | sed -n 's/.*standard::content-type: //p'
}
mke2fs -q -F "$folder/disco.img" 512 >"$folder/log"
cp "$folder/disco.img" "$folder/DISCO.IMG"
for template in esempio/D_IMG/*.IMG; do
  expect "type of $template" text/x-velkor-template "$(type_of "$template")"
done
expect "type of a disk image" application/x-raw-disk-image "$(type_of "$folder/disco.img")"
expect "type of a disk image in capitals" application/x-raw-disk-image "$(type_of "$folder/DISCO.IMG")"
expect "type of the catalogue" text/plain "$(type_of esempio/D_IMG/CAMPI.TXT)"

# The manual: as many pages as its sources have, each leading only to what is installed with it.
manual=$tree/share/parvik32/manuale
expect "pages of the manual" "$(find docs/manuale -name '*.md' | wc -l)" "$(find "$manual" -name '*.html' 2>/dev/null | wc -l)"
while IFS=: read -r page target; do
  [ -e "$(dirname "$page")/$target" ] || complain "$page leads to $target, which is not installed"
done < <(grep -roE '(href|src)="[^"]+"' "$manual" | sed -E 's/(href|src)="([^"]+)"$/\2/')

# The programs, from where they were installed to.
expect "version of the editor" "Ordavia (parvik32) Version 7.0.2" "$("$tree/bin/parvik32" --version)"
expect "types of the example" 22 \
  "$("$tree/bin/parvik32-batch" --velkor "$tree/share/doc/ordavia/examples/velkor" tipi | wc -l)"

# Completion, in a real bash.
# complete WORD...: what the last word is completed to.
complete_line() {
  PATH=$tree/bin:$PATH bash -c '
    . /usr/share/bash-completion/bash_completion
    . "$1/share/bash-completion/completions/$2"
    COMP_WORDS=("${@:2}") COMP_CWORD=$(($# - 2)) COMP_LINE="${*:2}" COMP_POINT=${#COMP_LINE} COMPREPLY=()
    function=$(complete -p "$2" | sed "s/.*-F \([^ ]*\).*/\1/")
    "$function" "$2" "${COMP_WORDS[COMP_CWORD]}" "${COMP_WORDS[COMP_CWORD - 1]}"
    printf "%s\n" "${COMPREPLY[@]}" | sort -n | xargs' bash "$tree" "$@"
}
velkor=esempio
expect "completion of a command" stampa "$(complete_line parvik32-batch st)"
expect "completion of all commands" "campi codici normalizza spiega stampa tipi verifica verifica-catalogo" "$(complete_line parvik32-batch '')"
expect "completion of a section" corpo "$(complete_line parvik32-batch campi --tipo 1 --sezione c)"
expect "completion of a type" "2 20 21 22" "$(complete_line parvik32-batch --velkor $velkor campi --tipo 2)"
expect "completion of a template" esempio/D_IMG/FATT01.IMG \
  "$(complete_line parvik32-batch stampa --tipo 1 esempio/D_IMG/FATT0)"
expect "completion of options" "--campi --help --tipo --velkor --veri -o" "$(complete_line parvik32-batch stampa -)"
expect "completion of the editor's options" --esempio "$(complete_line parvik32 --es)"
expect "completion of the editor's type" "3" "$(complete_line parvik32 --velkor $velkor --tipo 3)"
expect "completion of the editor's template" esempio/D_IMG/DDT01.IMG "$(complete_line parvik32 esempio/D_IMG/DD)"

[ $failed -ne 0 ] || echo "Nothing found."
exit $failed
