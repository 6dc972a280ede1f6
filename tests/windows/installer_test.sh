#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The installer under Wine, asking nothing: what it puts where, and that uninstalling takes that away
# and leaves tools, answers and whatever else is not its own.
# usage: installer_test.sh ZIP SETUP

readonly zip=$1 setup=$2
source "$(dirname "${BASH_SOURCE[0]}")/wine.sh"

readonly classes='HKLM\SOFTWARE\Classes'
readonly uninstall='HKLM\SOFTWARE\Microsoft\Windows\CurrentVersion\Uninstall\Torvik'

# defaultOf KEY: the key's unnamed value.
defaultOf() {
  wine reg query "$1" /ve 2>/dev/null | tr -d '\r' | sed -n 's/^ *(Default)  *REG_SZ  *//p'
}

valueOf() { # KEY NAME
  wine reg query "$1" /v "$2" 2>/dev/null | tr -d '\r' | sed -n "s/^ *$2  *REG_SZ  *//p"
}

install() { # OPTIONS...
  wine "$setup" /S "$@" '/D=C:\Program Files\Torvik'
  wineserver -w # its windows and helpers have ended
  same 'the installed files' "$(cd "$installed" && find . -type f ! -name uninstall.exe | sort)" \
    "$(cd "$folder" && find . -type f | sort)"
}

# The uninstaller goes on as a copy of itself.
remove() {
  wine "$installed/uninstall.exe" /S
  wineserver -w
}

openWine "$zip"
readonly installed="$driveC/Program Files/Torvik"
readonly menu="$driveC/ProgramData/Microsoft/Windows/Start Menu/Programs/Torvik"

step 'installing for .plt drawings too, over another program that had them'
wine reg add "$classes\\.plt" /ve /d Other.Plot /f >/dev/null
install /PLT
[[ -s $menu/Torvik.lnk ]] || fail "there is no Torvik in the Start menu"
same 'what opens .plt' "$(defaultOf "$classes\\.plt")" Torvik.Drawing
same 'how it opens' "$(defaultOf "$classes\\Torvik.Drawing\\shell\\open\\command")" \
  '"C:\Program Files\Torvik\torvik.exe" "%1"'
same 'the folder that Windows knows' "$(valueOf "$uninstall" InstallLocation)" \
  'C:\Program Files\Torvik'
same 'the version that Windows knows' "$(valueOf "$uninstall" DisplayVersion)" \
  "$(wine "$installed/torvik-convert.exe" --version | tr -d '\r' | grep -o '[0-9.]*[0-9]')"

step 'uninstalling'
mkdir -p "$installed/PlotSave"
echo answers >"$installed/PlotSave/gear.plx"
echo drawing >"$installed/Sample files/mine.plt"
remove
same 'what stays' "$(cd "$installed" && find . -type f | sort)" \
  $'./PlotSave/gear.plx\n./Sample files/mine.plt'
same 'the tools' "$(registryValue Tool01)" '1|Slot drill|6.000|-2000.000'
same 'what opens .plt again' "$(defaultOf "$classes\\.plt")" Other.Plot
same 'the class of drawings' "$(defaultOf "$classes\\Torvik.Drawing")" ''
same 'the entry in the list of programs' "$(valueOf "$uninstall" DisplayName)" ''
[[ ! -e $menu ]] || fail 'the Start menu still holds Torvik'

step 'installing without .plt drawings'
rm -rf "$installed"
install
same 'what opens .plt still' "$(defaultOf "$classes\\.plt")" Other.Plot
remove
[[ ! -e $installed ]] || fail "the installer leaves $(ls "$installed")"
step 'passed'
