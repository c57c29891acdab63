#!/bin/bash
# Compiles the cases of tests/must_fail/*.cpp: the first has to compile, and no other may, for the
# reason that its line states.
#   must-fail.sh [compiler...]      g++ and clang++ unless others are named
set -u
cd "$(dirname "$0")/.." || exit

failed=0
compilers=("$@")
[ ${#compilers[@]} != 0 ] || compilers=(g++ clang++)

compile() { # <compiler> <source> <case>: what the compiler says
  "$1" -std=c++20 -fsyntax-only -DTOLVA_OWN_XML_LAYER -DCASE="$3" -Iinclude -Isrc -I. "$2" 2>&1
}

for source in tests/must_fail/*.cpp; do
  for compiler in "${compilers[@]}"; do
    if ! said=$(compile "$compiler" "$source" 0); then
      printf '%s: %s, case 0 does not compile:\n%s\n' "$compiler" "$source" "$said"
      failed=1
    fi
    while IFS=$'\t' read -r number reason; do
      if said=$(compile "$compiler" "$source" "$number"); then
        echo "$compiler: $source, case $number compiles: $reason"
        failed=1
      elif [[ $said != *"$reason"* ]]; then
        printf '%s: %s, case %s fails for another reason than "%s":\n%s\n' \
          "$compiler" "$source" "$number" "$reason" "$said"
        failed=1
      fi
    done < <(sed -n 's|^#elif CASE == \([0-9]*\)  *// \(.*\)|\1\t\2|p' "$source")
  done
done
exit $failed
