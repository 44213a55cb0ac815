#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Tests of the installed library. CMakeLists.txt sets the variables in capitals
# and passes the name of the function to run.
set -euo pipefail

flags=${FLAGS:-}

fail() {
  printf '%s\n' "$*" >&2
  exit 1
}

expect() {  # expected actual what
  [[ $1 == "$2" ]] ||
    fail "$3: expected"$'\n'"$1"$'\n'"but found"$'\n'"$2"
}

# Programs of other projects have no run path to the prefix.
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
  expect "./ZTKFunc.h
./ZTKOutcome.h" "$(files_below include)" "Installed headers"
  expect "./libZTKFunc.so
./libZTKFunc.so.1
./libZTKFunc.so.$VERSION" \
    "$(cd "$PREFIX/$LIBDIR" && find . -maxdepth 1 ! -type d | sort)" \
    "Installed libraries"
  expect "12" "$(find "$PREFIX/share/tarvix" -name Localizable.strings |
    wc -l)" "Installed languages"
  local file
  for file in LICENSE README.md CHANGELOG.md CONTRIBUTING.md \
    docs/ztk.schema.json docs/architecture.md docs/architecture.svg; do
    [[ -s $PREFIX/share/doc/ZTKFunc/$file ]] || fail "$file is not installed."
  done
}

cmake_package() {
  local folder=$WORK/by-cmake
  rm -rf "$folder"
  # The consumer's CMakeLists.txt requires the version.
  "$CMAKE" -S "$CONSUMER" -B "$folder" -DCMAKE_PREFIX_PATH="$PREFIX" \
    -DCMAKE_C_COMPILER="$CC" -DCMAKE_CXX_COMPILER="$CXX" \
    -DCMAKE_C_FLAGS="$flags" -DCMAKE_CXX_FLAGS="$flags"
  "$CMAKE" --build "$folder"
  # CMake links with a run path.
  "$folder/consumer_c"
  "$folder/consumer_cpp"
}

readme_block() {  # start of the first line
  awk -v start="\`\`\`$1" 'index($0, start) == 1 { on = 1; next }
    /^```/ { on = 0 } on' "$SOURCE/README.md"
}

# Builds the program in README with the CMake lines and the command in README.
readme() {
  local folder=$WORK/from-readme
  rm -rf "$folder"
  mkdir "$folder"
  readme_block c\  >"$folder/my_program.c"
  {
    echo 'cmake_minimum_required(VERSION 3.25)'
    echo 'project(my_program C)'
    echo 'add_executable(my_program my_program.c)'
    readme_block cmake
  } >"$folder/CMakeLists.txt"
  "$CMAKE" -S "$folder" -B "$folder/build" -DCMAKE_PREFIX_PATH="$PREFIX" \
    -DCMAKE_C_COMPILER="$CC" -DCMAKE_C_FLAGS="$flags"
  "$CMAKE" --build "$folder/build"
  [[ -x $folder/build/my_program ]] || fail "CMake did not build the program."
  (
    cd "$folder"
    # shellcheck disable=SC2086,SC2317  # several flags; called by eval
    cc() { "$CC" $flags "$@"; }
    # The flags of pkg-config are not quoted, so README's command needs a prefix
    # without spaces.
    links=$(mktemp -d)
    trap 'rm -rf "$links"' EXIT
    ln -s "$PREFIX" "$links/prefix"
    PKG_CONFIG_PATH=$links/prefix/$LIBDIR/pkgconfig
    export PKG_CONFIG_PATH
    eval "$(readme_block "sh compile")"
    [[ -x a.out ]] || fail "README's command did not build the program."
  )
}

with_pkg_config() {
  PKG_CONFIG_PATH=$PREFIX/$LIBDIR/pkgconfig "$PKG_CONFIG" "$@" ztkfunc
}

pkg_config() {
  expect "$VERSION" "$(with_pkg_config --modversion)" "Version of the package"
  local to=$WORK/by-pkg-config options
  mkdir -p "$to"
  eval "options=($flags $(with_pkg_config --cflags --libs))"
  "$CC" -std=c99 -pedantic -Wall -Wextra -Werror "$CONSUMER/consumer.c" \
    "${options[@]}" -o "$to/consumer_c"
  "$CXX" -std=c++17 -pedantic -Wall -Wextra -Werror "$CONSUMER/consumer.cpp" \
    "${options[@]}" -o "$to/consumer_cpp"
  run_installed "$to/consumer_c"
  run_installed "$to/consumer_cpp"
}

# The library contains the path of its data folder. So the test mounts the data folder
# of the prefix at this path, in a mount namespace.
bundle() {
  local namespace=(unshare --mount)
  [[ $(id -u) == 0 ]] || namespace+=(--map-root-user)
  "${namespace[@]}" mount --bind "$PREFIX/share" "$FULL_DATADIR" 2>/dev/null || {
    echo "Nothing can be mounted at $FULL_DATADIR here."
    exit 77
  }
  local program=$WORK/consumer_of_bundle options
  eval "options=($flags $(with_pkg_config --cflags --libs))"
  "$CC" "$CONSUMER/consumer.c" "${options[@]}" -o "$program"

  local text
  # shellcheck disable=SC2016  # expanded by the inner bash
  text=$(LD_LIBRARY_PATH=$PREFIX/$LIBDIR \
    LANGUAGE='' LC_ALL='' LC_MESSAGES=de_DE "${namespace[@]}" bash -c \
    'mount --bind "$1" "$2" && exec "$3" warning' bash \
    "$PREFIX/share" "$FULL_DATADIR" "$program")
  expect "Es ist kein Mixer angeschlossen." "${text%%. *}." \
    "The German warning, up to its first full stop"
}

udev_rule() {
  local file=lib/udev/rules.d/70-tarvix-mixer.rules
  expect "$(udev_rule_for 6666)" "$(grep -v '^#' "$PREFIX/$file")" \
    "The installed udev rule"

  # udev compares lower-case digits, so the vendor id is converted.
  local other=$WORK/other-vendor
  rm -rf "$other"
  "$CMAKE" -S "$SOURCE" -B "$other" -DZTK_USB_VENDOR_ID=0x0ABC \
    -DBUILD_TESTING=OFF -DCMAKE_C_COMPILER="$CC" -DCMAKE_CXX_COMPILER="$CXX" \
    >/dev/null
  expect "$(udev_rule_for 0abc)" \
    "$(grep -v '^#' "$other/generated/${file##*/}")" \
    "The udev rule of another vendor id"
}

udev_rule_for() {  # vendor
  printf '%s, ' 'ACTION!="remove"' 'SUBSYSTEM=="usb"' \
    'ENV{DEVTYPE}=="usb_device"' "ATTR{idVendor}==\"$1\"" \
    'ATTR{idProduct}=="001b"'
  printf 'TAG+="uaccess"\n'
}

manuals() {
  local file
  for file in man/man1/ztk.1 man/man1/ztk-virtual-mixer.1 \
    bash-completion/completions/{ztk,ztk-virtual-mixer} \
    fish/vendor_completions.d/{ztk,ztk-virtual-mixer}.fish \
    "${ZSH_COMPLETIONS#share/}"/{_ztk,_ztk-virtual-mixer}; do
    [[ -s $PREFIX/share/$file ]] || fail "$file is not installed."
  done
  # This page is built only if doxygen is installed.
  [[ ! -e $BUILD/manual/ZTKFunc.3 ||
    -s $PREFIX/share/man/man3/ZTKFunc.3 ]] ||
    fail "man3/ZTKFunc.3 is not installed."
}

# The prefix has one file and one folder of other programs, which must stay.
uninstall() {
  local folder=$WORK/taken-away before
  rm -rf "$folder"
  mkdir -p "$folder/share/man" "$folder/bin"
  echo "another program" >"$folder/bin/another"
  before=$(find "$folder" | sort)
  # The second installation must not treat the folders of the first one as
  # folders of other programs.
  "$CMAKE" --install "$BUILD" --prefix "$folder" >/dev/null
  "$CMAKE" --install "$BUILD" --prefix "$folder" >/dev/null
  [[ -x $folder/bin/ztk || ! -x $PREFIX/bin/ztk ]] ||
    fail "bin/ztk was not installed."
  "$CMAKE" -DBUILD="$BUILD" -P "$SOURCE/cmake/uninstall_files.cmake"
  expect "$before" "$(find "$folder" | sort)" "What is left"
  # If the prefix did not exist before the installation, it is removed too.
  rm -rf "$folder"
  "$CMAKE" --install "$BUILD" --prefix "$folder" >/dev/null
  "$CMAKE" -DBUILD="$BUILD" -P "$SOURCE/cmake/uninstall_files.cmake"
  [[ ! -e $folder ]] || fail "These files were not removed: $(find "$folder")"
}

hardening() {
  local symbols
  symbols=$(nm --dynamic --undefined-only "$PREFIX/$LIBDIR/libZTKFunc.so")
  grep -q ' __stack_chk_fail' <<<"$symbols" ||
    fail "The library has no stack protector."
  [[ $BUILD_TYPE == Debug ]] || grep -q '_chk@' <<<"$symbols" ||
    fail "The library calls no function that _FORTIFY_SOURCE checks."
}

# The programs find the library relative to their own folder.
programs() {
  (cd / && env -u LD_LIBRARY_PATH "$PREFIX/bin/ztk" --help >/dev/null)
  (cd / && "$PREFIX/bin/ztk-virtual-mixer" --help >/dev/null)
  # The window is not built if Qt is missing.
  [[ ! -x $PREFIX/bin/ztk-window ]] ||
    (cd / && env -u LD_LIBRARY_PATH "$PREFIX/bin/ztk-window" --help >/dev/null)
}

"$1"
