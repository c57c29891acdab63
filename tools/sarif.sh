#!/bin/sh
# Validates what the tool prints as SARIF against the standard's schema:
#   sarif.sh <tolva>
# The schema is fetched once, into build/sarif, with a package of npm. Where that is impossible, the
# status is 77.
set -eu
tolva=$(realpath "${1:?usage: sarif.sh <tolva>}")
cd "$(dirname "$0")/.."

schema=build/sarif/sarif-2.1.0.json
if [ ! -f "$schema" ]; then
  archive=$(tools/fetch.sh build/sarif @microsoft/sarif-multitool-linux 5.7.0 \
    27d8e3e96dde578a23b7c45035b8d741fece5731e2700aa068015b8c44d1514e)
  tar -xzf "$archive" -C build/sarif --strip-components=1 package/sarif-2.1.0.json
  rm "$archive"
fi
exec tests/cli/sarif.py "$schema" "$tolva" -- examples/documents/broken/*.xml
