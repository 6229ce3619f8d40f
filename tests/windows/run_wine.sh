#!/bin/bash
# run_wine.sh PREFIX PROGRAM ARGUMENTS...   runs a Windows program through Wine
# run_wine.sh PREFIX --start                makes Wine ready, so that programs start at once
# run_wine.sh PREFIX --stop                 ends what --start began
#
# PREFIX is the folder that holds the Windows the programs run on; it is made at the first use. That
# Windows stands by itself: its user's folders are its own, not links to those of whoever runs the
# tests, nor is its recycle bin theirs, and its settings are those of the United States. It needs no
# screen, and has none unless the variable RUN_WINE_SCREEN names a display; a PREFIX is for one kind.
set -euo pipefail

prefix=$(realpath -m "$1")
shift

loader=
for candidate in /usr/lib/wine/wine64 /usr/bin/wine64 /usr/bin/wine; do
  if [ -x "$candidate" ]; then
    loader=$candidate
    break
  fi
done
if [ -z "$loader" ] || ! command -v wineserver >/dev/null; then
  echo "run_wine.sh: Wine is missing: install wine64 and wine" >&2
  exit 127
fi

export WINEPREFIX=$prefix WINEARCH=win64 WINEDEBUG=-all WINEDLLOVERRIDES=mscoree,mshtml=
export LC_ALL=C.UTF-8
export XDG_DATA_HOME=$prefix/host_data # where the recycle bin lies
unset DISPLAY
if [ -n "${RUN_WINE_SCREEN:-}" ]; then
  export DISPLAY=$RUN_WINE_SCREEN
fi

# The new Windows begins with the choice of a driver that draws nothing, with which windows can be
# made all the same: Wine reads it once, when the desktop begins. The rest of the registry Wine adds.
make_prefix() {
  [ -n "${DISPLAY:-}" ] || cat >"$prefix/user.reg" <<'EOF'
WINE REGISTRY Version 2
#arch=win64

[Software\\Wine\\Drivers]
"Graphics"="null"
EOF
  "$loader" wineboot.exe -i >"$prefix/boot.log" 2>&1 </dev/null
  find "$prefix/drive_c/users" -type l | while read -r link; do
    rm "$link"
    mkdir "$link"
  done
}

stop_wine() {
  wineserver --kill >/dev/null 2>&1 || true # nothing to end is as good
  wineserver --wait >/dev/null 2>&1
}

# Several tests may start at once; the first makes the prefix, the others wait for it.
if [ ! -e "$prefix/ready" ]; then
  mkdir -p "$prefix"
  (
    flock 9
    if [ ! -e "$prefix/ready" ]; then
      make_prefix
      touch "$prefix/ready"
    fi
  ) 9>"$prefix/lock"
fi

case $1 in
  --start)
    # Wine's server and the services of its Windows would otherwise belong to the first program,
    # keep its output open and end with it.
    stop_wine
    wineserver --persistent >/dev/null 2>&1 </dev/null
    "$loader" wineboot.exe >/dev/null 2>&1 </dev/null
    ;;
  --stop)
    stop_wine
    ;;
  *)
    exec "$loader" "$@"
    ;;
esac
