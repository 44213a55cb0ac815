# shellcheck shell=bash
# SPDX-License-Identifier: MIT
#
# Functions that several commands of this folder use.

# Starts a private message bus in a folder and sets $bus to its process.
start_bus() {  # folder
  cat >"$1/bus.conf" <<END
<busconfig><type>session</type><auth>EXTERNAL</auth>
<listen>unix:path=$1/bus</listen><policy context="default">
<allow send_destination="*"/><allow receive_sender="*"/><allow own="*"/>
</policy></busconfig>
END
  mkfifo "$1/address"
  dbus-daemon --config-file="$1/bus.conf" --nofork --print-address \
    >"$1/address" 2>/dev/null &
  # shellcheck disable=SC2034  # for the caller to end it
  bus=$!
  local address
  read -r address <"$1/address" || return 1
  # The variable of a session has no "guid=" either.
  export DBUS_SESSION_BUS_ADDRESS=${address%%,*}
}

# Runs the benchmarks that match a filter and writes their results to a file.
run_benchmarks() {  # bin results filter repetitions seconds
  ZTK_BENCH_MAY_CHANGE_SETTINGS=1 "$1/library_bench" \
    --benchmark_filter="$3" --benchmark_repetitions="$4" \
    --benchmark_min_time="$5" --benchmark_enable_random_interleaving=true \
    --benchmark_out_format=json --benchmark_out="$2.json" >"$2.txt" 2>&1 || {
    cat "$2.txt" >&2
    return 1
  }
}

# Measures the time of programs from start to end and writes the results to a file. The
# programs run in a root folder if one is given.
time_programs() {  # bin file runs [root]
  ${4:+chroot "$4"} hyperfine --shell=none --warmup 1 --runs "$3" --style none \
    --export-json "$2" \
    --command-name "ztk status" "$1/ztk status" \
    --command-name "minimal C program" "$1/read_status" \
    --command-name "the same, reading once" "$1/read_status once" \
    --command-name "the same, without decoding settings" "$1/read_status_raw" \
    --command-name "libusb lister" "$1/list_devices" \
    --command-name "program that does nothing" "$1/do_nothing" \
    --command-name "the same, loading the library" "$1/load_library" \
    --command-name lsusb "$(command -v lsusb)" 2>&1
}
