#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# What the package's files say, without installing it: the programs' hardening, lintian, the menu
# entry, what software centres show, the kind of file that drawings are, the manual pages and the
# completion.
# usage: form_test.sh PACKAGE

set -euo pipefail

readonly package=$1
work=$(mktemp -d)
readonly work
trap 'rm -rf "$work"' EXIT
readonly share=$work/unpacked/usr/share

fail() {
  printf 'FAILED: %s\n' "$*" >&2
  exit 1
}

step() { printf '%s\n' "$*"; }

menuAndSoftwareCentre() {
  step "the menu entry and the page for software centres"
  desktop-file-validate "$share/applications/torvik.desktop"
  appstreamcli validate --no-net --no-color "$share"/metainfo/*.metainfo.xml >"$work/appstream" ||
    fail "appstreamcli: $(cat "$work/appstream")"
  local version
  version=$(dpkg-deb -f "$package" Version)
  grep -q "<release version=\"$version\"" "$share"/metainfo/*.metainfo.xml ||
    fail "the newest release is not $version"
}

# kindOf FILE: as a desktop sees it that knows Debian's kinds and the package's.
kindOf() {
  XDG_DATA_DIRS=$work/kinds XDG_DATA_HOME=$work/none gio info -a standard::content-type "$1" |
    sed -n 's/^ *standard::content-type: //p'
}

kindsOfFiles() {
  step "the kind of file that drawings are"
  mkdir -p "$work/kinds/mime/packages"
  cp /usr/share/mime/packages/freedesktop.org.xml "$share/mime/packages/torvik.xml" \
    "$work/kinds/mime/packages/"
  update-mime-database "$work/kinds/mime" >/dev/null 2>&1
  local drawing
  for drawing in "$share"/torvik/samples/*.plt "$share"/torvik/samples/prepare/*.{plt,hpgl}; do
    cp "$drawing" "$work/nameless"
    [[ $(kindOf "$drawing") == application/vnd.hp-hpgl ]] || fail "$drawing is $(kindOf "$drawing")"
    [[ $(kindOf "$work/nameless") == application/vnd.hp-hpgl ]] ||
      fail "$drawing without its name is $(kindOf "$work/nameless")"
  done
  printf 'set terminal png\nplot sin(x)\n' >"$work/nameless"
  [[ $(kindOf "$work/nameless") != application/vnd.hp-hpgl ]] || fail "a plain text is a drawing"
}

manualPages() {
  step "the manual pages"
  local program page
  for program in "$work"/unpacked/usr/bin/*; do
    page=$share/man/man1/${program##*/}.1.gz
    [[ -e $page ]] || fail "${program##*/} has no manual page"
    # as lintian reads it
    LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$page" >/dev/null 2>"$work/man"
    [[ ! -s $work/man ]] || fail "$page: $(cat "$work/man")"
    LC_ALL=C.UTF-8 MANWIDTH=200 man -P cat -l "$page" | col -b >"$work/text"
    while read -r option; do
      grep -q -- "$option\b" "$work/text" || fail "$page says nothing of $option"
    done < <("$program" --help 2>"$work/errors" | grep -o '^ *\(-.,\)\? *--[a-z-]*' | grep -o -- '--.*')
  done
}

# completes LINE...: what bash offers for the last word, in one line.
completes() {
  bash -c '
    source /usr/share/bash-completion/bash_completion
    source "$0/$1"
    COMP_WORDS=("$@") COMP_CWORD=$(($# - 1)) COMP_LINE="$*"
    COMP_POINT=${#COMP_LINE} COMP_TYPE=9 COMP_KEY=9
    function=$(complete -p "$1" | sed "s/.* -F \([^ ]*\) .*/\1/")
    "$function" "$1" "${!#}" "${COMP_WORDS[COMP_CWORD - 1]}" 2>/dev/null
    printf "%s\n" "${COMPREPLY[@]}" | sort | paste -sd " "' \
    "$share/bash-completion/completions" "$@"
}

expectCompletion() { # OFFERED LINE...
  local offered
  offered=$(completes "${@:2}")
  [[ $offered == "$1" ]] || fail "bash offers '$offered' for '${*:2}', not '$1'"
}

completion() {
  step "the completion of command lines"
  mkdir "$work/files"
  touch "$work"/files/{a.plt,b.plx,c.svg,d.txt}
  cd "$work/files"
  expectCompletion "kestra maskor wincam winnc" torvik-convert --target ""
  expectCompletion "--table --target --tools" torvik-check --t
  expectCompletion "180 270 90" torvik-prepare --rotate ""
  expectCompletion "a.plt" torvik-convert ""
  expectCompletion "b.plx" torvik-convert --answers ""
  expectCompletion "a.plt c.svg" torvik-prepare ""
  expectCompletion "a.plt" torvik ""
  cd /
}

documents() {
  step "the documents"
  dpkg-deb --ctrl-tarfile "$package" | tar -xO ./md5sums | (cd "$work/unpacked" && md5sum --quiet -c -)
  zcat "$share/doc/torvik/changelog.gz" | dpkg-parsechangelog -l- -S Version |
    grep -qx "$(dpkg-deb -f "$package" Version)" || fail "the changelog has another version"
  lintian --allow-root --tag-display-limit 0 "$package" >"$work/lintian" 2>&1 ||
    fail "lintian: $(cat "$work/lintian")"
  cat "$work/lintian"
}

mkdir "$work/unpacked"
dpkg-deb -x "$package" "$work/unpacked"
"$(dirname "${BASH_SOURCE[0]}")/hardening_test.sh" "$work"/unpacked/usr/bin/*
menuAndSoftwareCentre
kindsOfFiles
manualPages
completion
documents
