#!/bin/sh
# SPDX-License-Identifier: MIT
# Runs windows_registry_test.exe under Wine, in a prefix of its own, and checks it against Wine's
# own tool: windows_registry_test.sh PROGRAM.exe
set -eu
program=$1
WINEPREFIX=$(mktemp -d)
export WINEPREFIX WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml="
trap 'wineserver -k || true; wineserver -w || true; rm -rf "$WINEPREFIX"' EXIT

same() {
  if [ "$2" != "$3" ]; then
    echo "FAILED: $1: \"$2\" instead of \"$3\""
    exit 1
  fi
}

wine "$program" replace-tools

cat > "$WINEPREFIX/tools.reg" <<'REG'
Windows Registry Editor Version 5.00

[HKEY_LOCAL_MACHINE\SOFTWARE\Baltrum\Maskor]
"Tool01"="7|Slot drill|6.000|-2000.000"
REG
wine regedit /S "$WINEPREFIX/tools.reg"
same "an imported value" "$(wine "$program" get Tool01 none)" "7|Slot drill|6.000|-2000.000"

wine "$program" put Tool02 "8|Drill, 2 lips|2.500|-2000.000"
key='HKLM\SOFTWARE\Baltrum\Maskor'
same "a value as Wine's reg sees it" \
  "$(wine reg query "$key" /v Tool02 | tr -d '\r' | sed -n 's/^ *Tool02  *REG_SZ  *//p')" \
  "8|Drill, 2 lips|2.500|-2000.000"
echo "The registry tests passed."
