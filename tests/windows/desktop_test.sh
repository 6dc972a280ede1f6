#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# torvik.exe in a real window under Wine, driven through keyboard and mouse alone: a sample becomes a
# Kestra file and, over all that can be wrong with a diskette, a WinCAM program on drive A:; a second
# start with a drawing hands it over; what cannot be kept beside the program is kept for the user.
# Needs mounts of its own: scripts/test-windows gives them.
# usage: desktop_test.sh ZIP CONVERTER PREPARER SAMPLES PICTURES

readonly zip=$1 converter=$2 preparer=$3 samples=$4 pictures=$5
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/wine.sh"
source "$here/../e2e/screen.sh"
source "$here/../e2e/nameplate.sh"

readonly opening='^Torvik$'
readonly gear='^Torvik - importing from HPGL file .*gear\.plt$'
readonly imported='^Torvik - importing from HPGL file .*nameplate\.plt$'

# When a dialog of Windows' own goes, this window manager may leave nobody with the keyboard: the
# window is clicked, as it were.
isActive() {
  window=$(windowOf "$1") || return 1
  [[ $(xdotool getactivewindow 2>/dev/null) != "$window" ]] || return 0
  xdotool windowactivate "$window" 2>/dev/null
  return 1
}

# Pressed and released before a dialog can go: it would take the release along, and the next press of
# the key would count as a repetition. The pause is for Wine, which loses keys of the same moment.
keys() {
  xdotool key --delay 0 "$@"
  sleep 0.3
}

# shot NAME: a picture of the screen, when nothing on it changes any more.
shot() {
  local picture=$pictures/$1.png before=none now tries=20
  while ((tries-- > 0)); do
    import -silent -window root "$picture"
    now=$(identify -format '%#' "$picture")
    [[ $now != "$before" ]] || return 0
    before=$now
    sleep 0.2
  done
}

# The folder with the samples is the one that the program shows first.
openDrawing() {
  waitFor "$opening"
  keys alt+s
  waitFor '^Select the HPGL file to process$'
  shot "open-$1"
  text nameplate.plt
  keys Return
  waitFor "$imported"
}

clickNext() { clickAt -50 -22; }

toOutput() {
  local page
  openDrawing "$1"
  keys Return
  keys Return
  for page in pens order header output; do
    shot "$1-$page" # when it has come
    [[ $page == output ]] || clickNext
  done
}

# The message box bears the program's name while the main window bears the drawing's.
waitForMessage() {
  waitFor "$opening"
  shot "$1"
}

kestraFile() {
  step 'a Kestra file'
  openDrawing first
  answerNameplate
  shot output
  keys Up Down Return
  waitFor '^Select the destination Kestra file$'
  shot save
  keys ctrl+a # the proposed name
  text 'C:\out\nameplate'
  keys Return
  waitForMessage written
  cmp "$driveC/out/nameplate.iso" "$here/../e2e/nameplate.iso" ||
    fail 'the written program is not the one worked out by hand'
  [[ -s $folder/PlotSave/nameplate.plx ]] || fail 'the answers are not beside the program'
  same 'the folder in the registry' "$(registryValue 'Kestra File Path')" 'C:\out\'
}

# diskette OPTIONS: what Wine's drive A: leads to, a small file system mounted with the options.
diskette() {
  umount "$home/diskette" 2>/dev/null || true
  mount -t tmpfs -o "$1" diskette "$home/diskette"
}

wincamProgram() {
  step 'a WinCAM program: no diskette'
  keys space # another drawing
  until_ 'the menu does not close' isGone "$window"
  toOutput again
  keys Up
  keys Up
  keys Up
  keys Return
  waitFor '^WinCAM'
  shot number
  text 7
  keys Return
  waitForMessage no-diskette
  step 'write-protected'
  mkdir "$home/diskette"
  diskette ro,size=1m
  keys Return
  waitForMessage protected
  step 'full'
  mount -o remount,rw,size=4k "$home/diskette"
  keys Return
  waitForMessage full
  step 'ready'
  mount -o remount,size=1m "$home/diskette"
  rm -f "$home/diskette"/*
  keys Return
  waitFor "$imported"
  clickNext
  waitFor '^WinCAM'
  text 7
  keys Return
  waitForMessage written-to-a
  "$converter" "$samples/nameplate.plt" --answers "$folder/PlotSave/nameplate.plx" \
    --tools "$samples/Maskor.ini" --target wincam --number 7 --output "$home/out/wincam" --quiet
  cmp "$home/diskette/%MPF7" "$home/out/wincam" || fail 'the program on drive A: differs'
  [[ -s $home/diskette/%MPF7.txt ]] || fail 'the text beside the program is missing'
}

secondStart() {
  step 'a second start with a drawing'
  keys space
  until_ 'the menu does not close' isGone "$window"
  waitFor "$opening"
  xdotool windowminimize --sync "$window"
  "$program" "$folderThere\\Sample files\\gear.plt" &
  waitForEnd $!
  waitFor "$gear"
  kill -0 "$running" || fail 'the first copy has ended'
  shot second-start
}

# The drawing that is open, in the dialog.
preparedDrawing() {
  step 'a prepared drawing'
  keys ctrl+p
  waitFor '^Prepare a Drawing$'
  shot prepare
  keys alt+s
  waitFor '^Save the prepared drawing$'
  keys ctrl+a
  text 'C:\out\prepared'
  keys Return
  waitFor '^Drawing saved$'
  shot prepared
  keys alt+n
  until_ 'the question does not close' isGone "$window"
  waitFor '^Prepare a Drawing$'
  keys Escape
  until_ 'the dialog does not close' isGone "$window"
  "$preparer" "$samples/gear.plt" --output "$home/out/prepared.plt" --quiet
  cmp "$driveC/out/prepared.plt" "$home/out/prepared.plt" || fail 'the prepared drawing differs'
}

helpAndExit() {
  waitFor "$gear"
  keys F1
  waitFor '^Torvik.*[Hh]elp'
  shot help
  keys Escape
  waitFor "$gear"
  keys ctrl+q
  waitFor '^Exit from Torvik$'
  shot exit
  keys alt+y
  waitForEnd "$running"
  running=
}

# As for a pupil where the program is installed for all.
folderOfOthers() {
  step 'a program folder that cannot be written'
  rm -r "$folder/PlotSave" "$folder"/*.log
  mount --bind "$folder" "$folder"
  mount -o remount,ro,bind "$folder"
  startProgram
  openDrawing read-only
  answerNameplate
  keys Down Down Down Return
  waitFor '^Select the destination Kestra file$'
  keys ctrl+a # the proposed name
  text 'C:\out\pupil'
  keys Return
  waitFor "$opening"
  cmp "$driveC/out/pupil.iso" "$here/../e2e/nameplate.iso" || fail 'the program differs'
  local answers
  answers=("$driveC"/users/*/AppData/Roaming/Torvik/PlotSave/nameplate.plx)
  [[ -s ${answers[0]} ]] || fail 'the answers are not in the folder of the user'
  keys space
  until_ 'the menu does not close' isGone "$window"
  waitFor "$opening"
  keys ctrl+q
  waitForEnd "$running"
  running=
}

mkdir -p "$pictures"
openScreen 1280x900
unset TORVIK_HOME
openWine "$zip"
# Wine first: its files are in the home folder of the screen.
closeAll() {
  wineserver -k 2>/dev/null || true
  umount "$home/diskette" "$folder" 2>/dev/null || true
  closeWine
  closeScreen
}
trap closeAll EXIT
mkdir "$driveC/out"
# Wine looks for drives at its start alone; a diskette may come later.
ln -s "$home/diskette" "$WINEPREFIX/dosdevices/a:"
wineserver -k
wineserver -w
readonly program=$home/torvik.sh
printf '#!/bin/sh\nexec wine "%s" "$@"\n' "$folder/torvik.exe" >"$program"
chmod +x "$program"
startProgram
waitFor "$opening"
shot start
kestraFile
wincamProgram
secondStart
preparedDrawing
helpAndExit
folderOfOthers
step 'passed'
