#!/bin/sh
# Instructions per element of the typed read and write of a policy of 40 KB, as valgrind counts them:
#   instructions.sh <tolva_guard> [read limit] [write limit]
# Fails if a count is above its limit.
set -eu

guard=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# count <read|write> <times>: instructions of the whole program
count() {
  valgrind --tool=callgrind --callgrind-out-file=/dev/null "$guard" "$1" "$2" \
    > "$work/out" 2> "$work/err" || { cat "$work/err" >&2; exit 1; }
  sed -n 's/^.*Collected : \([0-9]*\)$/\1/p' "$work/err"
}

status=0
for work_kind in read write; do
  few=$(count $work_kind 10)
  many=$(count $work_kind 30)
  elements=$(sed -n 's/^\([0-9]*\) elements$/\1/p' "$work/out")
  each=$(((many - few) / 20 / elements))
  if [ $work_kind = read ]; then limit=${2:-}; else limit=${3:-}; fi
  echo "$work_kind: $each instructions an element${limit:+, limit $limit}"
  if [ -n "$limit" ] && [ "$each" -gt "$limit" ]; then status=1; fi
done
exit $status
