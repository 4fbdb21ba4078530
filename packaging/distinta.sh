#!/bin/sh
# Writes the bill of materials of a Debian package of this project, SPDX 2.3 tag-value: distinta.sh PACKAGE.deb
# What the programs were built of comes from this machine's packages: libraries of headers, the static part of the C++
# library, and the shared libraries that the package depends on.
set -eu
[ $# -eq 1 ] || { echo "distinta.sh PACKAGE.deb" >&2; exit 2; }
field() {
  dpkg-deb -f "$package" "$1"
}
package=$1
name=$(field Package)
version=$(field Version)
seconds=${SOURCE_DATE_EPOCH:-$(date +%s)}
sum=$(sha256sum "$package" | cut -d ' ' -f 1)

cat <<END
SPDXVersion: SPDX-2.3
DataLicense: CC0-1.0
SPDXID: SPDXRef-DOCUMENT
DocumentName: $name-$version
DocumentNamespace: $(field Homepage)/spdx/$name-$version-$sum
Creator: Organization: Ordavia
Created: $(date -u -d "@$seconds" +%Y-%m-%dT%H:%M:%SZ)

PackageName: $name
SPDXID: SPDXRef-Package-$name
PackageVersion: $version
PackageFileName: $(basename "$package")
PackageDownloadLocation: NOASSERTION
FilesAnalyzed: false
PackageChecksum: SHA256: $sum
PackageLicenseConcluded: NOASSERTION
PackageLicenseDeclared: NOASSERTION
PackageCopyrightText: $(cat "$(dirname "$0")/../LICENSE")
PrimaryPackagePurpose: APPLICATION
Relationship: SPDXRef-DOCUMENT DESCRIBES SPDXRef-Package-$name
END

# part RELATION PACKAGE: a package of this machine, and what it is to the one described.
part() {
  installed=$(dpkg-query -W -f '${Version}' "$2" 2>/dev/null) || installed=NOASSERTION
  id=SPDXRef-Package-$(printf '%s' "$2" | tr -c 'a-zA-Z0-9.-' -)
  cat <<END

PackageName: $2
SPDXID: $id
PackageVersion: $installed
PackageDownloadLocation: NOASSERTION
FilesAnalyzed: false
PackageLicenseConcluded: NOASSERTION
PackageLicenseDeclared: NOASSERTION
PackageCopyrightText: NOASSERTION
ExternalRef: PACKAGE-MANAGER purl pkg:deb/debian/$(printf '%s@%s' "$2" "$installed" | sed 's/+/%2B/g')
Relationship: SPDXRef-Package-$name $1 $id
END
}

field Depends | tr ',' '\n' | sed 's/|.*//; s/(.*//; s/ //g' | sort -u | while read -r library; do
  part DEPENDS_ON "$library"
done
for contained in libcli11-dev nlohmann-json3-dev "$(dpkg-query -S "$(g++ -print-file-name=libstdc++.a)" | cut -d : -f 1)"; do
  part CONTAINS "$contained"
done
