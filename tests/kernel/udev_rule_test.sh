#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
#
# Tests which users may open the mixer after the udev rule was installed. Runs in the
# guest with systemd and a session of the user "guest":
#
#   udev_rule_test.sh BIN_FOLDER RULES_FILE
set -euo pipefail

readonly bin=$1 rules=$2

fail() {
  printf 'udev_rule_test: %s\n' "$*" >&2
  exit 1
}

if [[ ${3:-} != --with-mixers ]]; then
  # One of the other devices is a foot switch of the same maker.
  exec "$bin/ztk-virtual-mixer" serve -n 2 --other-devices 4 --attach \
    --log /run/requests -- "$0" "$bin" "$rules" --with-mixers
fi

as() {  # user command...
  local user=$1
  shift
  runuser -u "$user" -- env -u XDG_CONFIG_HOME HOME="/run/home-$user" "$@"
}

for user in guest nobody; do
  install --directory --owner "$user" "/run/home-$user"
done

# Prints the products whose nodes a user may open for writing, each product once.
# Omits hubs.
open_to() {  # user
  # shellcheck disable=SC2016  # the inner shell's own variables
  as "$1" bash -c 'for device in /sys/bus/usb/devices/*; do
      [[ -e $device/busnum && $(<"$device/bDeviceClass") != 09 ]] || continue
      printf -v node /dev/bus/usb/%03d/%03d \
        "$(<"$device/busnum")" "$(<"$device/devnum")"
      ! { : <>"$node"; } 2>/dev/null || echo "$(<"$device/product")"
    done' | sort -u
}

expect() {  # what expected actual
  [[ $2 == "$3" ]] || fail "$1: \"$3\" instead of \"$2\""
  printf 'ok: %s\n' "$1"
}

reachable() {  # user
  as "$1" "$bin/ztk" status 2>/dev/null | grep -c '^Mixer .* answers' || true
}

# Waits until root reaches this number of mixers.
wait_for_mixers() {  # number
  local tries
  for ((tries = 0; tries < 100; ++tries)); do
    [[ $(reachable root) != "$1" ]] || return 0
    sleep 0.1
  done
  fail "there are not $1 mixers after ten seconds"
}

# Runs "ztk doctor" as a user and sets $cause, $help and $command of the problem,
# which must be the same for both mixers. Leaves the notes out.
ask_doctor() {  # user [environment...]
  local user=$1 findings
  shift
  findings=$({ as "$user" env "$@" "$bin/ztk" doctor 2>/dev/null || true; } |
    sed '/^mixers  *note: /,$d;/^settings /,$d')
  cause=$(sed -n 's/^ *cause: //p' <<<"$findings" | sort -u)
  help=$(sed -n 's/^ *help:  //p' <<<"$findings" | sort -u)
  command=$(sed -n 's/^ *type:  //p' <<<"$findings" | sort -u)
}

# Runs the command that the doctor printed. "sudo" is replaced by a script that only
# runs its arguments, because this script runs as root.
type_command() {
  mkdir -p /run/typed
  # shellcheck disable=SC2016  # expanded by the inner shell
  printf '#!/bin/sh\nexec "$@"\n' >/run/typed/sudo
  chmod 755 /run/typed/sudo
  [[ $command == *sudo* && $command != *$'\n'* ]] ||
    fail "no single command: \"$command\""
  PATH=/run/typed:$PATH bash -c "$command" >/dev/null
}

# Prints the requests that the mixers receive when the user sets a choice.
sent_for() {  # user choice
  : >/run/requests
  as "$1" "$bin/ztk" input set 1 "$2" &>/dev/null || true
  sed -n 's/^\(mixer .: 40 .*\)/\1/p' /run/requests
}

plug_in_again() {
  "$bin/ztk-virtual-mixer" unplug
  wait_for_mixers 0
  "$bin/ztk-virtual-mixer" plug
  wait_for_mixers 2
}

everybody=$(open_to root)
grep -qx 'Foot Switch' <<<"$everybody" ||
  fail "no other product of the maker's is attached: $everybody"
expect "without the rule only root can open the mixers" "2 0 0" \
  "$(reachable root) $(reachable guest) $(reachable nobody)"

# The rule was installed after the mixers were plugged in.
install --mode 644 "$rules" /lib/udev/rules.d/
ask_doctor guest
expect "the doctor sees that the rule came too late" \
  "the rule that grants you access was installed after the mixer was plugged \
in; this command has the same effect as plugging it in again" "$cause; $help"
type_command
expect "the command of the doctor lets the user set both mixers" \
  "mixer 1: 40 03 0107 8002 0000
mixer 2: 40 03 0107 8002 0000" "$(sent_for guest "cross fader a")"
rm "/lib/udev/rules.d/${rules##*/}"
udevadm control --reload
plug_in_again
udevadm settle

ask_doctor guest
expect "the doctor sees that the rule is missing" \
  "only root may open it, because no udev rule grants you access" "$cause"
type_command
expect "the command of the doctor lets the user set both mixers" \
  "mixer 1: 40 03 0108 8002 0000
mixer 2: 40 03 0108 8002 0000" "$(sent_for guest "cross fader b")"
expect "another user still cannot open the mixers" 0 "$(reachable nobody)"
rm /etc/udev/rules.d/70-tarvix-mixer.rules
udevadm control --reload

# The steps in README after the installation.
install --mode 644 "$rules" /lib/udev/rules.d/
udevadm control --reload
plug_in_again
# This has the same effect as plugging in the other devices again.
udevadm trigger --subsystem-match=usb --action=add --settle

expect "the user of the session can open both mixers" 2 "$(reachable guest)"
expect "the user of the session can set both mixers" "mixer 1: 40 03 0109 8002 0000
mixer 2: 40 03 0109 8002 0000" "$(sent_for guest mic)"
expect "another user cannot open the mixers" 0 "$(reachable nobody)"
status=0
as nobody "$bin/ztk" input set 1 mic &>/dev/null || status=$?
expect "ztk of another user exits with 3" 3 "$status"
expect "the user of the session can open no other device" VRM-D6 \
  "$(open_to guest)"
expect "another user can open no device" "" "$(open_to nobody)"

systemctl stop guest-session
for ((tries = 0; tries < 100; ++tries)); do
  [[ $(reachable guest) != 0 ]] || break
  sleep 0.1
done
expect "after logging out, the user can open no mixer" 0 "$(reachable guest)"

# Tests the same user in other sessions: over ssh, and in a service of the system.
ask_doctor guest SSH_CONNECTION="::1 9 ::1 22"
expect "the doctor sees that the user came over ssh" \
  "the rule grants access to the user who is logged in at this seat, and you are \
logged in over ssh; this grants guest access from everywhere" "$cause; $help"
ask_doctor guest
expect "the doctor sees that the command runs in a service" \
  "the rule grants access to the user who is logged in at this seat, and \
guest-command.service belongs to no seat; this grants guest access from \
everywhere" "$cause; $help"
type_command
expect "the command of the doctor lets the user set both mixers" \
  "mixer 1: 40 03 010a 8002 0000
mixer 2: 40 03 010a 8002 0000" "$(sent_for guest "rec out")"
expect "another user still cannot open the mixers" 0 "$(reachable nobody)"
