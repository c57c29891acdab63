#!/bin/sh
# Runs a Windows program under Wine: run-windows.sh program.exe [argument...]
set -eu

# What the program needs beside its own folder: the compiler's runtime and the library itself.
runtime=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libstdc++-6.dll)")
threads=$(dirname "$(x86_64-w64-mingw32-g++-posix -print-file-name=libwinpthread-1.dll)")
build=$(cd "$(dirname "$1")/.." && pwd)

# shellcheck disable=SC2086  # TOLVA_WINEPATH may be several folders
WINEPATH="$(printf 'Z:%s;' ${TOLVA_WINEPATH:-} "$runtime" "$threads" "$build")"
export WINEPATH
export WINEDEBUG="${WINEDEBUG:--all}"
export WINEPREFIX="${WINEPREFIX:-${XDG_CACHE_HOME:-$HOME/.cache}/tolva-wine}"
export WINEARCH=win64
mkdir -p "$WINEPREFIX"

exec "$(command -v wine64 || echo /usr/lib/wine/wine64)" "$@"
