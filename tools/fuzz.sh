#!/bin/bash
# The fuzz targets, which build/fuzz has (preset `fuzz`). The sanitizers' build has them as well, without
# what guides the search.
#   fuzz.sh replay [build]              every known input once; the build is build/fuzz unless named
#   fuzz.sh run <seconds> [target...]   looks for new ones, all targets unless some are named
# Known inputs are the example documents and fuzz/corpus/<target>; new ones are kept in
# build/fuzz/corpus/<target>, and what fails in build/fuzz/findings.
set -eu
cd "$(dirname "$0")/.."

all=(cursor nodes writer differential check verbs)
findings=build/fuzz/findings/
mkdir -p "$findings"
limits=(-timeout=20 -rss_limit_mb=2048 -malloc_limit_mb=1024 -artifact_prefix="$findings")

known() { # <target>
  echo examples/documents
  [ ! -d "fuzz/corpus/$1" ] || echo "fuzz/corpus/$1"
}

make_dictionary() {
  cat fuzz/xml.dict
  # shellcheck disable=SC2016  # those are the marks of the page
  grep -o '`[A-Za-z_]*`' docs/documents.md | sort -u | tr '`' '"'
}

case ${1:-} in
  replay)
    build=${2:-build/fuzz}
    for target in "${all[@]}"; do
      # shellcheck disable=SC2046  # names of folders
      mapfile -t files < <(find $(known "$target") -type f)
      "$build/fuzz/fuzz_$target" "${limits[@]}" "${files[@]}" 2> "$build/log" ||
        { tail -n 40 "$build/log"; exit 1; }
      echo "$target: $(grep -c '^Executed' "$build/log") inputs"
    done
    ;;
  run)
    seconds=$2
    shift 2
    [ $# != 0 ] || set -- "${all[@]}"
    new=$(mktemp build/fuzz/dictionary.XXXXXX)
    make_dictionary > "$new"
    mv "$new" build/fuzz/dictionary  # another run may be reading it
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
    sed -n '2,7p' "$0" >&2
    exit 2
    ;;
esac
