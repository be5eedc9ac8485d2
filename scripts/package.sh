#!/usr/bin/env bash
# Makes a package of Velmora for a package manager.
#
#   scripts/package.sh deb
#
#   --version   the version of the package (default: that of CMakeLists.txt)
#   --output    the folder for the package (default: build/packages)
#   --programs  a build folder with a finished program, instead of a build of its own
#
# The result depends only on the sources, the installed packages and SOURCE_DATE_EPOCH, which is the time of the last
# commit unless it is set. Install it with: apt install ./build/packages/velmora_*.deb
set -euo pipefail
umask 022
cd "$(dirname "${BASH_SOURCE[0]}")/.."
export LC_ALL=C TZ=UTC

usage() {
    sed -n '2,11s/^# \{0,1\}//p' scripts/package.sh >&2
    exit 2
}

kind=${1:-}
if [[ $kind != deb ]]; then usage; fi
shift
version=$(sed -n 's/^project(Velmora VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
output=build/packages programs=''
while (($# > 0)); do
    if (($# < 2)); then usage; fi
    case $1 in
        --version) version=$2 ;;
        --output) output=$2 ;;
        --programs) programs=$2 ;;
        *) usage ;;
    esac
    shift 2
done
if [[ ! $version =~ ^[0-9][0-9A-Za-z.+~]*$ ]]; then
    echo "package.sh: the version begins with a digit and has letters, digits, dots, plus signs and tildes" >&2
    exit 1
fi
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)}
export SOURCE_DATE_EPOCH

tools/install-packages build run package
if [[ -z $programs ]]; then
    programs=build/release
    if [[ ! -f $programs/build.ninja ]]; then tools/quietly cmake --preset release; fi
    tools/quietly ninja -C "$programs" velmora
fi
scripts/assemble-deb "$programs" "$version" "$SOURCE_DATE_EPOCH" "$output"
