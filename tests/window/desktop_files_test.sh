#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# The files that desktops, software centres and man read of the window.
#
# Usage: desktop_files_test.sh SOURCES BUILD ZTK-WINDOW
set -euo pipefail
entry=$1/packaging/window/com.tarvix.ZtkWindow.desktop
data=$2/generated/com.tarvix.ZtkWindow.metainfo.xml
page=$2/generated/ztk-window.1

fail() {
  echo "$*"
  exit 1
}

# The program tells all of its options in its help, and the page all of them.
help=$("$3" --help)
for option in --help --version; do
  grep -q -e "$option" <<<"$help" || fail "--help does not name $option."
  grep -q -e "${option//-/\\\\-}" "$page" || fail "$page does not name $option."
done
version=$("$3" --version)
grep -qF "release version=\"${version#ztk-window }\"" "$data" ||
  fail "$data does not name the version of $version."
status=0
"$3" --unknown 2>/dev/null -platform offscreen || status=$?
[[ $status == 2 ]] || fail "An unknown option ends with $status."

for tool in desktop-file-validate appstreamcli mandoc; do
  command -v "$tool" >/dev/null || { echo "$tool is not installed."; exit 77; }
done
told=$(desktop-file-validate "$entry") || fail "$told"
[[ -z $told ]] || fail "$told"
appstreamcli validate --no-net --pedantic "$data"
told=$(mandoc -T lint -W warning "$page") || fail "$told"
