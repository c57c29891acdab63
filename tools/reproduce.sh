#!/bin/sh
# Makes the packages for Debian in build/packages, once more from another folder and into another one, and
# compares them byte for byte; with the argument "all", the archive for Windows too, which takes as long
# again.
set -eu
cd "$(dirname "$0")/.."
what=debian
[ "${1:-}" != all ] || what='debian windows'
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

SOURCE_DATE_EPOCH=$(git log -1 --format=%ct 2> /dev/null || date +%s)
export SOURCE_DATE_EPOCH CCACHE_DISABLE=1
mkdir "$work/elsewhere"
sources() { git ls-files -z 2> /dev/null || find . -name build -prune -o -type f -print0; }
sources | tar --null -T - -cf - | tar -xf - -C "$work/elsewhere"
tools/make-packages.sh build/packages "$what"
"$work/elsewhere/tools/make-packages.sh" "$work/another/folder" "$what"
for package in build/packages/*.deb build/packages/*.zip build/packages/*.json; do
  [ ! -e "$package" ] || cmp "$package" "$work/another/folder/$(basename "$package")"
done
