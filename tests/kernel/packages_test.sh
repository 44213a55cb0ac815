#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Tests that the user of the session may open an attached mixer as soon as the packages
# are installed. scripts/try-packages runs this script in the guest, with systemd and a
# session of the user "guest":
#
#   packages_test.sh FOLDER_OF_PACKAGES
set -euo pipefail

readonly packages=$1 requests=/run/requests

fail() {
  printf 'packages_test: %s\n' "$*" >&2
  exit 1
}

expect() {  # what expected actual
  [[ $2 == "$3" ]] || fail "$1: \"$3\" instead of \"$2\""
  printf 'ok: %s\n' "$1"
}

if [[ ${2:-} != --with-mixer ]]; then
  ! dpkg-query --show 'libztkfunc*' &>/dev/null ||
    { echo "The packages are installed on this machine already."; exit 77; }
  dpkg-deb --extract "$packages"/ztk-virtual-mixer_*.deb /run/unpacked
  exec /run/unpacked/usr/bin/ztk-virtual-mixer serve --attach \
    --log "$requests" -- "$0" "$packages" --with-mixer
fi

for ((tries = 0; tries < 100; ++tries)); do
  ! vendor=$(grep -slx 6666 /sys/bus/usb/devices/*/idVendor) || break
  sleep 0.2
done
device=${vendor%/*}
printf -v node /dev/bus/usb/%03d/%03d \
  "$(<"$device/busnum")" "$(<"$device/devnum")"
udevadm settle

may_open() {
  # shellcheck disable=SC2016  # expanded by the inner bash
  runuser -u guest -- bash -c '{ : <>"$1"; } 2>/dev/null && echo yes || echo no' \
    bash "$node"
}

expect "without the packages the user may not open the mixer" no "$(may_open)"
# Without the triggers of other packages: the index of all manual pages of this
# machine would take minutes here.
dpkg --no-triggers --install "$packages"/libztkfunc{1,-common}_*.deb \
  "$packages"/ztk_*.deb >/dev/null
udevadm settle
expect "after installing, the user may open the attached mixer" yes "$(may_open)"
expect "the user may set the mixer" "mixer 1: 40 03 0109 8002 0000" "$(
  runuser -u guest -- env HOME=/home/guest ztk input set 1 mic &>/dev/null
  grep ': 40 ' "$requests")"
