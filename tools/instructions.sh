#!/bin/sh
# What the typed read and write of a policy of 40 KB cost, as valgrind counts it: instructions and
# allocations for each element. Counts have no noise, so a change that costs more is noticed.
#   instructions.sh <tolva_guard>            fails above a limit, and when instructions differ by
#                                            more than 3 % from what bench/instructions.txt has for
#                                            this compiler
#   instructions.sh <tolva_guard> --update   makes bench/instructions.txt anew
set -eu
cd "$(dirname "$0")/.."

guard=$1
update=${2:-}
recorded=bench/instructions.txt
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# The C library chooses functions by the processor. It is told of no feature that it could choose
# by, so that the same functions run everywhere.
features=-AVX2,-AVX,-AVX512F,-AVX512VL,-AVX512BW,-AVX_Fast_Unaligned_Load,-BMI1,-BMI2,-LZCNT,-MOVBE
features=$features,-POPCNT,-ERMS,-FSRM,-RTM,-SSSE3,-SSE4_1,-SSE4_2,-Fast_Unaligned_Copy
features=$features,-Fast_Copy_Backward,-Slow_BSF,-Prefer_No_VZEROUPPER

# count <read|write> <times>: instructions of the whole program
count() {
  env -i GLIBC_TUNABLES="glibc.cpu.hwcaps=$features" \
    valgrind --tool=callgrind --callgrind-out-file=/dev/null "$guard" "$1" "$2" \
    > "$work/out" 2> "$work/err" || { cat "$work/err" >&2; exit 1; }
  sed -n 's/^.*Collected : \([0-9]*\)$/\1/p' "$work/err"
}

# measure <read|write>: sets `instructions`, and `allocations` in hundredths, for each element
measure() {
  few=$(count "$1" 2)
  many=$(count "$1" 12)
  elements=$(sed -n 's/^\([0-9]*\) elements.*/\1/p' "$work/out")
  calls=$(sed -n 's/^.*, \([0-9]*\) allocations$/\1/p' "$work/out")
  instructions=$(((many - few) / 10 / elements))
  allocations=$((calls * 100 / 12 / elements))
}

status=0
fail() {
  echo "instructions.sh: $1" >&2
  status=1
}

# check <read|write> <limit>
check() {
  measure "$1"
  echo "$1 $instructions" >> "$work/made"
  echo "$1: $instructions instructions an element, limit $2"
  [ "$instructions" -le "$2" ] || fail "a $1 costs more than its limit"
  [ -z "$update" ] && grep -qxF "$heading" "$recorded" || return 0
  before=$(sed -n "s/^$1 //p" "$recorded")
  if [ $((instructions * 100)) -gt $((before * 103)) ]; then
    fail "a $1 costs more than before: $before were recorded"
  elif [ $((instructions * 100)) -lt $((before * 97)) ]; then
    fail "a $1 costs less than before: $before were recorded. Run this with --update"
  fi
}

heading="# Instructions an element, with GCC $(g++ -dumpfullversion). Made by tools/instructions.sh."
echo "$heading" > "$work/made"
grep -qxF "$heading" "$recorded" || echo "$recorded is of another compiler: limits alone"
check write 740
check read 1400
echo "read: $((allocations / 100)).$(printf %02d $((allocations % 100))) allocations an element," \
  "limit 1.3"
[ "$allocations" -le 130 ] || fail 'a read allocates more than its limit'
[ -z "$update" ] || cp "$work/made" "$recorded"
exit $status
