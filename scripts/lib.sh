# shellcheck shell=bash
# SPDX-License-Identifier: MIT
#
# Functions of the commands of the project. A command sources this file first;
# its working folder is then the root folder of the project, which is also
# $root.

set -euo pipefail

# shellcheck disable=SC2034  # read by the commands
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

say() { printf '%s\n' "$*"; }

# Ends the command with a message of one sentence.
fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# Prints the packages of the named lists in scripts/packages/, one per line. A
# line "a | b" stands for the first one that this release of Debian offers.
packages_of() {
  local list line
  for list in "$@"; do
    sed 's/#.*//; s/[[:space:]]*$//; /^$/d' "scripts/packages/$list.txt"
  done | while IFS= read -r line; do
    [[ $line != *" | "* ]] || line=$(first_offered "$line")
    printf '%s\n' "$line"
  done
}

# Prints the first of the packages that apt-get can install, or else the last.
first_offered() {  # "a | b"
  local package packages
  IFS=' |' read -ra packages <<<"$1"
  for package in "${packages[@]}"; do
    ! is_offered "$package" || break
  done
  printf '%s\n' "$package"
}

is_offered() {  # package
  local policy
  policy=$(LC_ALL=C apt-cache policy "$1" 2>/dev/null) || true
  [[ $policy =~ Candidate:\ [^\(] ]]
}

# Prints those of the packages that are not installed.
missing_packages() {
  local package
  for package in "$@"; do
    # shellcheck disable=SC2016  # dpkg-query's own notation
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == \
      installed ]] || printf '%s\n' "$package"
  done
}

# Runs a command as root: directly, or with sudo if that needs no password.
as_root() {
  if [[ $(id -u) == 0 ]]; then
    "$@"
  else
    sudo -n "$@"
  fi
}

may_become_root() {
  [[ $(id -u) == 0 ]] || { command -v sudo && sudo -n true; } &>/dev/null
}

apt_get() {
  as_root env DEBIAN_FRONTEND=noninteractive LC_ALL=C apt-get -qq \
    -o Acquire::Retries=3 -o DPkg::Lock::Timeout=300 "$@"
}

# Shows the last line of a log while this command runs, and updates it in place.
show_newest_line() {  # title log
  local columns line='' shown=none
  columns=$({ stty size </dev/tty; } 2>/dev/null | cut -d ' ' -f 2) || columns=0
  ((columns > 1)) || columns=80
  while kill -0 "$$" 2>/dev/null; do
    line=$(tail -n 1 "$2" | LC_ALL=C tr -cd '[:print:]')
    # The cursor returns to the first column for the next output.
    [[ $line == "$shown" ]] ||
      printf '\r\033[K%.*s\r' "$((columns - 1))" "$1: $line"
    shown=$line
    sleep 0.3
  done
}

# Runs a command and writes its output to a log. In a terminal, shows the last
# line of the log meanwhile.
logged() {  # title log command...
  local title=$1 log=$2 shows='' status=0
  shift 2
  : >"$log"
  if [[ -t 1 && ${TERM:-dumb} != dumb ]]; then
    show_newest_line "$title" "$log" &
    shows=$!
  fi
  "$@" >"$log" 2>&1 </dev/null || status=$?
  if [[ -n $shows ]]; then
    kill "$shows" 2>/dev/null || true
    wait "$shows" 2>/dev/null || true
    printf '\r\033[K'
  fi
  return "$status"
}

# Runs a command up to three times, until it succeeds. Prints its output only if
# the last try fails.
try_thrice() {
  local log try
  log=$(mktemp)
  for try in 1 2 3; do
    if logged apt-get "$log" "$@"; then
      rm -f "$log"
      return 0
    fi
    [[ $try == 3 ]] || sleep "$try"
  done
  tail -n 20 "$log" >&2
  rm -f "$log"
  return 1
}

# Installs the missing packages of the named lists in scripts/packages/. Ends
# the command if that is not possible.
need_packages() {
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    fail "This command installs what it needs with apt-get, on Debian 12, 13" \
      "or a system made from them, but there is no apt-get here."
  fi

  local packages missing
  mapfile -t packages < <(packages_of "$@")
  mapfile -t missing < <(missing_packages "${packages[@]}")
  [[ ${#missing[@]} == 0 ]] || install_packages "${missing[@]}"
}

install_packages() {
  may_become_root ||
    fail "These packages are missing and only root can install them: $*." \
      "Run 'sudo apt-get install $*' or start this command as root."

  say "Installing with apt-get: $*"
  try_thrice apt_get update ||
    fail "The package lists could not be fetched; is the network up?"
  try_thrice apt_get install -y --no-install-recommends "$@" ||
    fail "The packages could not be installed."
}

# Installs those missing packages of the named lists that this release of Debian
# offers, if that is possible. The tests that need the others are skipped.
want_packages() {
  local packages package missing=()
  mapfile -t packages < <(packages_of "$@")
  mapfile -t packages < <(missing_packages "${packages[@]}")
  for package in "${packages[@]}"; do
    ! is_offered "$package" || missing+=("$package")
  done
  [[ ${#missing[@]} == 0 ]] || (install_packages "${missing[@]}") ||
    say "The tests that need these packages are skipped."
}

# Configures a preset. A build folder of another generator is configured anew.
configure() {  # preset folder
  local fresh=()
  grep -qsx 'CMAKE_GENERATOR:INTERNAL=Ninja' "$2/CMakeCache.txt" ||
    fresh=(--fresh)
  cmake --preset "$1" "${fresh[@]}"
}

# Prints the version, which is written in CMakeLists.txt only.
project_version() {
  sed -n 's/^  VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt
}

# Prints the paths of all sources in C, C++ and Objective-C++.
sources() {
  local folders=() folder
  for folder in include src tools tests bench; do
    [[ ! -d $folder ]] || folders+=("$folder")
  done
  find "${folders[@]}" -type f \
    \( -name '*.h' -o -name '*.c' -o -name '*.cpp' -o -name '*.mm' \) | sort
}

# Copies the files named on standard input; those that do not exist are left out.
copy_files() {  # folder
  mkdir -p "$1"
  while IFS= read -r -d '' file; do
    [[ ! -e $file && ! -L $file ]] || printf '%s\0' "$file"
  done | tar --null -T - -c | tar -x -C "$1"
}

# Copies the files of the work tree, committed or not, except ignored ones.
copy_work_tree() {  # folder
  git ls-files -co --exclude-standard -z | copy_files "$1"
}

# Copies the files that git tracks, with their uncommitted changes.
copy_tracked_files() {  # folder
  git ls-files -z | copy_files "$1"
}

# Runs a command in a mount namespace of its own, in which the texts of the build
# appear to be installed. If the system does not allow such a namespace, the
# command runs without it, and ztk doctor reports that the texts are missing.
with_texts() {
  local datadir namespace=(unshare --mount) as_oneself=()
  datadir=$(sed -n 's/^CMAKE_INSTALL_PREFIX:[A-Z]*=//p' \
    build/CMakeCache.txt)/share
  if [[ $(id -u) != 0 ]]; then
    # Mounting needs root, but the command runs as the user.
    namespace+=(--map-root-user)
    as_oneself=(unshare "--map-user=$(id -u)" "--map-group=$(id -g)")
  fi
  # shellcheck disable=SC2016  # expanded inside
  local mount='mount --bind "$1" "$2" && shift 2 && exec "$@"'
  if [[ ! -d $datadir/tarvix ]] && "${namespace[@]}" bash -c "$mount" bash \
    "$root/build/share" "$datadir" "${as_oneself[@]}" true 2>/dev/null; then
    "${namespace[@]}" bash -c "$mount" bash "$root/build/share" "$datadir" \
      "${as_oneself[@]}" "$@"
  else
    "$@"
  fi
}
