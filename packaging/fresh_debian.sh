# A fresh Debian 12 that is gone when its shell ends. Sourced, from the tree's root, after packages.sh.
#
# Its system lies below an overlay, so that what happens in it touches memory only; all mounts, its /dev and its
# processes live in namespaces of their own, which end with their first process. So there is nothing to unmount and
# nothing to delete, and no way from inside to this machine's own /dev.

Debian_Base=${DEBIAN_BASE:-build/fresh-debian}  # kept for the next time
Debian_Process=

# The mirror that this machine installs from.
Debian_Mirror() {
  apt-get indextargets --format '$(REPO_URI)' 'Created-By: Packages' 'Codename: bookworm' 'Component: main' | head -n 1
}

Debian_Make_Base() {
  [ ! -e "$Debian_Base/complete" ] || return 0
  mkdir -p "$Debian_Base"
  echo "Making a bare Debian 12 in $Debian_Base"
  Logged debootstrap unshare --mount --pid --fork --kill-child \
    debootstrap --variant=minbase bookworm "$Debian_Base/root" "$(Debian_Mirror)" || return 1
  touch "$Debian_Base/complete"
}

# Runs as the first process of the new namespaces: BASE OVER, the second an empty folder to mount on.
# shellcheck disable=SC2016
Debian_First_Process='
  set -e
  root=$2/root
  mount -t tmpfs -o mode=755 fresh-debian "$2"
  mkdir "$root" "$2/upper" "$2/work"
  mount -t overlay -o "lowerdir=$1,upperdir=$2/upper,workdir=$2/work" fresh-debian "$root"
  mount -t proc proc "$root/proc"
  mount -t tmpfs -o mode=755 dev "$root/dev"
  for node in null:3 zero:5 full:7 random:8 urandom:9; do mknod -m 666 "$root/dev/${node%:*}" c 1 "${node#*:}"; done
  mknod -m 666 "$root/dev/tty" c 5 0
  ln -s /proc/self/fd "$root/dev/fd"
  mkdir -m 1777 "$root/dev/shm"
  cat /etc/resolv.conf >"$root/etc/resolv.conf"
  echo ready
  exec chroot "$root" sleep infinity'

# Starts it. In_Debian works from then on.
Debian_Start() {
  local base over ready
  Debian_Make_Base || return 1
  base=$(realpath "$Debian_Base/root")
  over=$(realpath -m "$Debian_Base/over")
  mkdir -p "$over"
  coproc Debian_Coprocess { exec unshare --mount --pid --fork --kill-child bash -c "$Debian_First_Process" - "$base" "$over"; }
  # shellcheck disable=SC2154 # coproc sets it
  Debian_Process=$Debian_Coprocess_PID
  trap Debian_End EXIT
  read -r ready <&"${Debian_Coprocess[0]}" && [ "$ready" = ready ]
}

# In_Debian COMMAND...: as root, without a terminal, in its root directory; its input is this command's.
In_Debian() {
  local first
  first=$(cat "/proc/$Debian_Process/task/$Debian_Process/children")
  nsenter --target "${first% }" --mount --pid --root --wd \
    env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LANG=C.UTF-8 HOME=/root DEBIAN_FRONTEND=noninteractive "$@"
}

# unshare hears no milder signal while it waits; its child ends with it, and with that the namespaces.
Debian_End() {
  [ -z "$Debian_Process" ] || kill -KILL "$Debian_Process" 2>/dev/null || true
  Debian_Process=
}
