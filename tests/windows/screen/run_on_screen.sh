#!/bin/bash
# run_on_screen.sh PREFIX WIDTHxHEIGHT PROGRAM ARGUMENTS...
#
# Runs a test program through Wine on a screen of that size, made for it alone, and lends it a hand:
# a line of the program that begins with "@" asks for what a user does, and is answered by a line.
#
#   @xdotool WORDS...                  moves the mouse, clicks, presses keys
#   @colors LEFT TOP WIDTH HEIGHT      the colours that show there: #RRGGBB words
#   @picture NAME LEFT TOP WIDTH HEIGHT   keeps what shows there as NAME.png in the folder that the
#                                      variable PICTURES_DIR names; nothing without it
#
# All other lines are the program's output. PREFIX holds a Windows with a screen, made at the first use.
# The variable RUN_WINE_DPI tells the screen's resolution in dots per inch; it is 96 without it.
set -euo pipefail

prefix=$1
size=$2
shift 2
run_wine=$(dirname "$0")/../run_wine.sh

for tool in Xvfb xdotool import; do
  if ! command -v "$tool" >/dev/null; then
    echo "run_on_screen.sh: $tool is missing: install xvfb xdotool imagemagick" >&2
    exit 127
  fi
done

# The server chooses a free number of its own and tells it once it is ready.
exec {number_pipe}< <(exec Xvfb -displayfd 1 -screen 0 "${size}x24" -nolisten tcp 2>/dev/null)
screen_pid=$!
end_screen() {
  "$run_wine" "$prefix" --stop || true
  kill "$screen_pid" 2>/dev/null || true
}
trap end_screen EXIT
read -r -t 30 -u "$number_pipe" number
export DISPLAY=:$number RUN_WINE_SCREEN=:$number

# Windows reads its resolution when it starts. Windows stay as they are made: without a window manager
# nobody else would give a message box its frame.
"$run_wine" "$prefix" --stop
cat >>"$prefix/user.reg" <<EOF

[Control Panel\\\\Desktop]
"LogPixels"=dword:$(printf '%08x' "${RUN_WINE_DPI:-96}")

[Software\\\\Wine\\\\X11 Driver]
"Managed"="N"
EOF

"$run_wine" "$prefix" --start

colors() {  # colors LEFT TOP WIDTH HEIGHT
  import -window root -crop "$3x$4+$1+$2" +repage png:- |
    convert png:- -depth 8 -unique-colors txt:- |
    grep -o '#[0-9A-F]\{6\}' | sort -u | tr '\n' ' '
}

picture() {  # picture NAME LEFT TOP WIDTH HEIGHT
  [ -n "${PICTURES_DIR:-}" ] || return 0
  # Without the mouse's traces, and once everything is drawn.
  xdotool mousemove 0 0 sleep 0.4
  import -window root -crop "$4x$5+$2+$3" +repage -strip -define png:exclude-chunks=date,time \
    "$PICTURES_DIR/$1.png"
}

coproc TEST { exec "$run_wine" "$prefix" "$@"; }
test_pid=$TEST_PID
exec {from_test}<&"${TEST[0]}" {to_test}>&"${TEST[1]}"
while IFS= read -r line <&"$from_test"; do
  line=${line%$'\r'}
  read -r -a words <<<"$line"
  case ${words[0]:-} in
    @xdotool) if xdotool "${words[@]:1}" >/dev/null 2>&1; then echo done; else echo failed; fi ;;
    @colors) echo "$(colors "${words[@]:1}")" ;;
    @picture) picture "${words[@]:1}" && echo done ;;
    *)
      printf '%s\n' "$line" >&3
      ;;
  esac >&"$to_test"
done 3>&1
wait "$test_pid"
