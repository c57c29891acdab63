#!/bin/sh
# The C++ example of the README is the one that the build compiles.
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# shellcheck disable=SC2016  # those are the marks of the page
sed -n '/^```cpp$/,/^```$/{/^```/d;p}' README.md > "$work/readme"
sed -n '/^\/\/ \[readme\]$/,/^\/\/ \[readme\]$/{/^\/\/ \[readme\]$/d;p}' examples/readme.cpp > "$work/compiled"
diff -u "$work/compiled" "$work/readme"
