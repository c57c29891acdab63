#!/bin/sh
# Makes the packages for Debian and the archive for Windows:
#   make-packages.sh [folder] [debian|windows]
# The folder is build/packages unless it is named; it gets the builds as well. The packages are the same,
# byte for byte, wherever they are made from the same sources: what is dated has the time of the last
# commit, or SOURCE_DATE_EPOCH.
set -eu
cd "$(dirname "$0")/.."
root=$PWD
out=$(realpath -m "${1:-build/packages}")
what=${2:-debian windows}
: "${SOURCE_DATE_EPOCH:=$(git log -1 --format=%ct 2> /dev/null || date +%s)}"
export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C
version=$(sed -n 's/^project(tolva VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
umask 022
mkdir -p "$out"

make_debian() {
  # The flags that Debian builds with, but for -g: the packages are stripped.
  hardened=$(dpkg-buildflags --get CPPFLAGS)
  hardened="$hardened $(dpkg-buildflags --get CXXFLAGS | sed 's/-g //; s/-O2 //')"
  hardened="$hardened -ffile-prefix-map=$root=. -ffile-prefix-map=$out=."
  cmake -S . -B "$out/debian" -G Ninja -DTOLVA_PACKAGES=ON -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX=/usr \
    -DCMAKE_INSTALL_LIBDIR="lib/$(dpkg-architecture -qDEB_HOST_MULTIARCH)" \
    -DCMAKE_CXX_COMPILER=g++ -DCMAKE_CXX_FLAGS="$hardened" \
    -DCMAKE_SHARED_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS)" \
    -DCMAKE_EXE_LINKER_FLAGS="$(dpkg-buildflags --get LDFLAGS) -pie" > "$out/debian.log"
  cmake --build "$out/debian" >> "$out/debian.log"
  (cd "$out/debian" && cpack -B "$out") >> "$out/debian.log" 2>&1
  rm -rf "$out/_CPack_Packages"
}

make_windows() {
  name=tolva-$version-windows-x86-64
  stage=$out/windows/stage/$name
  rm -rf "$out/windows/stage"
  cmake -S . -B "$out/windows" -G Ninja -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_TOOLCHAIN_FILE="$root/cmake/mingw-w64.cmake" -DCMAKE_INSTALL_PREFIX="$stage" \
    -DCMAKE_CXX_FLAGS="-ffile-prefix-map=$root=. -ffile-prefix-map=$out=." > "$out/windows.log"
  cmake --build "$out/windows" >> "$out/windows.log"
  cmake --install "$out/windows" --strip >> "$out/windows.log"
  for library in libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll; do
    cp "$(x86_64-w64-mingw32-g++-posix -print-file-name=$library)" "$stage/bin/"
  done
  x86_64-w64-mingw32-strip "$stage"/bin/*.dll
  cp README.md CHANGELOG.md "$stage/"
  find "$stage" -exec touch --no-dereference --date="@$SOURCE_DATE_EPOCH" {} +
  rm -f "$out/$name.zip"
  (cd "$out/windows/stage" && find "$name" | sort | zip -qX -@ "$out/$name.zip")
}

for one in $what; do
  "make_$one"
done
tools/make-sbom.py "$version" "$out"
(cd "$out" && sha256sum ./*.deb ./*.zip ./*.json 2> /dev/null) || true
