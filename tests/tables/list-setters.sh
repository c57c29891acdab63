#!/bin/sh
# Prints TOLVA_SETTER(X) for each SetX that the given headers declare.
set -eu
cat "$@" | sed -n 's/.*virtual ConfigResult Set\([A-Za-z0-9]*\)(.*/TOLVA_SETTER(\1)/p' |
  LC_ALL=C sort -u
