#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Tests that plugging in a mixer sends the remembered settings of a user who has turned
# autoapply on. Runs in the guest with systemd and a session of the user "guest":
#
#   autoapply_test.sh INSTALLED PREFIX
#
# INSTALLED contains the files that "cmake --install" installs below PREFIX.
set -euo pipefail

readonly installed=$1 prefix=$2 requests=/run/requests

fail() {
  printf 'autoapply_test: %s\n' "$*" >&2
  journalctl --no-pager --quiet -t ztk-apply -t systemd --lines 40 >&2
  cat "$requests" >&2
  exit 1
}

expect() {  # what expected actual
  [[ $2 == "$3" ]] || fail "$1: \"$3\" instead of \"$2\""
  printf 'ok: %s\n' "$1"
}

expect_start() {  # what start-of-text text
  [[ $3 == "$2"* ]] || fail "$1: \"$3\" instead of \"$2...\""
  printf 'ok: %s\n' "$1"
}

# Runs a command as in a terminal of the user's session.
as_guest() {
  local runtime
  runtime=/run/user/$(id -u guest)
  runuser -u guest -- env -u XDG_CONFIG_HOME HOME=/home/guest \
    XDG_RUNTIME_DIR="$runtime" DBUS_SESSION_BUS_ADDRESS="unix:path=$runtime/bus" \
    "$@"
}

# Prints the requests that change a setting of a mixer.
writes() {
  sed -n 's/^\(mixer [0-9]*: 40 .*\)/\1/p' "$requests"
}

runs_logged() {
  journalctl --quiet --output cat -t ztk-apply | grep -c . || true
}

plug_in_again_without_user() {
  ztk-virtual-mixer unplug
  until_true no_mixer
  : >"$requests"
  ztk-virtual-mixer plug
  until_true all_mixers
  udevadm settle
}

# Plugs a mixer in and waits until the user's systemd has no more jobs.
plug_in_again() {
  plug_in_again_without_user
  until_true nothing_to_do
}

mixers() { grep -slx 6666 /sys/bus/usb/devices/*/idVendor | wc -l; }
no_mixer() { [[ $(mixers) == 0 ]]; }
all_mixers() { [[ $(mixers) == 2 ]]; }
# Succeeds if the user's systemd knows both devices and has no more jobs.
nothing_to_do() {
  [[ $(as_guest systemctl --user list-units --plain --no-legend \
    --type device '*-usb*' | grep -c VRM-D6) == 2 &&
    -z $(as_guest systemctl --user list-jobs --no-legend) ]]
}

something_logged() { [[ $(runs_logged) != 0 ]]; }

# Succeeds if the user's systemd has ended.
user_has_gone() {
  [[ $(systemctl is-active "$user_manager") =~ ^(inactive|failed)$ ]]
}

something_written() { [[ $(writes) != "" ]]; }

until_true() {  # function
  local tries
  for ((tries = 0; tries < 100; ++tries)); do
    ! "$1" || return 0
    sleep 0.2
  done
  fail "'$1' is not true after twenty seconds"
}

if [[ ${3:-} != --with-mixers ]]; then
  mkdir -p "$prefix"
  cp -R "$installed/." "$prefix/"
  udevadm control --reload
  export PATH=$prefix/bin:$PATH
  exec ztk-virtual-mixer serve -n 2 --attach --log "$requests" -- \
    "$0" "$@" --with-mixers
fi

until_true all_mixers
udevadm settle

expect_start "autoapply is off at first" "Off: " "$(as_guest ztk autoapply status)"
as_guest ztk input set 2 post >/dev/null
as_guest ztk boost set "-10 dB" >/dev/null
plug_in_again
expect "plugging in sends nothing while autoapply is off" "" "$(writes)"
expect "the journal has no entry of ztk-apply" 0 "$(runs_logged)"

expect_start "the user turns autoapply on" "On: " "$(as_guest ztk autoapply on)"
expect "turning it on creates one link" ztk-apply@.service \
  "$(ls /home/guest/.config/systemd/user)"
expect "turning it on sends nothing" "" "$(writes)"

as_guest mv /home/guest/.config/tarvix /home/guest/away
as_guest systemctl --user start ztk-apply@by-hand.service
until_true something_logged
expect "the journal says that there was nothing to send" \
  "Nothing is remembered for any model: nothing to send." \
  "$(journalctl --quiet --output cat -t ztk-apply)"
expect "nothing was sent without a settings file" "" "$(writes)"
as_guest mv /home/guest/away /home/guest/.config/tarvix

plug_in_again
expect "plugging in sends only the stored choices" \
  "mixer 1: 40 03 0200 8003 0000
mixer 1: 40 03 0206 8002 0000
mixer 2: 40 03 0200 8003 0000
mixer 2: 40 03 0206 8002 0000" "$(writes | sort -u)"
expect_start "the journal names the sent choices" \
  "USB input 2: Post CH2 Fader (3), sent" \
  "$(journalctl --quiet --output cat -t ztk-apply | sed -n 2p)"
expect "no run of ztk-apply failed" "" \
  "$(as_guest systemctl --user list-units --failed --no-legend)"

expect_start "the user turns autoapply off" "Off: " "$(as_guest ztk autoapply off)"
expect "turning it off removes the link" "" \
  "$(find /home/guest/.config/systemd -type l 2>/dev/null)"
plug_in_again
expect "plugging in sends nothing after that" "" "$(writes)"

as_guest ztk autoapply on >/dev/null
user_manager=user@$(id -u guest).service
systemctl stop guest-session
loginctl terminate-user guest || true
until_true user_has_gone
plug_in_again_without_user
expect "nothing is sent for a user who has logged out" "" "$(writes)"

systemctl start guest-session
/bin/bash /run/guest/wait-for-session
until_true something_written
until_true nothing_to_do
expect "logging in sends the choices to mixers that are attached" \
  "mixer 1: 40 03 0200 8003 0000
mixer 1: 40 03 0206 8002 0000
mixer 2: 40 03 0200 8003 0000
mixer 2: 40 03 0206 8002 0000" "$(writes | sort -u)"
