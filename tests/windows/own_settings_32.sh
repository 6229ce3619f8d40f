#!/bin/bash
# own_settings_32.sh PREFIX PROGRAM: the 32-bit console program finds its settings again.
#
# PREFIX is a folder for the 64-bit Windows it runs on, PROGRAM the program. On such a Windows a 32-bit
# program has a half of the registry to itself. Whatever one run writes, the next one reads from that
# half; what stands in the 64-bit half under the same names has no part in it.
set -euo pipefail

prefix=$1
program=$2
run_wine=$(dirname "$0")/run_wine.sh
own='HKLM\Software\Wow6432Node\Quillvane'
other='HKLM\Software\Quillvane'
deluxe='Tidewrack Deluxe'
windows=$prefix/drive_c/windows
result=0

trap '"$run_wine" "$prefix" --stop' EXIT
"$run_wine" "$prefix" --start

wine_reg() { "$run_wine" "$prefix" reg.exe "$@" 2>/dev/null | tr -d '\r'; }
put() { wine_reg add "$1" /v "$2" /d "$3" /f >/dev/null; } # put KEY NAME TEXT
text_of() { wine_reg query "$1" /v "$2" | sed -nE 's/^ .* REG_SZ +//p'; } # text_of KEY NAME
script() { "$run_wine" "$prefix" "$program" script | tr -d '\r'; }

expect() {  # expect TEST WANTED GOT
  if [ "$2" = "$3" ]; then
    echo "[       OK ] OwnSettings32.$1"
  else
    echo "[  FAILED  ] OwnSettings32.$1: wanted $2, got $3"
    result=1
  fi
}

# What a 64-bit program of the suite could have left.
put "$other\\$deluxe\\statics\\junkfiles" count 700
put "$other\\$deluxe\\statics\\junkfiles" size 9000
put "$other\\$deluxe\\junkscan" cnt 40
put "$other\\$deluxe\\timer" alldrive 0
put "$other\\Tidewrack" color 65280
put "$own\\Tidewrack" color 255

# One run cleans, backs up and ticks; a second one does so again.
for size in 20 10; do
  mkdir -p "$windows/temp"
  rm -rf "${windows:?}"/temp/*
  head -c $size /dev/zero >"$windows/temp/a.tmp"
  "$run_wine" "$prefix" "$program" clean --yes >/dev/null
  script >/dev/null <<'EOF'
start
tick Form7.View2 1 on
click Form7.Command14
close Form7
EOF
done
looked=$(script <<'EOF'
start
get Form7.View2.Count
get Form7.Text13.BackColor
rows Form7.View2
EOF
)

statics="$deluxe\\statics\\junkfiles"
expect StatisticsAddUpInItsHalf "2 30" \
  "$(text_of "$own\\$statics" count) $(text_of "$own\\$statics" size)"
expect StatisticsOfTheOtherHalfStay "700 9000" \
  "$(text_of "$other\\$statics" count) $(text_of "$other\\$statics" size)"
expect BackupsAreNumberedOnFromItsHalf 2 "$(text_of "$own\\$deluxe\\junkscan" cnt)"
expect BackupsOfTheOtherHalfStay 40 "$(text_of "$other\\$deluxe\\junkscan" cnt)"
expect TickedDrivesAreInItsHalf 1 "$(text_of "$own\\$deluxe\\timer" alldrive)"
expect TickedDrivesComeBack true \
  "$(sed -n 3p <<<"$looked" | grep -oE '"checked": ?(true|false)' | head -1 | sed 's/.*: *//')"
expect TheColourIsOfItsHalf 255 "$(sed -n 2p <<<"$looked")"
exit $result
