#!/bin/sh
# Formats all C++ sources, or with --check tells which are not formatted.
set -eu
cd "$(dirname "$0")/.."
mode='-i'
[ "${1:-}" != --check ] || mode='--dry-run --Werror'
# shellcheck disable=SC2086
find include src platform support cli tests examples bench fuzz abi tools '(' -name '*.h' -o -name '*.cpp' ')' -print0 |
  xargs -0 clang-format $mode
