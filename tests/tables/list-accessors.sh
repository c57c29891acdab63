#!/bin/sh
# Prints TOLVA_SETTER(X) for each SetX, and TOLVA_LIST(Y) for each AddY, that the given headers
# declare.
set -eu
cat "$@" | sed -n \
  -e 's/.*virtual ConfigResult Set\([A-Za-z0-9]*\)(.*/TOLVA_SETTER(\1)/p' \
  -e 's/.*virtual ConfigResult Add\([A-Za-z0-9]*\)(.*/TOLVA_LIST(\1)/p' |
  LC_ALL=C sort -u
