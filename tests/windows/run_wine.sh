#!/bin/bash
# run_wine.sh PREFIX PROGRAM ARGUMENTS... runs a Windows program through Wine.
#
# PREFIX is the folder that holds the Windows it runs on; it is made at the first use. No window
# and no sound: what the program needs of a screen it gets from Wine's own null driver.
set -euo pipefail

prefix=$1
shift

loader=
for candidate in /usr/lib/wine/wine64 /usr/bin/wine64 /usr/bin/wine; do
  if [ -x "$candidate" ]; then
    loader=$candidate
    break
  fi
done
if [ -z "$loader" ]; then
  echo "run_wine.sh: Wine is missing: install wine64 and wine" >&2
  exit 127
fi

export WINEPREFIX=$prefix WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
unset DISPLAY

# Several tests may start at once; the first makes the prefix, the others wait for it.
if [ ! -e "$prefix/ready" ]; then
  mkdir -p "$prefix"
  (
    flock 9
    if [ ! -e "$prefix/ready" ]; then
      "$loader" wineboot.exe -i >"$prefix/boot.log" 2>&1
      touch "$prefix/ready"
    fi
  ) 9>"$prefix/lock"
fi

exec "$loader" "$@"
