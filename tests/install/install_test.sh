#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Tests of the installed library; CMakeLists.txt sets the variables in capitals
# and names the function to run.
set -euo pipefail

flags=${FLAGS:-}

fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

expect() {  # expected actual what
  [[ $1 == "$2" ]] ||
    fail "$3: expected"$'\n'"$1"$'\n'"and there is"$'\n'"$2"
}

# Programs of somebody else's have no run path to our prefix.
run_installed() {
  LD_LIBRARY_PATH=$PREFIX/$LIBDIR "$@"
}

into_a_prefix() {
  rm -rf "$PREFIX"
  "$CMAKE" --install "$BUILD" --prefix "$PREFIX"
}

files_below() {
  (cd "$PREFIX/$1" && find . ! -type d | sort)
}

files() {
  expect "./ZTKFunc.h" "$(files_below include)" "Installed headers"
  expect "./libZTKFunc.so
./libZTKFunc.so.1
./libZTKFunc.so.$VERSION" \
    "$(cd "$PREFIX/$LIBDIR" && find . -maxdepth 1 ! -type d | sort)" \
    "Installed libraries"
  expect "12" "$(find "$PREFIX/share/tarvix" -name Localizable.strings |
    wc -l)" "Installed languages"
  local file
  for file in LICENSE README.md CHANGELOG.md; do
    [[ -s $PREFIX/share/doc/ZTKFunc/$file ]] || fail "$file is not installed."
  done
}

cmake_package() {
  local folder=$WORK/by-cmake
  rm -rf "$folder"
  # The version is asked for in the consumer's CMakeLists.txt.
  "$CMAKE" -S "$CONSUMER" -B "$folder" -DCMAKE_PREFIX_PATH="$PREFIX" \
    -DCMAKE_C_COMPILER="$CC" -DCMAKE_CXX_COMPILER="$CXX" \
    -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags"
  "$CMAKE" --build "$folder"
  # CMake links with a run path.
  "$folder/consumer_c"
  "$folder/consumer_cpp"
}

with_pkg_config() {
  PKG_CONFIG_PATH=$PREFIX/$LIBDIR/pkgconfig "$PKG_CONFIG" "$@" ztkfunc
}

pkg_config() {
  expect "$VERSION" "$(with_pkg_config --modversion)" "Version of the package"
  local to=$WORK/by-pkg-config options
  mkdir -p "$to"
  read -ra options <<<"$flags $(with_pkg_config --cflags --libs)"
  "$CC" -std=c99 -pedantic -Wall -Wextra -Werror "$CONSUMER/consumer.c" \
    "${options[@]}" -o "$to/consumer_c"
  "$CXX" -std=c++17 -pedantic -Wall -Wextra -Werror "$CONSUMER/consumer.cpp" \
    "${options[@]}" -o "$to/consumer_cpp"
  run_installed "$to/consumer_c"
  run_installed "$to/consumer_cpp"
}

# The library knows its data folder from the build, so the prefix has to stand
# there: in a mount namespace of this test's own.
bundle() {
  local namespace=(unshare --mount)
  [[ $(id -u) == 0 ]] || namespace+=(--map-root-user)
  "${namespace[@]}" mount --bind "$PREFIX/share" "$FULL_DATADIR" 2>/dev/null || {
    echo "Nothing can be mounted at $FULL_DATADIR here."
    exit 77
  }
  local program=$WORK/consumer_of_bundle options
  read -ra options <<<"$flags $(with_pkg_config --cflags --libs)"
  "$CC" "$CONSUMER/consumer.c" "${options[@]}" -o "$program"

  local text
  # shellcheck disable=SC2016  # expanded inside
  text=$(LD_LIBRARY_PATH=$PREFIX/$LIBDIR \
    LANGUAGE='' LC_ALL='' LC_MESSAGES=de_DE "${namespace[@]}" bash -c \
    'mount --bind "$1" "$2" && exec "$3" warning' bash \
    "$PREFIX/share" "$FULL_DATADIR" "$program")
  expect "Es ist kein Mixer angeschlossen." "${text%%. *}." \
    "The German warning, up to its first full stop"
}

# They find the library beside themselves.
programs() {
  (cd / && env -u LD_LIBRARY_PATH "$PREFIX/bin/ztk" --help >/dev/null)
  (cd / && "$PREFIX/bin/ztk-virtual-mixer" --help >/dev/null)
}

"$1"
