#!/bin/sh
# The C++ examples of the pages are the ones that the build compiles, in the same order.
set -eu
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

compare() { # <page> <source...>: what stands between the marks of the sources, and in the page
  page=$1
  shift
  # shellcheck disable=SC2016  # those are the marks of the page
  sed -n '/^```cpp$/,/^```$/{/^```/d;p}' "$page" > "$work/page"
  for source in "$@"; do
    sed -n '/^\/\/ \[[a-z]*\]$/,/^\/\/ \[[a-z]*\]$/{/^\/\/ \[[a-z]*\]$/d;p}' "$source"
  done > "$work/compiled"
  diff -u --label "$*" --label "$page" "$work/compiled" "$work/page"
}

compare README.md examples/readme.cpp
compare docs/support.md examples/support_load.cpp examples/support_save.cpp
