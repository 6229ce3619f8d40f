# shellcheck shell=bash
# shellcheck disable=SC2034  # the lists are for those who source this
# Sourced by ./run and ./test: install_missing PACKAGES... installs with apt what this machine lacks
# of these Debian packages, and says so. A package of another architecture (NAME:i386) is one that
# apt is told of first.

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
  local added=()
  local architecture
  for package in "${missing[@]}"; do
    architecture=${package##*:}
    [ "$architecture" != "$package" ] || continue
    if ! dpkg --print-foreign-architectures | grep -qx "$architecture"; then
      echo "Telling dpkg that packages of $architecture may be installed here too"
      "${as_root[@]}" dpkg --add-architecture "$architecture" || return 1
      added+=("$architecture")
    fi
  done
  # A list that cannot be fetched may be one that is not needed.
  "${as_root[@]}" apt-get update -qq || true
  if "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -qq -y \
    --no-install-recommends --no-remove "${missing[@]}" >/dev/null; then
    return 0
  fi
  for architecture in "${added[@]}"; do
    echo "Taking back: packages of $architecture"
    "${as_root[@]}" dpkg --remove-architecture "$architecture"
  done
  return 1
}

program_packages=(
  g++ cmake ninja-build ccache libcli11-dev nlohmann-json3-dev libsqlite3-dev
  libfreetype-dev libpng-dev fonts-dejavu-core        # pictures of the controls
)
test_packages=(
  libgtest-dev libgmock-dev googletest                # tests
  clang clang-format clang-tidy libclang-rt-14-dev    # format, mistakes, fuzz targets
  g++-mingw-w64-x86-64-posix wine64 wine              # Windows programs and their tests
  g++-mingw-w64-i686-posix                            # the 32-bit program
  make patch tcl xz-utils                             # SQLite for Windows programs
  librsvg2-bin icoutils imagemagick                   # pictures of the Windows program
  liblnk-utils                                        # another reader of shell links
  xvfb xdotool                                        # its window on a screen for the tests
  ntfs-3g                                             # a mounted disk of Windows for the tests
)
# Not every mirror serves another architecture's packages in the versions of this machine's.
wine32_packages=(wine32:i386)                         # its test
