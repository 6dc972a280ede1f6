#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# torvik-convert.exe and torvik-prepare.exe under Wine write the same bytes as the programs of this
# system: each sample for each control, with the tools of the registry and the answers of PlotSave.
# usage: converter_test.sh ZIP CONVERTER PREPARER SAMPLES

readonly zip=$1 converter=$2 preparer=$3 samples=$4
source "$(dirname "${BASH_SOURCE[0]}")/wine.sh"

readonly targets=(wincam winnc maskor kestra)
readonly drawingsThere='C:\Zeichnungen Größe'
cases=0

# there NAME...: the names as Windows calls them in the folder of the drawings.
there() { printf '%s\n' "$@" | sed "s|^|${drawingsThere//\\/\\\\}\\\\|"; }

# The name of the drawing in the text beside a program is that of the other system.
asThere() {
  local name
  if [[ $1 == *.txt ]]; then
    name=$(sed -n 's/^Origin - .*\/\([^/]*\)$/\1/p;q' "$1")
    printf 'Origin - %s\\%s\n' "$(iconv -f utf8 -t latin1 <<<"$drawingsThere")" "$name"
    tail -n +2 "$1"
  else
    cat "$1"
  fi
}

sameFolders() { # HERE THERE
  local file
  same "the files of $2" "$(ls "$2")" "$(ls "$1")"
  for file in "$1"/*; do
    LC_ALL=C asThere "$file" | cmp - "$2/${file##*/}" >&2 ||
      fail "${file##*/} differs from that of this system"
    ((cases += 1))
  done
}

prepareDrawings() {
  local name warnings=$WINEPREFIX/warnings
  mkdir -p "$WINEPREFIX/prepared" "$drawings"
  for name in badge.hpgl plate.plt sign.svg; do
    "$preparer" "$samples/prepare/$name" --quiet --output-dir "$WINEPREFIX/prepared" 2>"$warnings"
    wine "$folder/torvik-prepare.exe" "$folderThere\\Sample files\\$name" --quiet \
      --output-dir "$drawingsThere" 2>>"$warnings" || fail "$(<"$warnings")"
  done
  # Tools beside the lines, tabs and texts, from CAD and from a drawing program.
  local -ra tools=(--quiet --run 2=outside:6 --tabs 2=5:4:3 --run 3=pocket:6 --origin 10,10 --optimize)
  for name in doorplate.dxf doorplate.svg; do
    "$preparer" "$samples/prepare/$name" "${tools[@]}" -o "$WINEPREFIX/prepared/$name.plt" \
      2>"$warnings"
    wine "$folder/torvik-prepare.exe" "$folderThere\\Sample files\\$name" "${tools[@]}" \
      -o "$drawingsThere\\$name.plt" 2>>"$warnings" || fail "$(<"$warnings")"
  done
  sameFolders "$WINEPREFIX/prepared" "$drawings"
}

convertDrawings() {
  local target here name
  local -a names
  cp "$samples"/*.plt "$drawings/"
  cp "$drawings/gear.plt" "$drawings/Zahnrad für Öl.plt"
  mkdir -p "$folder/PlotSave" "$WINEPREFIX/home"
  cp "$samples"/*.plx "$samples"/prepare/*.plx "$folder/PlotSave/"
  cp "$samples/gear.plx" "$folder/PlotSave/Zahnrad für Öl.plx"
  for name in doorplate.dxf doorplate.svg; do
    cp "$samples/prepare/doorplate-torvik.plx" "$folder/PlotSave/$name.plx"
  done
  ln -s "$folder/PlotSave" "$WINEPREFIX/home/PlotSave"
  mapfile -t names < <(cd "$drawings" && ls -- *.plt)
  mapfile -t namesThere < <(there "${names[@]}")
  for target in "${targets[@]}"; do
    here=$WINEPREFIX/$target
    mkdir -p "$here" "$driveC/out/$target"
    (cd "$drawings" && TORVIK_HOME=$WINEPREFIX/home "$converter" "${names[@]}" --target "$target" \
      --number 1 --tools "$samples/Maskor.ini" --output-dir "$here" --quiet)
    wine "$folder/torvik-convert.exe" "${namesThere[@]}" --target "$target" --number 1 \
      --output-dir "C:\\out\\$target" --quiet
    sameFolders "$here" "$driveC/out/$target"
  done
}

# ends CODE SAYS WORD...: the converter's exit code, and a part of what it says.
ends() {
  local code=$1 says=$2 output result=0
  shift 2
  output=$(wine "$folder/torvik-convert.exe" "$@" 2>&1 | tr -d '\r'; exit "${PIPESTATUS[0]}") ||
    result=$?
  same "the exit code of $*" "$result" "$code"
  [[ $output == *"$says"* ]] || fail "$* says \"$output\", not \"$says\""
  ((cases += 1))
}

openWine "$zip"
readonly drawings="$driveC/${drawingsThere#C:\\}"
step 'the same drawings from torvik-prepare'
prepareDrawings
step 'the same programs from torvik-convert'
convertDrawings
step 'messages and exit codes'
ends 0 '1.0' --version
ends 1 'mars' "$drawingsThere\\gear.plt" --target mars
ends 2 "C:\\Zeichnungen Größe\\weg.plt: the file does not exist" "$drawingsThere\\weg.plt" \
  --target kestra
ends 2 'exists already' "$drawingsThere\\gear.plt" --target kestra --output-dir 'C:\out\kestra'
ends 0 'Pen 2 Red: 0 lines, 0 arcs, 6 circles' --show "$drawingsThere\\Zahnrad für Öl.plt"
rm "$folder/PlotSave/bracket.plx"
ends 4 'bracket' "$drawingsThere\\bracket.plt" --target kestra --output-dir 'C:\out'
step "passed: $cases comparisons"
