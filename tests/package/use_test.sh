#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the package, uses it as a user without rights, and removes it: everything works, nothing is
# written outside the user's folders, and the user's tools and answers stay. Wants a space of mounts
# of its own. Where DEBIAN, the folder of a bare Debian, is empty, the package is unpacked into an
# empty folder and its programs use this system's libraries.
# usage: use_test.sh PACKAGE PROGRAMS DEBIAN

set -euo pipefail

readonly package=$1 programs=$2 debian=$3
work=$(mktemp -d)
readonly work root=$work/root
trap 'umount -R "$work" 2>/dev/null || true; rm -rf "$work"' EXIT

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  [[ ! -s $work/errors ]] || cat "$work/errors" >&2
  exit 1
}

step() { printf '%s\n' "$*"; }

# --- The two ways to install ---------------------------------------------------------------------

if [[ $debian ]]; then
  # What is written goes to memory, the bare Debian stays as it is.
  openRoot() {
    mount -t tmpfs none "$work"
    mkdir "$work"/{above,work,root}
    mount -t overlay overlay -o "lowerdir=$debian,upperdir=$work/above,workdir=$work/work" "$root"
    mount -t proc none "$root/proc"
    chroot "$root" useradd --create-home pupil
    readonly home=$root/home/pupil usr=/usr
  }
  install() {
    cp "$package" "$root/tmp/torvik.deb"
    chroot "$root" dpkg -i /tmp/torvik.deb >"$work/dpkg" 2>&1 || fail "dpkg: $(cat "$work/dpkg")"
    rm "$root/tmp/torvik.deb"
  }
  remove() {
    chroot "$root" dpkg --purge torvik >"$work/dpkg" 2>&1 || fail "dpkg: $(cat "$work/dpkg")"
  }
  user() {
    chroot --userspec=pupil:pupil "$root" env -i HOME=/home/pupil LANG=C.UTF-8 PATH=/usr/bin:/bin \
      XDG_RUNTIME_DIR=/home/pupil/run QT_QPA_PLATFORM=offscreen sh -c 'cd && exec "$@"' sh "$@"
  }
else
  openRoot() {
    mkdir -p "$root"/{var/lib/dpkg/{info,updates},home/pupil}
    touch "$root"/var/lib/dpkg/{status,available}
    chmod 755 "$work"
    readonly home=$root/home/pupil usr=$root/usr
    [[ $owner == root ]] || chown "$owner" "$home"
  }
  manage() {
    dpkg "--root=$root" --force-not-root --force-depends --force-bad-path --log=/dev/null "$@" \
      >"$work/dpkg" 2>&1 || fail "dpkg: $(cat "$work/dpkg")"
  }
  install() {
    manage -i "$package"
    # The user may be called root in here, but may not more than any other.
    chmod -R a-w "$root/usr"
  }
  remove() {
    chmod -R u+w "$root/usr"
    manage --purge torvik
  }
  # The user nobody, where there are others at all.
  owner=root
  setpriv --reuid=nobody --clear-groups true 2>/dev/null && owner=nobody
  readonly owner
  user() {
    local as=("--reuid=$owner" --clear-groups)
    [[ $owner != root ]] || as=(--bounding-set=-all --inh-caps=-all)
    setpriv "${as[@]}" env -i "HOME=$home" LANG=C.UTF-8 "PATH=$root/usr/bin:/usr/bin:/bin" \
      "XDG_RUNTIME_DIR=$home/run" QT_QPA_PLATFORM=offscreen sh -c 'cd && exec "$@"' sh "$@"
  }
fi

# --- What is tried -------------------------------------------------------------------------------

tryProgram() { user "$@" >"$work/said" 2>"$work/errors" || fail "'$*' ends with exit code $?"; }

commandLine() {
  step "the programs of the command line"
  local samples=$usr/share/torvik/samples name
  for name in torvik torvik-convert torvik-prepare torvik-check; do
    tryProgram timeout 20 "$name" -v
    [[ $(<"$work/said") == "$name $(dpkg-deb -f "$package" Version)" ]] ||
      fail "$name calls itself $(<"$work/said")"
  done
  tryProgram torvik-convert "$samples/gear.plt" --target kestra --answers "$samples/gear.plx" \
    --tools "$samples/Maskor.ini" --output gear.iso
  "$programs/torvik-convert" samples/gear.plt --target kestra --answers samples/gear.plx \
    --tools samples/Maskor.ini --output "$work/gear.iso" --quiet
  cmp "$work/gear.iso" "$home/gear.iso"
  tryProgram torvik-check gear.iso
  tryProgram torvik-prepare "$samples/prepare/sign.svg" --output sign.plt
  tryProgram torvik --sheet gear.pdf "$samples/gear.plt" --target kestra --answers \
    "$samples/gear.plx" --tools "$samples/Maskor.ini"
  [[ $(head -c 5 "$home/gear.pdf") == %PDF- ]] || fail "the job sheet is no PDF file"
  ! user torvik-convert "$samples/gear.plt" --target kestra --answers "$samples/gear.plx" \
    --tools "$samples/Maskor.ini" 2>/dev/null || fail "a program is written beside the samples"
}

# What the manual says of the user's folders is where the programs look.
ownFolders() {
  step "the user's own folders"
  local samples=$usr/share/torvik/samples
  user mkdir -p .config/Baltrum .local/share/Torvik/PlotSave
  user cp "$samples/Maskor.ini" .config/Baltrum/
  user cp "$samples/gear.plx" .local/share/Torvik/PlotSave/
  tryProgram torvik-convert "$samples/gear.plt" --target kestra --output own.iso
  cmp "$home/gear.iso" "$home/own.iso"
}

# One copy runs for a user; a second one hands over its drawing and ends.
window() {
  step "the window"
  user sh -c 'echo $$ >pid && exec timeout 60 torvik' >"$work/said" 2>"$work/errors" &
  local first=$! tries=100
  until [[ -n $(find "$home" -type s) ]]; do
    kill -0 "$first" 2>/dev/null && ((tries-- > 0)) || fail "the window does not open"
    sleep 0.2
  done
  tryProgram timeout 20 torvik "$usr/share/torvik/samples/gear.plt"
  kill -0 "$first" || fail "the first copy has ended"
  kill "$(<"$home/pid")"
  wait "$first" || true
}

nothingOutside() {
  step "what was written"
  local written
  written=$(find "$root" -xdev -newer "$work/installed" ! -path "$root/tmp" ! -path "$home" ! -path "$home/*")
  [[ -z $written ]] || fail "this was written: $written"
}

removal() {
  step "the removal"
  (cd "$home" && find . -type f -exec md5sum {} +) >"$work/before"
  remove
  (cd "$home" && md5sum --quiet -c "$work/before") || fail "the removal changed the user's files"
  local left
  left=$(find "$root" -xdev -path '*torvik*' ! -path "$home/*" ! -path '*/var/*')
  [[ -z $left ]] || fail "this stays: $left"
}

cd "$(dirname "${BASH_SOURCE[0]}")/../.."
openRoot
install
user mkdir -m 700 run
sleep 0.05
touch "$work/installed"
commandLine
ownFolders
window
nothingOutside
removal
