#!/bin/sh
# Installs the Debian packages that a target needs, if any of them is missing:
#   packages.sh build|tool|windows|test|mutants|conformance|packages|bench
set -eu

build='g++ cmake ninja-build'
tool='libcli11-dev nlohmann-json3-dev'
tool_tests='libxml2-utils python3 python3-jsonschema mandoc chromium chromium-driver fish jq zsh'
windows='g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 wine64'
test="$build $tool $tool_tests $windows googletest clang clang-format clang-tidy llvm libclang-rt-14-dev libclang-14-dev llvm-14-dev libc++-14-dev mingw-w64-common pkg-config shellcheck libexpat1-dev valgrind ccache python3 pyflakes3 abigail-tools xz-utils dpkg-dev file"
case ${1:-} in
  build) wanted=$build ;;
  tool) wanted="$build $tool" ;;
  windows) wanted="$build $windows" ;;
  test) wanted=$test ;;
  mutants) wanted="$build googletest libexpat1-dev ccache python3" ;;
  conformance)
    wanted=$test
    command -v npm > /dev/null || wanted="$wanted npm"
    ;;
  packages) wanted="$build $tool $windows dpkg-dev file lintian mmdebstrap zip unzip python3" ;;
  bench)
    wanted="$build $tool libxml2-utils python3 dpkg-dev libbenchmark-dev librapidxml-dev libexpat1-dev libxml2-dev libxerces-c-dev xsdcxx gnuplot-nox"
    ;;
  *) echo 'usage: packages.sh build|tool|windows|test|mutants|conformance|packages|bench' >&2; exit 2 ;;
esac

missing=
for package in $wanted; do
  status=$(dpkg-query -W -f='${Status}' "$package" 2> /dev/null || true)
  [ "$status" = 'install ok installed' ] || missing="$missing $package"
done
[ -n "$missing" ] || exit 0

echo "Installing:$missing"
as_root=
[ "$(id -u)" = 0 ] || as_root=sudo
export DEBIAN_FRONTEND=noninteractive
$as_root apt-get -qq update
# shellcheck disable=SC2086  # a list of names
$as_root apt-get -qq install -y --no-install-recommends $missing > /dev/null
