#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Opens the window on a Wayland compositor without a screen, and waits until it
# has shown the mixer. Ends with 77 where there is no such compositor.
#
# Usage: wayland_test.sh ZTK-VIRTUAL-MIXER TAKE-SCREENSHOT
set -euo pipefail
command -v weston >/dev/null || { echo "weston is not installed."; exit 77; }

work=$(mktemp -d /tmp/ztk.XXXXXX)
weston=
clean_up() {
  [[ -z $weston ]] || kill "$weston" 2>/dev/null || true
  rm -rf "$work"
}
trap clean_up EXIT
export XDG_RUNTIME_DIR=$work HOME=$work
# Outside of the sandbox, whose library it does not start with.
weston --backend=headless-backend.so --socket=ztk --idle-time=0 \
  >"$work/weston.log" 2>&1 &
weston=$!
for _ in {1..100}; do
  [[ ! -S $work/ztk ]] || break
  sleep 0.1
done
[[ -S $work/ztk ]] || { cat "$work/weston.log"; exit 77; }

export WAYLAND_DISPLAY=ztk QT_QPA_PLATFORM=wayland
dbus-run-session -- "$1" run -n 1 --private-settings -- \
  "$2" "$work/window.png" 2>&1 | tee "$work/window.log"
if grep -q 'Could not find the Qt platform plugin "wayland"' "$work/window.log"
then
  echo "The plug-in of Qt for Wayland is not installed."
  exit 77
fi
[[ -s $work/window.png ]]
