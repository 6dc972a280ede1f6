#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Whether finished programs for Linux hold what cmake/Hardening.cmake asks for. What is in the code
# itself is looked for in the code where the linker of Debian 12 leaves no note of it.
# usage: hardening_test.sh PROGRAM...

set -euo pipefail

# expect PROGRAM WHAT PATTERN COMMAND...: a line of what the command says fits the pattern.
expect() {
  local program=$1 what=$2 pattern=$3
  shift 3
  LC_ALL=C "$@" "$program" >"$said"
  grep -Eq -- "$pattern" "$said" || {
    printf 'FAILED: %s: %s\n' "$program" "$what" >&2
    exit 1
  }
}

# code PROGRAM FROM BYTES: what lies there.
code() { objdump -d --no-show-raw-insn "--start-address=$2" "--stop-address=$(($2 + $3))" "$1"; }

# The first word of main, whose place the start of the program hands on: a place to jump to.
mainOf() {
  local start main
  start=$(readelf -hW "$1" | sed -n 's/^ *Entry point address: *//p')
  main=$(code "$1" "$start" 48 | sed -n 's/.*(%rip),%rdi *# \([0-9a-f]*\).*/0x\1/p')
  code "$1" "$main" 4
}

# A library that is linked in may bring one or two.
guardedStacks() { objdump -d --no-show-raw-insn "$1" | grep -c 'call.*__stack_chk_fail' || true; }

said=$(mktemp)
readonly said
trap 'rm -f "$said"' EXIT
printf '%s\n' "the hardening of the programs"
for program in "$@"; do
  expect "$program" "it cannot lie at any place" '^ *Type: +DYN \(Position-Independent' readelf -hW
  expect "$program" "nothing becomes read-only" '^ *GNU_RELRO ' readelf -lW
  expect "$program" "functions are bound late" '\(FLAGS(_1)?\).*\bNOW\b' readelf -dW
  expect "$program" "its stack is executable" '^ *GNU_STACK .* RW +0x' readelf -lW
  expect "$program" "few stacks are guarded" '^[0-9]{3,}$' guardedStacks
  expect "$program" "no call checks its buffer" ' UND __[a-z]+_chk@' readelf --dyn-syms -W
  expect "$program" "large frames are not probed" '\bor[lq] +\$0x0,.*\(%rsp\)' \
    objdump -d --no-show-raw-insn
  expect "$program" "it does not ask for a shadow stack" 'x86 feature:.* SHSTK' readelf -nW
  expect "$program" "places to jump to are not marked" '\bendbr64$' mainOf
done
