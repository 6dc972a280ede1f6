# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Read by the tests that run the packed Windows programs under Wine: a Wine of their own with the
# package unpacked in a folder with odd letters, and the sample tools in its registry.

set -euo pipefail
export LC_ALL=C.UTF-8 WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml='

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  exit 1
}

step() { printf '%s\n' "$*"; }

# openWine ZIP: $WINEPREFIX, its drive C: as $driveC, the program's folder as $folder and as Windows
# calls it as $folderThere.
openWine() {
  WINEPREFIX=$(mktemp -d)
  export WINEPREFIX
  trap closeWine EXIT
  wineboot -i >/dev/null 2>&1
  driveC=$WINEPREFIX/drive_c
  folder="$driveC/Werkstatt Mühle/Torvik"
  folderThere='C:\Werkstatt Mühle\Torvik'
  mkdir -p "${folder%/*}" "$WINEPREFIX/unpacked"
  unzip -q "$1" -d "$WINEPREFIX/unpacked"
  mv "$WINEPREFIX"/unpacked/* "$folder"
  # The letters of windows, which a bare Wine lacks.
  for font in 'Segoe UI' Tahoma 'MS Shell Dlg' 'MS Shell Dlg 2'; do
    wine reg add 'HKCU\Software\Wine\Fonts\Replacements' /v "$font" /d 'DejaVu Sans' /f >/dev/null
  done
  wine regedit /S "$folderThere\\Sample files\\Sample tools.reg"
}

closeWine() {
  wineserver -k 2>/dev/null || true
  wineserver -w 2>/dev/null || true
  rm -rf "$WINEPREFIX"
}

# registryValue NAME: as Wine's own tool reads it; "none" where there is no such text value.
registryValue() {
  local line
  line=$(wine reg query 'HKLM\SOFTWARE\Baltrum\Maskor' /v "$1" 2>/dev/null | tr -d '\r' |
    sed -n "s/^ *$1  *REG_SZ  *//p")
  printf '%s\n' "${line:-none}"
}

same() { # WHAT ACTUAL EXPECTED
  [[ $2 == "$3" ]] || fail "$1: \"$2\" instead of \"$3\""
}
