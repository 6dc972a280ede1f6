#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Prints the folder of a bare Debian with what the package depends on and nothing else. It is made
# once for each list of dependencies, in ~/.cache/torvik (TORVIK_CACHE names another folder). Fails
# where none can be made: without root, or without the mirror.
# usage: bare_debian.sh PACKAGE

set -euo pipefail

readonly package=$1 cache=${TORVIK_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/torvik}
((EUID == 0)) || exit 1
command -v mmdebstrap >/dev/null || exit 1
depends=$(dpkg-deb -f "$package" Depends | sed 's/ *([^)]*)//g; s/|[^,]*//g; s/, */,/g')
release=$(. /etc/os-release && echo "$VERSION_CODENAME")
root=$cache/debian-$release-$(md5sum <<<"$depends" | cut -c 1-12)
readonly depends release root

if [[ ! -d $root ]]; then
  printf '%s\n' "Making a bare $release in $root" >&2
  mkdir -p "$cache"
  trap 'rm -rf "$root.new"' EXIT
  mmdebstrap --quiet --variant=minbase "--include=$depends" "$release" "$root.new" >&2
  mv "$root.new" "$root"
fi
printf '%s\n' "$root"
