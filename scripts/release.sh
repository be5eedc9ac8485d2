#!/usr/bin/env bash
# Makes a release: a signed bundle in a zip archive, the feed latest.json and a bill of materials.
#
#   scripts/release.sh --version 1.5 --build 122 --feed https://example.org/velmora/latest.json --key key.hex
#
#   --version   the version that users see; its section of CHANGELOG.md becomes the notes
#   --build     the build number, higher than that of every release before
#   --feed      the address at which latest.json will be published; it is built in
#   --key       a file with the secret key in 64 hexadecimal digits, or "-" for the standard input. A new key:
#               head -c 32 /dev/urandom | od -An -v -tx1 | tr -d ' \n' >key.hex
#   --output    the folder for the results (default: build/release-<version>)
#   --programs  a build folder with finished programs, instead of a build of its own
#
# The key is passed to the signing program through a pipe and stored nowhere. The results depend only on the sources, the
# installed packages, the key and SOURCE_DATE_EPOCH, which is the time of the last commit unless it is set.
# Publish the archive and latest.json in the folder of the feed's address.
set -euo pipefail
umask 022
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export LC_ALL=C TZ=UTC

fail() {
    echo "release.sh: $1" >&2
    exit 1
}

usage() {
    sed -n '2,18s/^# \{0,1\}//p' scripts/release.sh
    exit 2
}

version='' build='' feed='' key='' output='' programs=''
while (($# > 0)); do
    if (($# < 2)); then usage; fi
    case $1 in
        --version) version=$2 ;;
        --build) build=$2 ;;
        --feed) feed=$2 ;;
        --key) key=$2 ;;
        --output) output=$2 ;;
        --programs) programs=$2 ;;
        *) usage ;;
    esac
    shift 2
done
if [[ -z $version || -z $build || -z $feed || -z $key ]]; then usage; fi
[[ $build =~ ^[0-9]+$ ]] || fail "the build is a number"
[[ $version =~ ^[0-9A-Za-z.+-]+$ ]] || fail "the version has letters, digits, dots, plus and minus signs only"
output=${output:-build/release-$version}
[[ ! -e $output ]] || fail "$output exists already"
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export SOURCE_DATE_EPOCH

# The section of a version in the changelog, without its title.
notes_of() {
    awk -v title="## [$1]" 'index($0, "## ") == 1 { inside = index($0, title) == 1; next } inside' CHANGELOG.md
}

build_programs() {
    local folder=build/bundle
    # Neither the place of the sources nor the time is part of the programs.
    tools/quietly cmake -S . -B "$folder" --preset release \
        "-DCMAKE_CXX_FLAGS=-ffile-prefix-map=$PWD=." "-DCMAKE_C_FLAGS=-ffile-prefix-map=$PWD=."
    tools/quietly ninja -C "$folder" velmora velmora-swap velmora-release
    programs=$folder
}

notes=$(notes_of "$version")
[[ -n ${notes//[[:space:]]/} ]] || fail "CHANGELOG.md has no section [$version]"
tools/install-packages build run wayland release
if [[ $key == - ]]; then secret=$(cat); else secret=$(cat -- "$key"); fi
[[ -n $programs ]] || build_programs
tool=$programs/src/update/tool/velmora-release
public_key=$(printf %s "$secret" | "$tool" public-key)

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bundle=$work/Velmora.app
archive=$work/out/Velmora-$version.zip
names=(--release-version "$version" --build "$build" --feed-address "$feed" --time "$SOURCE_DATE_EPOCH")
mkdir "$work/out"

minimum=$(scripts/assemble-bundle "$programs" "$bundle" "$work/origins")
printf %s "$secret" | "$tool" manifest "${names[@]}" "$bundle"
unset secret
"$tool" archive "${names[@]}" "$bundle" "$archive"
printf '%s\n' "$notes" >"$work/notes"
"$tool" feed "${names[@]}" --minimum "$minimum" "$archive" "$work/notes" "$work/out/latest.json"
scripts/write-sbom "$bundle" "$work/origins" "$version" "$SOURCE_DATE_EPOCH" "$work/out/Velmora-$version.spdx.json"
# With the code with which an installed Velmora decides.
"$tool" check "$work/out/latest.json" "$public_key"

mkdir -p "$(dirname "$output")"
cp -r "$work/out" "$output"
echo "Release $version (build $build) for C libraries from $minimum, public key $public_key, in $output:"
(cd "$output" && sha256sum -- *)
