#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The real program, as somebody works with it who does not see it: spoken.py hears names and roles
# as a screen reader does, on a message bus of its own, and presses keys; from the choice of a
# drawing to a written Kestra file.
# usage: spoken_test.sh PROGRAM SAMPLES

[[ -v TORVIK_OWN_BUS ]] ||
  TORVIK_OWN_BUS=1 exec dbus-run-session -- "$0" "$@" 2> >(grep -vE '^dbus-daemon|^SpiRegistry' >&2)

readonly program=$1 samples=$2 # for screen.sh
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
source "$here/screen.sh"

openScreen 1280x900
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
dbus-send --session --print-reply --dest=org.a11y.Bus /org/a11y/bus org.a11y.Bus.GetAddress \
  >"$home/bus" || fail 'the bus of the screen readers does not start'
startProgram
waitFor '^Torvik$'
/usr/bin/python3 "$here/spoken.py" "$TORVIK_HOME/Sample files/nameplate.plt" "$home/out/nameplate" ||
  fail 'not to be done by ear'
waitForEnd "$running"
running=
cmp "$home/out/nameplate.iso" "$here/nameplate.iso" >&2 ||
  fail 'the written program is not the one worked out by hand'
[[ ! -s $home/errors ]] || fail 'something was written to standard error'
step 'passed'
