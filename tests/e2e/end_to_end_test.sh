#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The real program, driven through keyboard and mouse alone: a drawing goes through all six steps to
# a written Kestra file; the same drawing comes back with its answers; a second start brings the
# first to the front; closing asks before unsaved work is lost; a crash does not keep the program from
# starting; a drawing of another program is prepared and opened by mouse alone.
# usage: end_to_end_test.sh PROGRAM CONVERTER SAMPLES

readonly program=$1 converter=$2 samples=$3 # the first and the last for screen.sh
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/screen.sh"
source "$here/nameplate.sh"

readonly opening='^Torvik$'
readonly imported='^Torvik - importing from HPGL file .*nameplate\.plt$'

sameBytes() { cmp "$1" "$2" >&2 || { diff "$1" "$2" >&2 || true; fail "$3"; }; }

# Alt+S, then the drawing's name in the file dialog.
openDrawing() {
  waitFor "$opening"
  keys alt+s
  waitFor '^Select the HPGL file to process$'
  text "$TORVIK_HOME/Sample files/nameplate.plt"
  keys Return
  waitFor "$imported"
}

# write NAME: on the output page, to the menu that follows.
write() {
  keys Return
  waitFor '^Select the destination Kestra file$'
  text "$home/out/$1"
  keys Return
  waitFor "$opening" # the menu, whose title is the program's name
}

firstConversion() {
  openDrawing
  answerNameplate
  keys Up Down
  write nameplate
  sameBytes "$home/out/nameplate.iso" "$here/nameplate.iso" \
    'the written program is not the one worked out by hand'
  "$converter" "$TORVIK_HOME/Sample files/nameplate.plt" --target kestra --quiet \
    --answers "$TORVIK_HOME/PlotSave/nameplate.plx" --tools "$samples/Maskor.ini" \
    --output "$home/out/converted.iso"
  sameBytes "$home/out/nameplate.iso" "$home/out/converted.iso" \
    'the converter makes another program of the same answers'
}

# By Next alone: with the keyboard up to the pens, with the mouse from there.
sameDrawingAgain() {
  step 'the same drawing again'
  openDrawing
  keys Return Return
  clickNext
  clickNext
  clickNext
  write again.iso
  sameBytes "$home/out/again.iso" "$here/nameplate.iso" \
    'the saved answers do not give the same program'
}

clickNext() { clickAt -50 -22; }

secondStart() {
  step 'a second start'
  waitFor "$opening"
  xdotool windowminimize --sync "$window"
  local second
  "$program" 2>>"$home/errors" &
  second=$!
  waitForEnd "$second"
  until_ 'the first copy does not come to the front' isActive "$opening"
  kill -0 "$running" || fail 'the first copy has ended'
}

closing() {
  step 'closing'
  openDrawing
  keys alt+F4
  waitFor '^Exit from Torvik$'
  keys Escape
  waitFor "$imported"
  keys ctrl+q
  waitFor '^Exit from Torvik$'
  keys alt+y
  waitForEnd "$running"
  running=
}

afterCrash() {
  step 'after a crash'
  startProgram
  waitFor "$opening"
  kill -KILL "$running"
  wait "$running" 2>/dev/null || true
  startProgram
  waitFor "$opening"
  keys ctrl+q
  waitForEnd "$running"
  running=
}

# The mouse may come before a menu is open, a list of files filled or a button enabled. So each of these
# says whether the click has had its effect, and clicks if not.
chooseToPrepare() {
  windowOf '^Prepare a Drawing$' ||
    { isActive "$opening" && clickAt 20 10 && sleep 0.3 && clickAt 80 52 && sleep 1 && false; }
}
takeSource() {
  ! windowOf '^Select the drawing to prepare$' ||
    { isActive '^Select the drawing to prepare$' && clickAt 170 72 2 && sleep 1 && false; }
}
pressSave() {
  windowOf '^Save the prepared drawing$' ||
    { isActive '^Prepare a Drawing$' && clickAt -135 -28 && sleep 0.5 && false; }
}

# A drawing of another program, alone in the folder, by mouse alone.
preparing() {
  step 'preparing a drawing'
  local samplesFolder="$TORVIK_HOME/Sample files"
  rm "$samplesFolder"/*
  cp "$samples/prepare/badge.hpgl" "$samplesFolder/"
  startProgram
  waitFor "$opening"
  until_ 'the menu does not open the dialog' chooseToPrepare
  waitFor '^Prepare a Drawing$'
  clickAt 50 22
  waitFor '^Select the drawing to prepare$'
  until_ 'no drawing is chosen' takeSource
  until_ 'the drawing cannot be saved' pressSave
  waitFor '^Save the prepared drawing$'
  clickAt -52 -54
  waitFor '^Drawing saved$'
  clickAt -137 -23
  waitFor '^Torvik - importing from HPGL file .*badge-torvik\.plt$'
  "${program%/*}/torvik-prepare" "$samplesFolder/badge.hpgl" --quiet -o "$home/out/badge.plt" \
    2>"$home/warnings"
  sameBytes "$samplesFolder/badge-torvik.plt" "$home/out/badge.plt" \
    'the dialog and the command make different drawings'
  "$converter" "$samplesFolder/badge-torvik.plt" --target kestra --quiet --tools \
    "$samples/Maskor.ini" --answers "$samples/prepare/badge-torvik.plx" --output "$home/out/badge.iso"
  grep -q 'G3 X30.000 Y59.000 I0.000 J-29.000' "$home/out/badge.iso" ||
    fail 'the ring is not milled as a circle'
  keys ctrl+q
  waitFor '^Exit from Torvik$'
  keys alt+y
  waitForEnd "$running"
  running=
}

openScreen 1280x900
startProgram
firstConversion
processAnotherFile
sameDrawingAgain
processAnotherFile
secondStart
closing
afterCrash
preparing
[[ ! -s $home/errors ]] || fail 'something was written to standard error'
step 'passed'
