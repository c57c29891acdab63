#!/bin/sh
# Unpacks Debian's source package of pugixml into build/pugixml. The benchmarks build it with the
# compiler and the flags of the library; Debian's own build has -O2 and is shared. apt verifies
# signatures and checksums. It works on lists of its own, so the machine's configuration stays as it
# is.
set -eu
cd "$(dirname "$0")/.."

[ ! -d build/pugixml ] || exit 0
work=$PWD/build/pugixml-source
rm -rf "$work"
mkdir -p "$work/lists/partial" "$work/cache/archives/partial"

# Where the machine gets Debian's packages, without updates. The variables are apt's.
# shellcheck disable=SC2016
apt-get indextargets --format '$(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
  sed -n 's|^\(.*\) \([a-z]*\) main$|deb-src \1 \2 main|p' |
  sed 's|^deb-src|& [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg]|' \
    > "$work/sources.list"

apt_get() {
  apt-get -qq -o Dir::Etc::sourcelist="$work/sources.list" -o Dir::Etc::sourceparts=/dev/null \
    -o Dir::State::lists="$work/lists" -o Dir::Cache="$work/cache" -o APT::Sandbox::User= "$@"
}

apt_get update
cd "$work"
apt_get source pugixml > /dev/null
mv pugixml-*/ ../pugixml
rm -rf "$work"
