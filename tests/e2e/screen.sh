# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# Read by the scripts that drive the real program: a screen that nobody sees with a window manager,
# a home of its own for the program, and waiting for windows by their titles.

set -euo pipefail

folderOfScreen=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
readonly folderOfScreen
readonly patience=${TORVIK_PATIENCE:-30} # seconds that a window may take to come

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  if [[ -n ${home:-} && -s $home/errors ]]; then
    printf '%s\n' '--- on standard error:' >&2
    cat "$home/errors" >&2
  fi
  [[ ! -s ${home:-}/openbox ]] || cat "$home/openbox" >&2
  if [[ -n ${DISPLAY:-} ]]; then
    printf '%s\n' '--- windows on the screen:' >&2
    xdotool search --onlyvisible --name '.' getwindowname %@ 2>/dev/null | sort -u >&2 || true
  fi
  # TORVIK_PICTURE names a file for a picture of the screen.
  [[ -z ${TORVIK_PICTURE:-} ]] || import -silent -window root "$TORVIK_PICTURE" || true
  exit 1
}

step() { printf '%s\n' "$*"; }

# openScreen WIDTHxHEIGHT: starts the screen; $home is the folder for everything that is written.
openScreen() {
  home=$(mktemp -d)
  trap closeScreen EXIT
  export HOME=$home/user XDG_CONFIG_HOME=$home/config XDG_DATA_HOME=$home/data \
    XDG_CACHE_HOME=$home/cache XDG_RUNTIME_DIR=$home/run TMPDIR=$home/tmp TORVIK_HOME=$home/torvik
  export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=xcb
  export LSAN_OPTIONS=suppressions=$folderOfScreen/leaks_of_others.txt:print_suppressions=0
  unset WAYLAND_DISPLAY
  mkdir -p "$HOME" "$XDG_CONFIG_HOME/Baltrum" "$TMPDIR" "$TORVIK_HOME/Sample files" "$home/out"
  mkdir -m 700 "$XDG_RUNTIME_DIR"
  cp "$samples/Maskor.ini" "$XDG_CONFIG_HOME/Baltrum/"
  cp "$samples"/*.plt "$TORVIK_HOME/Sample files/"

  mkfifo "$home/display"
  Xvfb -displayfd 9 -screen 0 "$1x24" -nolisten tcp 9>"$home/display" >"$home/xvfb" 2>&1 &
  screen=$!
  local number
  read -r -t "$patience" number <"$home/display" || fail "the screen does not start"
  export DISPLAY=:$number
  until_ 'the window manager does not start' isManaged
}

# On a busy machine a window manager may give up before it has begun; then it is started again.
isManaged() {
  [[ -n ${manager:-} ]] && kill -0 "$manager" 2>/dev/null || {
    openbox --sm-disable >>"$home/openbox" 2>&1 &
    manager=$!
  }
  xdotool get_num_desktops 2>/dev/null
}

closeScreen() {
  local process
  for process in "${running:-}" "${manager:-}" "${screen:-}"; do
    [[ -z $process ]] || kill "$process" 2>/dev/null || true
  done
  wait 2>/dev/null || true
  rm -rf "$home"
}

# startProgram: $running is its process.
startProgram() {
  "$program" 2>>"$home/errors" &
  running=$!
}

# windowOf TITLE_PATTERN: prints the window that is visible now, or fails.
windowOf() {
  local number found=
  for number in $(xdotool search --onlyvisible --name . 2>/dev/null); do
    # The search itself stops at letters beyond ASCII.
    if xdotool getwindowname "$number" 2>/dev/null | grep -qE -- "$1"; then found=$number; fi
  done
  [[ $found ]] && printf '%s\n' "$found"
}

# until_ WHAT COMMAND...: waits until the command succeeds.
until_() {
  local what=$1 end=$((SECONDS + patience))
  shift
  until "$@" >/dev/null; do
    ((SECONDS < end)) || fail "$what"
    sleep 0.025
  done
}

# Whether the window has the keyboard; $window is its number.
isActive() {
  window=$(windowOf "$1") && [[ $(xdotool getactivewindow 2>/dev/null) == "$window" ]]
}

# waitFor TITLE_PATTERN: until the window has the keyboard. A dialog takes no Enter, Space or Escape
# in its first 300 ms. A window manager that is short of time may leave a window in view without
# giving it the keyboard; then the window is asked to the front, as a person would click on it.
waitFor() {
  local end=$((SECONDS + patience)) ask=$((SECONDS + patience / 3))
  until isActive "$1"; do
    ((SECONDS < end)) || fail "no window '$1' came to the front"
    if ((SECONDS >= ask)) && window=$(windowOf "$1"); then
      xdotool windowactivate "$window" 2>/dev/null || true
    fi
    sleep 0.025
  done
  sleep 0.35
}

isGone() { ! xdotool search --onlyvisible --name '.' 2>/dev/null | grep -qx "$1"; }

keys() { xdotool key --delay 24 "$@"; }
text() { xdotool type --delay 12 "$1"; }

# The menu after a conversion bears the program's name, as the main window then does. Its first
# button has the focus.
processAnotherFile() {
  keys space
  until_ 'the menu does not close' isGone "$window"
}

# fill TEXT...: types into one box after the other.
fill() {
  local value first=1
  for value in "$@"; do
    [[ $first ]] || keys Tab
    first=
    text "$value"
  done
}

# clickAt X Y: in $window; a negative figure counts from the right or from below.
clickAt() {
  local X Y WIDTH HEIGHT x=$1 y=$2 click=${3:-1}
  eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
  ((x >= 0)) || x=$((WIDTH + x))
  ((y >= 0)) || y=$((HEIGHT + y))
  xdotool mousemove --window "$window" "$x" "$y" click --repeat "$click" --delay 40 1
}

hasEnded() { ! kill -0 "$1" 2>/dev/null; }

# waitForEnd PROCESS: until it has ended; fails where its exit code is not 0.
waitForEnd() {
  until_ "process $1 does not end" hasEnded "$1"
  wait "$1" || fail "the program ended with exit code $?"
}
