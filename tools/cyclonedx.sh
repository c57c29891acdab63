#!/bin/sh
# Validates the lists of contents of make-sbom.py against CycloneDX's schema, which is fetched once with a
# package of npm:
#   cyclonedx.sh <folder with the lists>
# Where fetching is impossible, the status is 77.
set -eu
lists=$(realpath "${1:?usage: cyclonedx.sh <folder>}")
cd "$(dirname "$0")/.."

schemas=build/cyclonedx/schema
if [ ! -d "$schemas" ]; then
  archive=$(tools/fetch.sh build/cyclonedx @cyclonedx/cyclonedx-library 10.3.0 \
    9833bd949052eb18218dd64b13ad62d9246f7395eef01c66dad08fcbacf74f01)
  tar -xzf "$archive" -C build/cyclonedx --strip-components=2 package/res/schema
  rm "$archive"
fi
exec tests/packages/cyclonedx.py "$schemas" "$lists"/*.cdx.json
