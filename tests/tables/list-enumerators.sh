#!/bin/sh
# Prints TOLVA_ENUMERATOR(E, kX, L"TEXT") for each enumerator of the enumerations of DWORDs that the
# given headers declare; the text is the one in the comment after it.
set -eu
awk '
  /^enum [A-Za-z]* : DWORD \{$/ { enumeration = $2; next }
  /^\};$/ { enumeration = "" }
  enumeration != "" && $1 ~ /^k/ {
    text = match($0, /"[^"]*"/) ? substr($0, RSTART, RLENGTH) : "\"\""
    sub(/,$/, "", $1)
    print "TOLVA_ENUMERATOR(" enumeration ", " $1 ", L" text ")"
  }
' "$@"
