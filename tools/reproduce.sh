#!/bin/sh
# Makes the packages for Debian, once more from another folder and into another one, and compares them byte
# for byte:
#   reproduce.sh <folder> [all]    all: the archive for Windows too, which takes as long again
set -eu
cd "$(dirname "$0")/.."
made=$1
what=debian
[ "${2:-}" != all ] || what='debian windows'
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2> /dev/null || date +%s)
export SOURCE_DATE_EPOCH CCACHE_DISABLE=1
mkdir "$work/elsewhere"
sources() { git ls-files -z 2> /dev/null || find . -name build -prune -o -type f -print0; }
sources | tar --null -T - -cf - | tar -xf - -C "$work/elsewhere"
tools/make-packages.sh "$made" "$what"
"$work/elsewhere/tools/make-packages.sh" "$work/another/folder" "$what"
for package in "$made"/*.deb "$made"/*.zip "$made"/*.json; do
  [ ! -e "$package" ] || cmp "$package" "$work/another/folder/$(basename "$package")"
done
