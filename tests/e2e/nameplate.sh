# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Read by the tests that drive the desktop program, behind screen.sh: the answers for the sample
# nameplate.plt that make the program in nameplate.iso. $imported is the window's title meanwhile.

# cut COLOUR ROW: from the first empty box to the choice above it; the tool button, which then has
# the focus, opens the tool list.
cut() {
  keys shift+Tab Up space
  keys space
  waitFor "^Select the Tool for the $1 lines\$"
  shot "tools-$1"
  keys --repeat "$2" Down
  keys Return
  waitFor "$imported"
}

# From the heights to the choice of a control.
answerNameplate() {
  step 'heights'
  text 5                # in the first empty box, the Safe Height
  keys Tab Tab Up       # feed rates in mm per minute
  shot heights
  keys Return
  step 'first pen'
  cut Black 4
  fill 4000 300 75 0.4 0.4
  shot pen-1
  keys Return
  step 'second pen'
  cut Red 2
  fill 3500 240 60 3 1 0.2 120
  shot pen-2
  keys Return
  step 'order'
  shot order
  keys Down Up Return
  step 'header'
  keys shift+Tab
  fill '14 March 2025' 'Sam Carter' 'Ms Green' 'Year 9 Blue' 'Workshop name plate' \
    'Acrylic (two-colour)' 140 60 3
  shot header
  keys Return
  step 'output'
}

# shot NAME: a picture of the screen where the test wants them.
shot() { :; }
