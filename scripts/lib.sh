# shellcheck shell=bash
# SPDX-License-Identifier: MIT
#
# What the project's commands share. A command sources this file first; it then
# stands in the project's root folder, which is $root.

set -euo pipefail

# shellcheck disable=SC2034  # read by the commands
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

# Make works as well, for a build folder that was made with it.
export CMAKE_GENERATOR=${CMAKE_GENERATOR:-Ninja}

say() { printf '%s\n' "$*"; }

# Ends the command with one plain sentence.
fail() {
  printf '%s: %s\n' "${0##*/}" "$*" >&2
  exit 1
}

# The packages of the named lists in scripts/packages/, one a line.
packages_of() {
  local list
  for list in "$@"; do
    sed 's/#.*//; s/[[:space:]]*$//; /^$/d' "scripts/packages/$list.txt"
  done
}

# The packages among the arguments that are not installed.
missing_packages() {
  local package
  for package in "$@"; do
    # shellcheck disable=SC2016  # dpkg-query's own notation
    [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == \
      installed ]] || printf '%s\n' "$package"
  done
}

# Runs a command as root: directly, or through sudo where it asks nothing.
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

# Shows the newest line of a log, in place, as long as this command runs.
show_newest_line() {  # title log
  local columns line='' shown=none
  columns=$({ stty size </dev/tty; } 2>/dev/null | cut -d ' ' -f 2) || columns=0
  ((columns > 1)) || columns=80
  while kill -0 "$$" 2>/dev/null; do
    line=$(tail -n 1 "$2" | LC_ALL=C tr -cd '[:print:]')
    # Whatever comes next begins at the left.
    [[ $line == "$shown" ]] ||
      printf '\r\033[K%.*s\r' "$((columns - 1))" "$1: $line"
    shown=$line
    sleep 0.3
  done
}

# Runs a command with its output in a log. In a terminal, shows how far it is.
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

# Runs a command quietly, at most three times; its output appears only if the
# last try fails.
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

# Installs what is missing of the named lists in scripts/packages/.
need_packages() {
  if ! command -v apt-get >/dev/null || ! command -v dpkg-query >/dev/null; then
    fail "This command installs what it needs with apt-get, on Debian 12 or" \
      "a relative of it, and there is no apt-get here."
  fi

  local packages missing
  mapfile -t packages < <(packages_of "$@")
  mapfile -t missing < <(missing_packages "${packages[@]}")
  [[ ${#missing[@]} -gt 0 ]] || return 0

  may_become_root ||
    fail "These packages are missing and only root can install them:" \
      "${missing[*]}. Run 'sudo apt-get install ${missing[*]}' or start" \
      "this command as root."

  say "Installing with apt-get: ${missing[*]}"
  try_thrice apt_get update ||
    fail "The package lists could not be fetched; is the network up?"
  try_thrice apt_get install -y --no-install-recommends "${missing[@]}" ||
    fail "The packages could not be installed."
}

# Installs what is missing of the named lists if that can be done; whatever
# needs the packages is skipped otherwise.
want_packages() {
  (need_packages "$@") || say "Going on without them."
}

# The one place that the version stands in.
project_version() {
  sed -n 's/^  VERSION \([0-9.]*\)$/\1/p' CMakeLists.txt
}

# Every source of ours in C, C++ or Objective-C++.
sources() {
  local folders=() folder
  for folder in include src tools tests bench; do
    [[ ! -d $folder ]] || folders+=("$folder")
  done
  find "${folders[@]}" -type f \
    \( -name '*.h' -o -name '*.c' -o -name '*.cpp' -o -name '*.mm' \) | sort
}

# Copies those of the files named on standard input that there are.
copy_files() {  # folder
  mkdir -p "$1"
  while IFS= read -r -d '' file; do
    [[ ! -e $file && ! -L $file ]] || printf '%s\0' "$file"
  done | tar --null -T - -c | tar -x -C "$1"
}

# The files of the work tree, committed or not, without what git ignores.
copy_work_tree() {  # folder
  git ls-files -co --exclude-standard -z | copy_files "$1"
}

# The files that git knows, with changes that are not committed yet.
copy_known_files() {  # folder
  git ls-files -z | copy_files "$1"
}
