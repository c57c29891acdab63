#!/bin/bash
# Runs everything that can fail: each build with its tests, and the checks of the sources and of the
# binary interface. Two parts run at a time, as many of them do one thing after the other; what a part
# says is printed when it is done. Ends with one line of totals; fails when anything did.
#   test.sh [part...]      only these parts: sources linux speed conformance sanitizers valgrind
#                          windows windows-own abi packages tidy; or quick, what to run after each change
set -u
cd "$(dirname "$0")/.." || exit

passed=0
failed=0
skipped=0
failures=()
results=build/results
rm -rf "$results"
mkdir -p "$results"
start=$SECONDS
: "${CMAKE_BUILD_PARALLEL_LEVEL:=$(nproc)}"  # ninja starts two more, for each of the two parts
export CMAKE_BUILD_PARALLEL_LEVEL

count_check() { # <passed: yes|no> <name>
  if [ "$1" = yes ]; then
    passed=$((passed + 1))
    echo "  ok      $2"
  else
    failed=$((failed + 1))
    failures+=("$2")
    echo "  FAILED  $2"
  fi
}

# check <name> <command...>: one check; what the command says is shown when it fails
check() {
  local name=$1 log
  shift
  log=$results/$(echo "$name" | tr -c 'A-Za-z0-9\n' '-').log
  if "$@" > "$log" 2>&1; then
    count_check yes "$name"
  else
    count_check no "$name"
    tail -n 60 "$log" | sed 's/^/          /'
    return 1
  fi
}

# programs <preset> [launcher] [pattern]: the test programs of a build, each of its tests counted
programs() {
  local preset=$1 launcher=${2:-} pattern=${3:-*} program name xml log status ran bad left_out found=no
  # shellcheck disable=SC2231  # the pattern is one
  for program in build/"$preset"/tests/tolva_${pattern}_tests*; do
    [ -x "$program" ] || continue
    found=yes
    name=$(basename "$program" .exe)
    xml=$results/$preset-$name.xml
    log=$results/$preset-$name.log
    # shellcheck disable=SC2086  # no launcher is no argument
    timeout 900 $launcher "$program" --gtest_output=xml:"$xml" > "$log" 2>&1
    status=$?
    if [ ! -s "$xml" ]; then
      count_check no "$preset: $name (exit status $status)"
      tail -n 40 "$log" | sed 's/^/          /'
      continue
    fi
    ran=$(sed -n 's/^<testsuites tests="\([0-9]*\)".*/\1/p' "$xml")
    bad=$(sed -n 's/^<testsuites .* failures="\([0-9]*\)".*/\1/p' "$xml")
    left_out=$(grep -c 'result="skipped"' "$xml")
    [ "$ran" != 0 ] || count_check no "$preset: $name runs no tests"
    passed=$((passed + ran - bad - left_out))
    failed=$((failed + bad))
    skipped=$((skipped + left_out))
    echo "  $preset: $name: $((ran - bad - left_out)) passed, $bad failed, $left_out skipped"
    grep -A1 -a ': Skipped$' "$log" | grep -av '^--$' | sed 's/^/          /'
    if [ "$bad" != 0 ]; then
      failures+=("$preset: $name")
      grep -av '^\[ *\(OK\|RUN\|--*\) *\]' "$log" | head -n 80 | sed 's/^/          /'
    elif [ "$status" != 0 ]; then
      count_check no "$preset: $name (exit status $status)"
    fi
  done
  [ $found = yes ] || count_check no "$preset: test programs"
}

build() { # <preset>
  check "$1: configure" cmake --preset "$1" && check "$1: build" cmake --build --preset "$1"
}

demo() { # <preset> [launcher] [part...]
  local preset=$1 launcher=${2:-}
  shift $(($# > 1 ? 2 : 1))
  # shellcheck disable=SC2086
  check "$preset: demonstration" $launcher "$(ls build/"$preset"/examples/tolva_demo*)" \
    examples/documents "build/$preset/demo" "$@"
}

# The installed package: exactly its files, and a project that finds and uses it.
package() { # <preset> <expected files> [launcher] [cmake argument...]
  local preset=$1 expected=$2 launcher=${3:-} prefix consumer
  shift 3
  prefix=$PWD/build/$preset/installed
  consumer=build/$preset/consumer
  rm -rf "$prefix" "$consumer"
  check "$preset: install" cmake --install "build/$preset" || return
  { echo "$expected"; find include support/include -name '*.h' -printf 'include/%P\n'; } |
    LC_ALL=C sort > "$results/$preset-expected-files"
  (cd "$prefix" && find . ! -type d -printf '%P\n') | LC_ALL=C sort > "$results/$preset-installed-files"
  check "$preset: installed files" diff -u "$results/$preset-expected-files" "$results/$preset-installed-files"
  # shellcheck disable=SC2086
  check "$preset: installed tool" $launcher "$(ls "$prefix"/bin/tolva "$prefix"/bin/tolva.exe \
    2> /dev/null)" explain policy
  check "$preset: consumer, configure" cmake -S tests/consumer -B "$consumer" -G Ninja \
    -DCMAKE_PREFIX_PATH="$prefix" "$@" || return
  check "$preset: consumer, build" cmake --build "$consumer" || return
  # shellcheck disable=SC2086
  check "$preset: consumer, run" $launcher "$(ls "$consumer"/consumer "$consumer"/consumer.exe \
    2> /dev/null)" "$consumer/document.xml"
}

cmake_files() { # <lib> <config>
  printf '%s\n' "$1"/cmake/tolva/tolva-{config,config-version,targets,"targets-$2"}.cmake
}

# The command-line tool as a program.
tool() { # <preset> [launcher]
  local preset=$1 launcher=${2:-} program
  program=$(ls build/"$preset"/cli/tolva build/"$preset"/cli/tolva.exe 2> /dev/null)
  # shellcheck disable=SC2086
  check "$preset: transcripts of docs/tool.md" tools/transcripts.py docs/tool.md $launcher "$program"
  # shellcheck disable=SC2086
  check "$preset: a reader that goes away" closed_pipe $launcher "$program"
}

closed_pipe() { # <program...>
  local said
  said=$({ "$@" schema html | head -c 1 > /dev/null; } 2>&1)
  echo "$said"
  [ -z "$said" ]
}

part_sources() {
  echo 'Sources'
  check 'formatting' tools/format.sh --check
  check 'shell scripts' shellcheck tools/*.sh tests/cli/*.sh tests/tables/*.sh .ci/run
  check 'Python scripts' pyflakes3 tools/*.py tests/cli/*.py tests/packages/*.py bench/*.py
  check 'examples of the pages' tools/check-examples.sh
  check 'tables that must not compile' tools/must-fail.sh
  check 'factories that the headers declare' compare_factories
}

compare_factories() {
  diff <(grep -rho '[A-Za-z]*_CreateNewInstance()' include | sed 's/_.*//' | sort) \
    <(sed -n 's/^TOLVA_FACTORY([^,]*, *\([^,]*\),.*/\1/p' src/exports/factories.def | sort)
}

# What several parts test.
part_build() {
  echo 'Linux, GCC, optimised: build'
  build linux-release
}

part_linux() {
  echo 'Linux, GCC, optimised'
  programs linux-release
  check 'linux-release: exported symbols' tools/abi.sh linux
  demo linux-release
  check 'linux-release: demonstration, C locale' env LC_ALL=C \
    build/linux-release/examples/tolva_demo examples/documents build/linux-release/demo/Zürich-日本
  tool linux-release
  local made=build/linux-release/cli
  check 'linux-release: docs/documents.md' diff -u docs/documents.md "$made/documents.md"
  check 'linux-release: manual page' manual_page "$made/tolva.1"
  check 'linux-release: completion' tests/cli/completion.sh "$made/tolva"
  check 'linux-release: HTML page' tests/cli/page.py "$made/tolva"
  check 'linux-release: page of differences' tests/cli/diff_page.py "$made/tolva" \
    examples/documents/policy.xml
  check 'linux-release: schemas' tests/cli/schemas.py "$made/tolva" \
    build/linux-release/tests/tolva_samples examples/documents
  local lib
  lib=$(sed -n 's/^CMAKE_INSTALL_LIBDIR:PATH=//p' build/linux-release/CMakeCache.txt)
  package linux-release "$(printf '%s\n' "$lib"/libtolva{.so{,.1,.1.0.0},-support.a} \
    "$lib"/pkgconfig/tolva{,-support}.pc bin/tolva share/man/man1/tolva.1 \
    share/bash-completion/completions/tolva share/zsh/site-functions/_tolva \
    share/fish/vendor_completions.d/tolva.fish; cmake_files "$lib" release)" ''
  check 'linux-release: as a part of another project' subproject
  check 'linux-release: pkg-config' pkg_config_consumer "$PWD/build/linux-release/installed/$lib"
}

subproject() {
  local folder=build/subproject
  rm -rf "$folder/installed"
  cmake -S tests/subproject -B "$folder" -G Ninja -DCMAKE_INSTALL_PREFIX="$PWD/$folder/installed" &&
    cmake --build "$folder" && "$folder/consumer" "$folder/document.xml" &&
    cmake --install "$folder" && [ "$(cd "$folder/installed" && find . -type f)" = ./bin/consumer ]
}

manual_page() { # <page>
  local said
  said=$(mandoc -Tlint -Wstyle "$1" 2>&1) || true
  echo "$said"
  [ -z "$said" ]
}

pkg_config_consumer() { # <library folder>
  local flags
  flags=$(PKG_CONFIG_PATH=$1/pkgconfig pkg-config --cflags --libs tolva-support) || return
  # shellcheck disable=SC2086
  g++ -std=c++17 tests/consumer/main.cpp $flags -Wl,-rpath,"$1" -o build/linux-release/pc-consumer &&
    build/linux-release/pc-consumer build/linux-release/pc-consumer.xml
}

part_quick() {
  check 'formatting' tools/format.sh --check
  check 'linux-release: configure' cmake --preset linux-release || return
  check 'linux-release: build' cmake --build --preset linux-release \
    --target tolva_inner_tests tolva_api_tests tolva_cli_tests || return
  programs linux-release '' inner
  programs linux-release '' api
  programs linux-release '' cli
}

part_speed() {
  echo 'Instructions and allocations'
  check 'cost of a read and a write' tools/instructions.sh build/linux-release/bench/tolva_guard
}

# What is compared with a standard that has to be fetched.
part_conformance() {
  echo 'W3C conformance suite, schema of SARIF'
  fetched conformance build/linux-release/tests/tolva_conformance
  fetched sarif build/linux-release/cli/tolva
}

fetched() { # <name of a script> <program>
  local log=$results/$1.log status=0
  tools/"$1".sh "$2" > "$log" 2>&1 || status=$?
  sed 's/^/  /' "$log" | tail -n 20
  case $status in
    0) count_check yes "$1" ;;
    77) skipped=$((skipped + 1)) ;;
    *) count_check no "$1" ;;
  esac
}

part_sanitizers() {
  echo 'Linux, Clang, sanitizers'
  build linux-asan || return
  TOLVA_DIFFERENTIAL_LENGTH=4 programs linux-asan
  demo linux-asan
  tool linux-asan
  check 'linux-asan: known inputs of the fuzz targets' tools/fuzz.sh replay build/linux-asan
}

part_valgrind() {
  echo 'Linux, GCC, valgrind'
  local program
  # valgrind would replace the tests' own operator new, which makes memory run out. Random documents
  # through the tool take minutes here; the sanitizers see them.
  for program in inner api support cli; do
    check "valgrind: tolva_${program}_tests" valgrind -q --error-exitcode=1 --leak-check=full \
      --soname-synonyms=somalloc=nouserintercepts --suppressions=tests/valgrind.supp \
      "build/linux-release/tests/tolva_${program}_tests" --gtest_brief=1 \
      --gtest_filter='-AllDocuments/*:Diff.TellsNoMore*:Set.ChangesNothingElse:Fmt.ChecksWhat*:Convert.RefusesWhat*:Convert.SaysWhere*'
  done
}

part_windows() {
  echo 'Windows, XmlLite, under Wine'
  build windows || return
  programs windows tools/run-windows.sh
  check 'windows: exported symbols' tools/abi.sh windows
  check 'windows: an export for each factory' count_exports
  demo windows tools/run-windows.sh active-directory broken  # Wine's XmlLite does not escape
  tool windows tools/run-windows.sh
  package windows "$(printf '%s\n' bin/tolva.{dll,exe} lib/libtolva{.dll,-support}.a \
    lib/pkgconfig/tolva{,-support}.pc; cmake_files lib release)" "env TOLVA_WINEPATH=$PWD/build/windows/installed/bin tools/run-windows.sh" \
    -DCMAKE_TOOLCHAIN_FILE="$PWD/cmake/mingw-w64.cmake"
}

# The entry points of the library itself are six.
count_exports() {
  local factories exports
  factories=$(grep -c '^TOLVA_FACTORY(' src/exports/factories.def)
  exports=$(wc -l < abi/exports-windows-mingw.txt)
  echo "$factories factories, $exports exports"
  [ "$exports" = $((factories + 6)) ]
}

# The tool has the own layer in any case: the part above tests it.
part_windows-own() {
  echo 'Windows, own XML layer, under Wine'
  build windows-own || return
  programs windows-own tools/run-windows.sh
  demo windows-own tools/run-windows.sh
}

part_abi() {
  echo "Microsoft's binary interface"
  check 'headers, names and slots' tools/abi.sh
  check 'the last release, with abidiff' tools/abi.sh release
  check "sources, for Microsoft's target" tools/msvc.py
}

# Trying them in a system of their own is for `make packages`.
part_packages() {
  echo 'Packages'
  rm -rf build/reproduced
  check 'packages: the same twice' tools/reproduce.sh build/reproduced
  check 'packages: lists of contents' tools/make-sbom.py 1.0.0 "$results"
  fetched cyclonedx "$results"
}

part_tidy() {
  echo 'clang-tidy'
  check 'linux-clang: configure' cmake --preset linux-clang || return
  check 'clang-tidy' tools/tidy.py
}

# run <part>: what came of it is kept in a file. In a subshell.
run() {
  passed=0 failed=0 skipped=0 failures=()
  if [ "$(type -t "part_$1")" = function ]; then
    time "part_$1"
  else
    count_check no "there is no part '$1'"
  fi
  printf '%s\n' "$passed $failed $skipped" ${failures[@]+"${failures[@]}"} > "$results/$1.counts"
}
TIMEFORMAT='  (%0lR, %0lU of processor time)'

add_up() { # <part>
  local counts
  if [ ! -s "$results/$1.counts" ]; then
    count_check no "$1: it did not end"
    return
  fi
  mapfile -t counts < "$results/$1.counts"
  # shellcheck disable=SC2086  # three numbers
  set -- ${counts[0]}
  passed=$((passed + $1))
  failed=$((failed + $2))
  skipped=$((skipped + $3))
  failures+=("${counts[@]:1}")
}

# Long parts first, so that both processors are busy to the end.
parts=("$@")
[ ${#parts[@]} != 0 ] || parts=(tidy sanitizers windows packages valgrind windows-own linux abi
  conformance speed sources)
trap 'trap - INT TERM; kill -TERM 0' INT TERM
case " ${parts[*]} " in
  *\ linux\ * | *\ speed\ * | *\ conformance\ * | *\ valgrind\ *)
    (run build) 2>&1
    add_up build
    if [ "$failed" != 0 ]; then
      for index in "${!parts[@]}"; do
        case ${parts[index]} in linux | speed | conformance | valgrind)
          echo "not run: ${parts[index]}"
          unset "parts[index]"
          ;;
        esac
      done
    fi
    ;;
esac
if [ ${#parts[@]} = 1 ]; then
  (run "${parts[@]}") 2>&1
else
  started=0
  for part in "${parts[@]}"; do
    [ $started -lt 2 ] || wait -n
    started=$((started + 1))
    (
      run "$part" > "$results/$part.out" 2>&1
      flock "$results" cat "$results/$part.out"
    ) &
  done
  wait
fi
for part in "${parts[@]}"; do add_up "$part"; done

seconds=$((SECONDS - start))
for failure in ${failures[@]+"${failures[@]}"}; do echo "failed: $failure"; done
printf 'tolva: %d passed, %d failed, %d skipped in %d min %02d s\n' \
  "$passed" "$failed" "$skipped" $((seconds / 60)) $((seconds % 60))
[ "$failed" = 0 ]
