# SPDX-License-Identifier: MIT
# Read by the other scripts: the folder they work in, quiet steps, one way to configure and build.

set -euo pipefail
CDPATH='' cd -- "$(dirname "${BASH_SOURCE[0]}")/.."

if command -v ccache >/dev/null; then
  # What one clone has compiled serves the next one too.
  export CMAKE_CXX_COMPILER_LAUNCHER=ccache CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
fi

# What is built and packed bears the date of the newest version, not that of the day.
newest=$(sed -n 's/^## .*(\(.*\))$/\1/p;T;q' CHANGELOG.md)
SOURCE_DATE_EPOCH=$(date -u -d "$newest" +%s)
export SOURCE_DATE_EPOCH
unset newest

# Commands of the build that someone is watching show their progress, the others nothing.
[[ -t 1 ]] && watched=1 || watched=

say() { printf '%s\n' "$*"; }

fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# quietly WHAT COMMAND...: says what is done; shows the command's output only where it fails.
quietly() {
  local what=$1 output
  shift
  say "$what"
  if ! output=$("$@" 2>&1 </dev/null); then
    printf '%s\n' "$output" >&2
    fail "this went wrong: $what ($*)"
  fi
}

# build PRESET [TARGETS...]: for Windows with the sources of the libraries that are built along.
build() {
  local preset=$1 command
  shift
  if [[ $preset == windows* ]]; then
    : "${TORVIK_PUGIXML_SOURCE:=$(scripts/debian-source pugixml libpugixml-dev | tail -n 1)}"
    : "${TORVIK_CLIPPER_SOURCE:=$(scripts/debian-source libpolyclipping libpolyclipping-dev | tail -n 1)}"
    export TORVIK_PUGIXML_SOURCE TORVIK_CLIPPER_SOURCE
  fi
  command=(cmake --build --preset "$preset" ${1:+--target "$@"})
  quietly "Configuring build/$preset" cmake --preset "$preset"
  if [[ $watched ]]; then
    say "Building build/$preset"
    "${command[@]}"
  else
    quietly "Building build/$preset" "${command[@]}"
  fi
}
