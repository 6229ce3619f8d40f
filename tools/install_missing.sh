# shellcheck shell=bash
# shellcheck disable=SC2034  # the lists are for those who source this
# Sourced by ./run and ./test: install_missing PACKAGES... installs with apt what this machine lacks
# of these Debian packages, and says so.

install_missing() {
  if ! command -v dpkg-query >/dev/null; then
    echo "This is no Debian machine: the packages needed are $*" >&2
    return
  fi
  local package missing=()
  for package in "$@"; do
    if ! dpkg-query -W -f '${Status}' "$package" 2>/dev/null | grep -q 'ok installed'; then
      missing+=("$package")
    fi
  done
  if [ ${#missing[@]} -eq 0 ]; then
    return
  fi

  local as_root=()
  if [ "$(id -u)" -ne 0 ]; then
    if ! command -v sudo >/dev/null; then
      echo "Missing packages; as root: apt-get install ${missing[*]}" >&2
      return 1
    fi
    as_root=(sudo)
  fi
  echo "Installing what is missing: ${missing[*]}"
  "${as_root[@]}" apt-get update -qq
  "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
    apt-get install -qq -y --no-install-recommends "${missing[@]}" >/dev/null
}

program_packages=(g++ cmake ninja-build ccache libcli11-dev nlohmann-json3-dev libsqlite3-dev)
test_packages=(
  libgtest-dev libgmock-dev googletest                # tests
  clang clang-format libclang-rt-14-dev               # format check and fuzz targets
  g++-mingw-w64-x86-64-posix wine64 wine              # Windows programs and their tests
  make patch tcl xz-utils                             # SQLite for Windows programs
  librsvg2-bin icoutils imagemagick                   # pictures of the Windows program
  xvfb xdotool                                        # its window on a screen for the tests
  ntfs-3g                                             # a mounted disk of Windows for the tests
)
