#!/bin/bash
# Tries the packages of make-packages.sh where nothing else is:
#   test-packages.sh [folder]
# Debian's in a minimal system that mmdebstrap makes: install, build and run a program with find_package
# and with pkg-config, use the tool, upgrade, remove. The archive for Windows under Wine, in a folder of
# its own, with nothing else in the path.
set -eu
unset CMAKE_CXX_COMPILER_LAUNCHER  # the minimal system has no ccache
cd "$(dirname "$0")/.."
packages=$(realpath "${1:-build/packages}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

echo 'lintian'
lintian --fail-on error "$packages"/*.deb > "$work/lintian.log" 2>&1 || { cat "$work/lintian.log"; exit 1; }
sed -n 's/^[WEI]: /  /p' "$work/lintian.log"

# ---- Debian --------------------------------------------------------------------------------------

mkdir -p "$work/try/now" "$work/try/next"
cp "$packages"/*.deb "$work/try/now/"
cp -r tests/consumer "$work/try/consumer"
cp -r examples/documents "$work/try/documents"
# The same packages as a later version.
for package in "$packages"/*.deb; do
  dpkg-deb -R "$package" "$work/next"
  sed -i 's/1\.0\.0-1/1.0.0-2/' "$work/next/DEBIAN/control"
  dpkg-deb --root-owner-group -b "$work/next" "$work/try/next/" > /dev/null
  rm -r "$work/next"
done
cat > "$work/try/run.sh" << 'END'
set -eux
cd /try
export DEBIAN_FRONTEND=noninteractive
find / -xdev ! -path '/proc/*' ! -path '/try*' ! -path '/var/*' ! -path '/etc/ld.so.cache' | sort > /tmp/before
apt-get install -y ./now/*.deb
cmake -S consumer -B /tmp/by-cmake
cmake --build /tmp/by-cmake
/tmp/by-cmake/consumer /tmp/by-cmake/document.xml
# shellcheck disable=SC2046
g++ -std=c++17 consumer/main.cpp $(pkg-config --cflags --libs tolva-support) -o /tmp/by-pkg-config
/tmp/by-pkg-config /tmp/document.xml
tolva check --strict documents/*.xml
tolva explain policy > /dev/null
test -s /usr/share/man/man1/tolva.1.gz
dpkg --verify libtolva1 libtolva-dev tolva
apt-get install -y ./next/*.deb
test "$(dpkg-query -W -f '${Version}' libtolva1)" = 1.0.0-2
/tmp/by-pkg-config /tmp/document.xml
apt-get purge -y libtolva1 libtolva-dev tolva
rm -r /tmp/by-cmake /tmp/by-pkg-config /tmp/document.xml
find / -xdev ! -path '/proc/*' ! -path '/try*' ! -path '/var/*' ! -path '/etc/ld.so.cache' ! -path /tmp/before | sort > /try/after
grep -v '^/tmp/before$' /tmp/before | diff - /try/after
END
echo 'a minimal Debian'
mmdebstrap --quiet --variant=minbase --format=null --include=g++,cmake,make,pkg-config \
  --customize-hook="copy-in $work/try /" \
  --customize-hook="chroot \"\$1\" sh /try/run.sh" \
  bookworm - > "$work/debian.log" 2>&1 || { tail -n 60 "$work/debian.log"; exit 1; }
echo '  installed, built with, used, upgraded and removed'

# ---- Windows -------------------------------------------------------------------------------------

echo 'Windows, under Wine'
project=$PWD
mkdir "$work/a folder"
unzip -q "$packages"/tolva-*-windows-x86-64.zip -d "$work/a folder"
unpacked=$(echo "$work/a folder"/tolva-*)
export WINEPATH="Z:$unpacked/bin" WINEDEBUG=-all WINEARCH=win64 WINEPREFIX="$work/wine"
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
mkdir "$WINEPREFIX"
"$wine" "$unpacked/bin/tolva.exe" check --strict examples/documents/policy.xml
cmake -S tests/consumer -B "$work/consumer" -G Ninja -DCMAKE_PREFIX_PATH="$unpacked" \
  -DCMAKE_TOOLCHAIN_FILE="$project/cmake/mingw-w64.cmake" > "$work/windows.log"
cmake --build "$work/consumer" >> "$work/windows.log" || { tail -n 40 "$work/windows.log"; exit 1; }
"$wine" "$work/consumer/consumer.exe" "$work/document.xml"
x86_64-w64-mingw32-objdump -s -j .rsrc "$unpacked/bin/tolva.dll" | grep -q . # the version resource
echo '  unpacked, used and built with'
