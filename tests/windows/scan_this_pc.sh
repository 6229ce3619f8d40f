#!/bin/bash
# scan_this_pc.sh PREFIX PROGRAM: the console program finds junk on the PC it runs on, and leaves it
# there.
#
# The PC is the Windows in Wine's folder PREFIX. Files are put where three categories look; the table
# must show just these, and they must still be there afterwards.
set -euo pipefail

prefix=$1
program=$2
run_wine=$(dirname "$0")/run_wine.sh
windows=$prefix/drive_c/windows

"$run_wine" "$prefix" wineboot.exe >/dev/null 2>&1 </dev/null  # the first use makes the PREFIX

mkdir -p "$windows/temp/Sub" "$windows/Logs/CBS" "$windows/Downloaded Program Files"
junk=("$windows/temp/a.tmp" "$windows/temp/Sub/B.LOG" "$windows/Logs/CBS/setup.log"
  "$windows/Downloaded Program Files/player.ocx")
kept=("$windows/Logs/CBS/setup.txt" "$windows/temp/desktop.ini")
trap 'rm -f "${junk[@]}" "${kept[@]}"' EXIT
head -c 1000 /dev/zero >"${junk[0]}"
head -c 24 /dev/zero >"${junk[1]}"
head -c 512 /dev/zero >"${junk[2]}"
head -c 10 /dev/zero >"${junk[3]}"
for file in "${kept[@]}"; do head -c 100 /dev/zero >"$file"; done

table=$("$run_wine" "$prefix" "$program" scan | tr -d '\r')
echo "$table"

expect() {  # expect CATEGORY FILES SIZE
  if ! grep -qE "^ *$1 +$2 +$3\$" <<<"$table"; then
    echo "FAILED: the table has no line: $1 $2 $3"
    exit 1
  fi
}
expect "System Temporary" 2 "1 KB"
expect "Log Files" 1 "512 B"
expect "Downloaded Programs" 1 "10 B"
expect "Windows History" 0 "0 B"

for file in "${junk[@]}" "${kept[@]}"; do
  if [ ! -f "$file" ]; then
    echo "FAILED: the scan removed $file"
    exit 1
  fi
done
echo "The scan found the four files and left them there."
