#!/bin/bash
# Makes a release: rilascia.sh [--prova] VERSION (four numbers, as in CMakeLists.txt)
# Everything is made in a clone, in build/rilascio: the commit that gives the changelog's unreleased lines the version and
# the day, the tag, the package, its bill of materials (SPDX), checksums and notes. Only when all of it is there do commit
# and tag come back here; with --prova not even then. What remains, and is for a person to do, is said at the end.
set -euo pipefail
cd "$(dirname "$0")/.."
try=
[ "${1:-}" != --prova ] || { try=yes; shift; }
version=${1:-}
[[ $version =~ ^[0-9]+\.[0-9]+\.[0-9]+\.[0-9]+$ ]] || { echo "rilascia.sh [--prova] VERSION" >&2; exit 2; }
[ -z "$(git status --porcelain)" ] || { echo "rilascia.sh: there are changes that are not committed" >&2; exit 1; }
! git rev-parse -q --verify "refs/tags/v$version" >/dev/null || { echo "rilascia.sh: v$version is there already" >&2; exit 1; }
grep -A 2 '^## Unreleased' CHANGELOG.md | grep -q '^- ' || { echo "rilascia.sh: nothing is unreleased" >&2; exit 1; }

here=$PWD
out=$here/build/rilascio
sources=$out/fonti
rm -rf "$out"
mkdir -p "$out"
git clone -q . "$sources"
cd "$sources"

day=$(date -u +%Y-%m-%d)
sed -i "s/^## Unreleased$/## Unreleased\n\n## $version - $day/" CHANGELOG.md
sed -i "s/^project(parvik32 VERSION [0-9.]*/project(parvik32 VERSION $version/" CMakeLists.txt
grep -q "^project(parvik32 VERSION $version " CMakeLists.txt || { echo "rilascia.sh: no version in CMakeLists.txt" >&2; exit 1; }
packaging/rilasci.sh note "$version" >"$out/note.md"
for who in user.name user.email; do git config "$who" "$(git -C "$here" config "$who")"; done
git commit -qam "Release $version"
git tag -a "v$version" -F "$out/note.md"

packaging/pacchetto.sh
cp build/pacchetto/*.deb "$out/"
cd "$out"
package=$(basename ./*.deb)
"$sources/packaging/distinta.sh" "$package" >"${package%.deb}.spdx"
sha256sum "$package" "${package%.deb}.spdx" note.md >SHA256SUMS

cd "$here"
if [ -n "$try" ]; then
  echo "Made in build/rilascio, and nothing else changed:"
  find "$out" -maxdepth 1 -type f | sort
  exit 0
fi
git fetch -q "$sources" "refs/tags/v$version:refs/tags/v$version"
git merge -q --ff-only "v$version"
echo "Released $version: commit and tag are here, the files in build/rilascio."
echo "Left to do: git push --follow-tags; put the files and note.md where users find them."
