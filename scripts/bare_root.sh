# shellcheck shell=bash
# SPDX-License-Identifier: MIT
#
# Makes a Debian root with only the base system in a temporary folder. Commands
# that use such a root source lib.sh and then this file.

# The release, which make_bare_root sets.
suite=

# Prints the servers from which this machine gets the packages of the release.
# Reads source lists in both formats.
mirror() {
  local lists=(/etc/apt/sources.list /etc/apt/sources.list.d/*.list)
  { cat /etc/apt/sources.list.d/*.sources 2>/dev/null || true; } |
    awk -v RS= -v suite="$suite" -F '\n' '{
      uri = ""; offers = 0
      for (i = 1; i <= NF; ++i) {
        n = split($i, word, /[[:space:]]+/)
        if (word[1] == "URIs:") uri = word[2]
        if (word[1] == "Suites:")
          for (j = 2; j <= n; ++j) if (word[j] == suite) offers = 1
      }
      if (offers && uri != "") { print uri; exit }
    }'
  { cat "${lists[@]}" 2>/dev/null || true; } |
    sed 's/\[[^]]*\]//' |
    awk -v suite="$suite" '$1 == "deb" && $3 == suite { print $2; exit }'
}

# Makes apt use the same servers and settings in the root as on this machine. The
# source lists are copied only if they contain the release of the root.
copy_apt_settings() {  # root
  local file lists=()
  if [[ -n $(mirror) ]]; then
    rm -f "$1/etc/apt/sources.list"
    lists=(/etc/apt/sources.list /etc/apt/sources.list.d/*.list
      /etc/apt/sources.list.d/*.sources)
  fi
  for file in "${lists[@]}" /etc/apt/keyrings /etc/apt/trusted.gpg.d \
    /usr/share/keyrings /etc/apt/auth.conf.d /etc/resolv.conf /etc/hosts; do
    [[ -e $file ]] || continue
    mkdir -p "$1/${file%/*}"
    cp -aL --remove-destination "$file" "$1/${file%/*}/"
  done
  # Only the settings for downloads are copied, because other settings may run
  # programs that the root does not have.
  apt-config dump | grep -E '^Acquire::(https?|Check|Allow)' \
    >"$1/etc/apt/apt.conf.d/90machine" || true
}

# Mounts the file systems that the root needs. Must be called in new mount and
# process namespaces, so that the mounts and remaining processes end with them.
mount_system() {  # root
  local device
  mount --bind "$1" "$1"
  mount -t proc proc "$1/proc"
  mount --rbind /sys "$1/sys"
  mount -t tmpfs -o mode=755 tmpfs "$1/dev"
  for device in null zero full random urandom tty; do
    touch "$1/dev/$device"
    mount --bind "/dev/$device" "$1/dev/$device"
  done
  mkdir "$1/dev/pts" "$1/dev/shm"
  mount -t devpts -o newinstance,ptmxmode=0666,mode=0620 devpts "$1/dev/pts"
  mount -t tmpfs tmpfs "$1/dev/shm"
  ln -s pts/ptmx "$1/dev/ptmx"
  ln -s /proc/self/fd "$1/dev/fd"
}

# Runs a command in the root as user root, with the environment of a new login.
in_bare_root() {  # root command...
  as_user_in_bare_root "$1" root /root 022 /root/project "${@:2}"
}

# Runs a command in the root as a user, with the environment of a new login.
as_user_in_bare_root() {  # root user home umask folder command...
  local bare=$1 user=$2 home=$3 mask=$4 folder=$5 settings=() name
  shift 5
  for name in http_proxy https_proxy no_proxy; do
    [[ -z ${!name:-} ]] || settings+=("$name=${!name}")
  done
  # shellcheck disable=SC2016  # expanded by the inner shell
  env -i PATH=/usr/local/sbin:/usr/local/bin:/usr/sbin:/usr/bin:/sbin:/bin \
    HOME="$home" USER="$user" LOGNAME="$user" TERM="${TERM:-dumb}" \
    LANG=C.UTF-8 "${settings[@]}" chroot "$bare" \
    setpriv --reuid "$user" --regid "$user" --init-groups \
    bash -c 'umask "$1" && cd "$2" && shift 2 && "$@"' bash "$mask" "$folder" \
    "$@" </dev/null
}

# Makes the root and sets $bare to its folder. The folder is removed when the
# command ends.
make_bare_root() {  # release
  suite=$1
  [[ $(id -u) == 0 ]] || fail "Only root can make a bare Debian root."
  need_packages full
  local origin extra=()
  origin=$(mirror | head -n 1)
  origin=${origin:-http://deb.debian.org/debian}
  [[ $origin != https:* ]] || extra=(--include=ca-certificates)

  bare_root_folder=$(mktemp -d "${TMPDIR:-/var/tmp}/bare-root.XXXXXX")
  trap 'rm -rf --one-file-system "$bare_root_folder"' EXIT
  bare=$bare_root_folder/root
  say "Making a bare Debian, release $suite, from $origin."
  debootstrap --variant=minbase "${extra[@]}" "$suite" "$bare" "$origin" \
    >"$bare_root_folder/log" 2>&1 || {
    tail -n 20 "$bare_root_folder/log" >&2
    fail "The bare root could not be made."
  }
  copy_apt_settings "$bare"
}
