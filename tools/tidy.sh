#!/bin/sh
# Runs clang-tidy over the library, the examples and the tests, as build/linux-clang compiles them.
set -eu
cd "$(dirname "$0")/.."
cmake --build build/linux-clang --target lists > /dev/null
# elements.cpp has every accessor of every interface: it takes minutes, for two macros.
find src platform/posix platform/xml platform/utf.cpp support examples tests tools -name '*.cpp' \
  ! -path 'support/windows/*' ! -path '*/consumer/*' ! -path '*/must_fail/*' \
  ! -path tests/tables/elements.cpp -print0 |
  xargs -0 -P "$(nproc)" -n 2 clang-tidy -p build/linux-clang --quiet --warnings-as-errors='*'
