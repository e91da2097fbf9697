#!/usr/bin/env bash
# Unpacks what a Debian package was made of, without Debian's changes, into FOLDER/source. It comes from where the
# machine's packages come from. Needs no rights: the lists are kept in FOLDER.
#   tools/debian_source.sh PACKAGE VERSION FOLDER
set -euo pipefail
package=$1 version=$2 folder=$3
mkdir -p "$folder/apt/lists/partial" "$folder/apt/parts" "$folder/source"
if [ -e /etc/apt/sources.list.d/debian.sources ]; then
    sed 's/^Types:.*/Types: deb-src/' /etc/apt/sources.list.d/debian.sources >"$folder/apt/parts/debian.sources"
else
    sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$folder/apt/parts/debian.list"
fi
as_here() {
    apt-get -q -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$folder/apt/parts" \
        -o Dir::State::Lists="$folder/apt/lists" -o Dir::Cache="$folder/apt" -o APT::Sandbox::User="$(id -un)" "$@"
}
as_here update
(cd "$folder" && as_here source --tar-only --download-only "$package=$version")
tar -xf "$folder"/"$package"_*.orig.tar.* -C "$folder/source" --strip-components=1
