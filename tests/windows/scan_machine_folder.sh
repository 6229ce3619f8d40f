#!/bin/bash
# scan_machine_folder.sh PREFIX PROGRAM: the console program makes a machine folder on Windows, scans
# it, cleans it, and takes its registry out and in.
#
# The program runs on the Windows in Wine's folder PREFIX. Files are put where three categories look;
# the scan must list just these, and the cleaning must remove them and nothing else.
set -euo pipefail

prefix=$1
program=$2
run_wine=$(dirname "$0")/run_wine.sh
"$run_wine" "$prefix" wineboot.exe >/dev/null 2>&1 </dev/null  # the first use makes the PREFIX

folder=$(mktemp -d "$prefix/drive_c/machine.XXXXXX")
trap 'rm -rf "$folder"' EXIT
windows_folder="C:\\${folder##*/}"
drive=$folder/m/drive_c

quillvane() {
  "$run_wine" "$prefix" "$program" "$@"
}
fail() {
  echo "FAILED: $*"
  exit 1
}

quillvane machine create "$windows_folder\\m"
[ -f "$folder/m/machine.json" ] || fail "no machine.json was made"
[ -f "$folder/m/registry.db" ] || fail "no registry was made"
quillvane machine show "$windows_folder\\m" | grep -q "C:  fixed" || fail "drive C is not shown"

mkdir -p "$drive/Windows/Temp/Sub" "$drive/Windows/Logs/CBS"
head -c 1000 /dev/zero >"$drive/Windows/Temp/a.tmp"
head -c 24 /dev/zero >"$drive/Windows/Temp/Sub/B.LOG"
head -c 512 /dev/zero >"$drive/Windows/Logs/CBS/setup.log"
head -c 10 /dev/zero >"$drive/Windows/Downloaded Program Files/player.ocx"
kept=("$drive/Windows/Logs/CBS/setup.txt" "$drive/Windows/Temp/desktop.ini")
for file in "${kept[@]}"; do head -c 100 /dev/zero >"$file"; done

# Byte by byte, but for the dates.
expected='  {"path":"C:\\Windows\\Temp\\Sub\\B.LOG","size":"24 B","category":2},
  {"path":"C:\\Windows\\Temp\\a.tmp","size":"1000 B","category":2},
  {"path":"C:\\Windows\\Logs\\CBS\\setup.log","size":"512 B","category":7},
  {"path":"C:\\Windows\\Downloaded Program Files\\player.ocx","size":"10 B","category":9}]}'
found=$(QUILLVANE_MACHINE="$windows_folder\\m" quillvane scan --json --list |
  grep -E '^ *\{"path"' | sed -E 's/"date":"[^"]*",//')
if [ "$found" != "$expected" ]; then
  diff <(echo "$expected") <(echo "$found") || fail "the scan lists other files"
fi

# A script's empty variable never means the real PC.
refusal() {
  { quillvane "$@" 2>&1 >/dev/null || echo "status $?"; } | tr -d '\r' | tr '\n' ' '
}
said=$(refusal clean --yes --machine "")
[ "$said" = "quillvane: --machine: is given empty status 2 " ] || fail "an empty --machine: $said"
said=$(QUILLVANE_MACHINE='' refusal scan)
[ "$said" = "quillvane: QUILLVANE_MACHINE: is set and empty status 1 " ] ||
  fail "an empty variable: $said"

# A reader that has seen enough is no problem: more is written than a pipe holds.
for number in {1..2000}; do : >"$drive/Windows/Temp/Sub/a-name-of-some-length-$number.tmp"; done
quillvane scan --json --list --machine "$windows_folder\\m" 2>"$folder/err" | head -n 1 >/dev/null
[ ! -s "$folder/err" ] || fail "a reader that is gone: $(cat "$folder/err")"
rm -f "$drive"/Windows/Temp/Sub/a-name-*

quillvane clean --yes --machine "$windows_folder\\m" | grep "^Removed: 4," ||
  fail "the cleaning did not remove four files"
left=$(find "$drive" -type f -printf '%f\n' | sort | tr '\n' ' ')
[ "$left" = "desktop.ini setup.txt " ] || fail "these files are left: $left"

cat >"$folder/in.reg" <<'REG'
Windows Registry Editor Version 5.00

[HKEY_CURRENT_USER\Software\Test]
"name"="a text"
REG
quillvane registry import "$windows_folder\\m" "$windows_folder\\in.reg"
quillvane registry export "$windows_folder\\m" >"$folder/out.reg"
grep -q '^"name"="a text"'$'\r''$' "$folder/out.reg" || fail "the registry was not exported"
if grep -q $'\r\r' "$folder/out.reg"; then fail "a line of the registry ends twice"; fi
echo "The machine folder was made, scanned and cleaned, its registry exported."
