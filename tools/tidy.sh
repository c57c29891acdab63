#!/bin/sh
# Runs clang-tidy over the library and the example, as build/linux-clang compiles them.
set -eu
cd "$(dirname "$0")/.."
cmake --build build/linux-clang --target accessors > /dev/null
find src platform/posix platform/xml platform/utf.cpp examples tests tools -name '*.cpp' \
  ! -path '*/consumer/*' -print0 |
  xargs -0 -P "$(nproc)" -n 2 clang-tidy -p build/linux-clang --quiet --warnings-as-errors='*'
