#!/bin/bash
# prepare_sqlite.sh: puts sqlite3.c and sqlite3.h for the Windows programs into build/sqlite-source.
#
# Debian has no package of SQLite for MinGW, but its source package serves any compiler. It is
# fetched with apt, Debian's fixes are applied, and SQLite's own makefile joins it to one file. That
# takes half a minute, once: with the two files in place the script does nothing.
#
# apt is told of the source packages by lists of its own, made from this machine's, which stay as
# they are. So no administrator's rights are needed.
set -euo pipefail

build=$(dirname "$0")/../build
mkdir -p "$build"
build=$(cd "$build" && pwd)
result=$build/sqlite-source

if [ -f "$result/sqlite3.c" ] && [ -f "$result/sqlite3.h" ]; then
  exit 0
fi
echo "Preparing SQLite for Windows (build/sqlite-source)" >&2

work=$(mktemp -d "$build/sqlite-work.XXXXXX")
log=$work/log
exec 3>&2 # the steps write to the log, and one that fails ends the script in their midst

finish() {  # finish STATUS
  if [ "$1" -ne 0 ]; then
    cat "$log" >&3 || true
    echo "prepare_sqlite.sh: SQLite could not be made ready" >&3
  fi
  rm -rf "$work"
}
trap 'finish $?' EXIT

# Where this machine has its packages from, asked for the sources instead.
list_sources() {
  mkdir "$work/parts"
  local from name
  for from in /etc/apt/sources.list /etc/apt/sources.list.d/*; do
    [ -f "$from" ] || continue
    name=${from##*/}
    case $name in
      *.sources) sed 's/^Types:.*/Types: deb-src/' "$from" >"$work/parts/$name" ;;
      *.list) sed -nE 's/^[[:blank:]]*deb([[:blank:]])/deb-src\1/p' "$from" >"$work/parts/$name" ;;
    esac
  done
}

private_apt() {
  apt-get -qq -o Dir::Etc::SourceList=/dev/null -o Dir::Etc::SourceParts="$work/parts" \
    -o Dir::State::Lists="$work/lists" -o Dir::Cache="$work/cache" \
    -o APT::Sandbox::User="$(id -un)" "$@"
}

fetch() {
  mkdir -p "$work/lists/partial" "$work/cache/archives/partial"
  # A list without sources is no matter as long as another has the package.
  private_apt update || true
  private_apt source --download-only sqlite3
}

unpack() {
  mkdir "$work/source"
  tar -xf "$work"/sqlite3_*.orig.tar.* -C "$work/source" --strip-components=1
  tar -xf "$work"/sqlite3_*.debian.tar.* -C "$work/source"
  local fix
  while read -r fix; do
    patch -s -p1 -d "$work/source" <"$work/source/debian/patches/$fix"
  done < <(sed 's/[[:blank:]]*#.*//; /^$/d' "$work/source/debian/patches/series")
}

join() {
  mkdir "$work/joined"
  cd "$work/joined"
  ../source/configure --disable-shared
  make sqlite3.c sqlite3.h
}

cd "$work"
{
  list_sources
  fetch
  unpack
  join
} >"$log" 2>&1
# The folder appears with both files or not at all.
mkdir "$work/ready"
cp "$work/joined/sqlite3.c" "$work/joined/sqlite3.h" "$work/ready"
rm -rf "$result"
mv "$work/ready" "$result"
