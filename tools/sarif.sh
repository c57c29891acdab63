#!/bin/sh
# Validates what the tool prints as SARIF against the standard's schema:
#   sarif.sh <tolva>
# The schema is fetched once, into build/sarif, with a package of npm. Where that is impossible, the
# status is 77.
set -eu
tolva=$(realpath "${1:?usage: sarif.sh <tolva>}")
cd "$(dirname "$0")/.."

version=5.7.0
sha256=27d8e3e96dde578a23b7c45035b8d741fece5731e2700aa068015b8c44d1514e
folder=build/sarif
schema=$folder/sarif-2.1.0.json

skip() {
  echo "sarif: skipped: $1"
  exit 77
}

if [ ! -f "$schema" ]; then
  archive=$folder/microsoft-sarif-multitool-linux-$version.tgz
  mkdir -p "$folder"
  if [ ! -f "$archive" ]; then
    command -v npm > /dev/null || skip 'npm, which fetches the schema, is not installed'
    npm pack "@microsoft/sarif-multitool-linux@$version" --pack-destination "$folder" \
      --fetch-retries=0 > "$folder/npm.log" 2>&1 ||
      skip "npm cannot fetch the schema, see $folder/npm.log"
  fi
  if ! echo "$sha256  $archive" | sha256sum --check --status; then
    rm "$archive"
    echo "sarif: the package that npm fetched is not the one that is expected"
    exit 1
  fi
  tar -xzf "$archive" -C "$folder" --strip-components=1 package/sarif-2.1.0.json
  rm "$archive"
fi
exec tests/cli/sarif.py "$schema" "$tolva" -- examples/documents/broken/*.xml
