#!/bin/bash
# The fuzz targets, which build/fuzz has (preset `fuzz`).
#   fuzz.sh replay                      every known input once
#   fuzz.sh run <seconds> [target...]   looks for new ones, all targets unless some are named
# Known inputs are the example documents and fuzz/corpus/<target>; new ones are kept in
# build/fuzz/corpus/<target>, and what fails in build/fuzz/findings.
set -eu
cd "$(dirname "$0")/.."

all=(reader cursor nodes writer differential check verbs)
findings=build/fuzz/findings/
mkdir -p "$findings"
limits=(-timeout=20 -rss_limit_mb=2048 -malloc_limit_mb=1024 -artifact_prefix="$findings")

known() { # <target>
  echo examples/documents
  echo examples/documents/broken
  [ ! -d "fuzz/corpus/$1" ] || echo "fuzz/corpus/$1"
}

make_dictionary() {
  cat fuzz/xml.dict
  # shellcheck disable=SC2016  # those are the marks of the page
  grep -o '`[A-Za-z_]*`' docs/documents.md | sort -u | tr '`' '"'
}

case ${1:-} in
  replay)
    for target in "${all[@]}"; do
      # shellcheck disable=SC2046  # names of folders
      build/fuzz/fuzz/fuzz_"$target" -runs=0 "${limits[@]}" $(known "$target") 2> build/fuzz/log ||
        { tail -n 40 build/fuzz/log; exit 1; }
      echo "$target: $(sed -n 's/.*INITED.*corp: \([0-9]*\).*/\1/p' build/fuzz/log) inputs"
    done
    ;;
  run)
    seconds=$2
    shift 2
    [ $# != 0 ] || set -- "${all[@]}"
    make_dictionary > build/fuzz/dictionary
    for target in "$@"; do
      mkdir -p "build/fuzz/corpus/$target"
      # shellcheck disable=SC2046
      build/fuzz/fuzz/fuzz_"$target" -max_total_time="$seconds" -dict=build/fuzz/dictionary \
        -print_final_stats=1 "${limits[@]}" "build/fuzz/corpus/$target" $(known "$target") \
        2> "build/fuzz/$target.log" || { tail -n 60 "build/fuzz/$target.log"; exit 1; }
      echo "$target: $(sed -n 's/stat::number_of_executed_units: *//p' "build/fuzz/$target.log")" \
        "executions in $seconds s, no finding"
    done
    ;;
  *)
    sed -n '2,6p' "$0" >&2
    exit 2
    ;;
esac
