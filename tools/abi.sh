#!/bin/sh
# Compares the binary interface with the lists in abi/, or makes the lists anew:
#   abi.sh           names and tables of virtual functions as Microsoft's compiler makes them
#   abi.sh linux     the symbols that build/linux-release/libtolva.so.1 exports
#   abi.sh windows   the names that build/windows/tolva.dll exports
#   abi.sh release   the types and functions of the last release, by abidiff (builds build/abi)
#   abi.sh ... --update
set -eu
cd "$(dirname "$0")/.."

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

update=no
what=msvc
for argument in "$@"; do
  case $argument in
    --update) update=yes ;;
    linux | windows | release) what=$argument ;;
    *) echo "abi.sh: unknown argument '$argument'" >&2; exit 2 ;;
  esac
done

# compare <list> <made just now>
compare() {
  if [ ! -s "$2" ]; then
    echo "abi.sh: found nothing to compare with abi/$1; is everything built?" >&2
    exit 1
  fi
  if [ "$update" = yes ]; then
    cp "$2" "abi/$1"
    echo "abi/$1: $(wc -l < "abi/$1") lines"
  elif ! diff -u "abi/$1" "$2"; then
    echo "abi.sh: the binary interface is no longer that of abi/$1." >&2
    exit 1
  fi
}

# What abidiff needs: the library with debug information, from which it describes every type.
describe() {
  cmake -S . -B build/abi -G Ninja -DCMAKE_BUILD_TYPE=Debug -DTOLVA_CLI=OFF > /dev/null
  cmake --build build/abi --target tolva > /dev/null
}

case $what in
  release)
    release=abi/tolva-1.0.0.abi.xz
    describe
    if [ "$update" = yes ]; then
      abidw --headers-dir include --no-corpus-path --no-comp-dir-path --no-show-locs \
        build/abi/libtolva.so.1 | xz -9 > "$release"
      exit 0
    fi
    xz -dc "$release" > "$work/release.abi"
    # 4: something has been added. 1 and 2: it did not work. 8: callers no longer fit.
    status=0
    abidiff "$work/release.abi" build/abi/libtolva.so.1 > "$work/differences" || status=$?
    if [ $((status & 11)) != 0 ]; then
      head -n 40 "$work/differences"
      echo "abi.sh: callers of $release no longer fit (abidiff: $status)" >&2
      exit 1
    fi
    ;;
  linux)
    # A symbol without its version does not count.
    nm -D --defined-only --format=posix build/linux-release/libtolva.so.1 |
      sed -n 's/@@TOLVA_1 .*//p' | LC_ALL=C sort > "$work/names"
    compare exports-linux.txt "$work/names"
    ;;
  windows)
    x86_64-w64-mingw32-objdump -p build/windows/tolva.dll |
      sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[ *[0-9]*\] //p' |
      LC_ALL=C sort > "$work/names"
    compare exports-windows-mingw.txt "$work/names"
    ;;
  msvc)
    clang++ --target=x86_64-pc-windows-msvc -std=c++20 -nostdinc -Iabi/stand-ins -Iinclude \
      -DTOLVA_API= -Wall -Wextra -Werror -Xclang -fdump-vtable-layouts \
      -c abi/msvc.cpp -o "$work/msvc.obj" > "$work/layouts"
    llvm-nm --undefined-only "$work/msvc.obj" | sed -n 's/^ *U \(?.*\)/\1/p' |
      LC_ALL=C sort > "$work/names"
    # One paragraph for each interface: its name, then its slots, the first being 0. Functions go
    # without the name of their class; bases that are templates have no paragraph of their own.
    awk -F ' [|] ' '
      /^VFTable for / { inside = 1; text = ""; next }
      /^$/ { if (inside && text != "") print text; inside = 0; next }
      !inside { next }
      $2 ~ / RTTI$/ { sub(/ RTTI$/, "", $2); text = $2 "\n"; next }
      $1 == 1 && $2 ~ />::~/ { inside = 0; next }
      {
        sub(/ \[pure\]$/, "", $2)
        sub(/ \[scalar deleting\]$/, "", $2)
        if (match($2, / \[Self = .*\]$/)) {
          self = substr($2, RSTART + 9, RLENGTH - 10)
          sub(/^.*::/, "", self)
          $2 = substr($2, 1, RSTART - 1)
          gsub(/Self/, self, $2)
        }
        text = text sprintf("%4d %s\n", $1 - 1, $2)
      }
    ' "$work/layouts" |
      sed 's/\([ *&]\)[A-Za-z_:<>]*::\(~\{0,1\}[A-Za-z_]*\)(/\1\2(/' > "$work/slots"
    compare exports-windows-msvc.txt "$work/names"
    compare slots.txt "$work/slots"
    ;;
esac
