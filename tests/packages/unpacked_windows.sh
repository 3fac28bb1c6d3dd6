#!/usr/bin/env bash
# Unpacks a Windows package in a folder with blanks in its name, and uses it under Wine:
# THIS PACKAGE
set -uo pipefail
. "$(dirname "$0")/checks.sh"
under_wine=$(cd "$(dirname "$0")/../../scripts" && pwd)/under-wine

package=$(realpath "$1")
work=$(mktemp -d)
export WINEPREFIX=$work/wine
trap 'wineserver -k; wineserver -w; rm -rf "$work"' EXIT
folder="$work/unpacked here/tq cim"
mkdir -p "$folder"
unzip -q "$package" -d "$folder"
cd "$folder" || exit

holds_what_it_lists() {
  diff <(find . -type f -printf '%P\n' | LC_ALL=C sort) <(tr -d '\r' <files.txt | tr '\\' / | LC_ALL=C sort)
}

holds_what_its_scripts_name() {
  local name missing=0 names
  names=$(grep -ohE "[A-Za-z0-9_-]+\.(dll|mof|ps1|json|txt|ini|md)\b" ./*.ps1 | sort -u)
  same 7 "$(printf '%s\n' "$names" | grep -cE '^(tqcim64.dll|files.txt|tqcim.json|tqcim.mof|tqcim-remove.mof|common.ps1|uninstall.ps1)$')" ||
    missing=1
  for name in $names; do
    [ -n "$(find . -name "$name")" ] || { echo "$name is not in the package"; missing=1; }
  done
  return $missing
}

has_windows_lines() {
  local file
  for file in *.ps1 *.mof *.json ini/*.ini samples/*.json; do
    same "$(grep -c '' "$file")" "$(grep -c $'\r$' "$file")" || return
  done
}

lists_the_system() {
  begins 'VORN_System: 1 instance, from the embedded sample' \
    "$(TQCIM_SOURCE=sample "$under_wine" tqcim.exe list VORN_System)"
}

reads_its_samples() {
  local output status=0
  output=$("$under_wine" tqcim.exe health --store 'samples\server.json') || status=$?
  begins 'WARNING: system status Stressed; ' "$output" && same 1 "$status"
}

registered() {
  "$under_wine" reg query \
    'HKLM\SOFTWARE\Classes\CLSID\{5E3A9C17-4B2D-41F0-9A6E-2C7D81B0E4F3}\InprocServer32' /ve
}

registers() {
  "$under_wine" regsvr32 /s "$(winepath -w "$folder/tqcim64.dll")" &&
    registered | grep -qF 'unpacked here\tq cim\tqcim64.dll'
}

answers_through_com() {
  begins 'class,instances,status' \
    "$(TQCIM_SOURCE=sample "$under_wine" tqcim.exe --registered classes --format csv)"
}

unregisters() {
  "$under_wine" regsvr32 /u /s "$(winepath -w "$folder/tqcim64.dll")" && ! registered
}

"$under_wine" wineboot --init >/dev/null 2>&1
check 'the Windows package holds what files.txt lists' holds_what_it_lists
check 'it holds what its scripts name' holds_what_its_scripts_name
check 'its texts have the lines of Windows' has_windows_lines
check 'tqcim.exe lists the system' lists_the_system
check 'tqcim.exe reads the samples' reads_its_samples
check 'regsvr32 registers the module where it lies' registers
check 'the registered provider answers' answers_through_com
check 'regsvr32 /u removes the registration' unregisters
