#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Whether programs for Windows say in their header that they may lie anywhere in the large address
# space (and can: they bring what moves them) and that their data is not run, and whether they limit
# where libraries come from. objdump reads them; nothing is run.
# usage: hardening_test.sh PROGRAM.exe...

set -euo pipefail

for program in "$@"; do
  said=$(LC_ALL=C x86_64-w64-mingw32-objdump -p "$program")
  for sign in '^\s+HIGH_ENTROPY_VA$' '^\s+DYNAMIC_BASE$' '^\s+NX_COMPAT$' \
    '^Virtual Address: [0-9a-f]+ Chunk size [0-9]+' '\sSetDefaultDllDirectories$'; do
    grep -Eq "$sign" <<<"$said" || {
      printf 'FAILED: %s: nothing fits %s\n' "$program" "$sign" >&2
      exit 1
    }
  done
done
