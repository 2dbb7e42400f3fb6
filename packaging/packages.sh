# The Debian packages that MELVOR needs, and how ./run and ./test get what is missing. Sourced by both, from
# the tree's root.

Build_Packages=(
  cmake g++ libasound2-dev libjack-jackd2-dev ninja-build pkg-config qt6-base-dev qt6-svg-dev
  fonts-dejavu-core # the program's own lettering where the desktop brings no font
)
Test_Packages=(
  libbenchmark-dev libgtest-dev
  jackd2                                                              # a server without hardware
  busybox-static cpio libasound2-data qemu-system-x86 xz-utils        # a machine with an ALSA sequencer
  at-spi2-core dbus-daemon gir1.2-atspi-2.0 python3 python3-gi        # the program seen from outside
  imagemagick openbox x11-utils xdotool xvfb                          # its display, hand and camera
)
Package_Packages=(appstream desktop-file-utils dpkg-dev file lintian man-db)
Fuzz_Packages=(clang libclang-rt-14-dev)

As_Root() {
  if [ "$(id -u)" -eq 0 ]; then "$@"; else sudo "$@"; fi
}

Install=yes

# Take_Options WORD...: the options of ./run and ./test.
Take_Options() {
  local option
  for option in "$@"; do
    case $option in
      --no-install) Install=no ;;
      *)
        echo "Usage: $0 [--no-install]    with it, nothing is installed, whatever is missing"
        return 1
        ;;
    esac
  done
}

# May_Install NAME...: whether they may be installed. Somebody at a terminal is asked; root and CI are not.
May_Install() {
  local answer
  [ "$(id -u)" -ne 0 ] && [ -z "${CI:-}" ] && [ -t 0 ] && [ -t 1 ] || return 0
  echo "MELVOR needs these packages: $*"
  read -rp "Install them with sudo apt-get? [Y/n] " answer
  case $answer in [Nn]*) return 1 ;; esac
}

# Missing_Packages NAME...: those that are not installed, one a line.
Missing_Packages() {
  local installed name
  installed=" $(dpkg-query -W -f='${db:Status-Status}:${Package} ' "$@" 2>/dev/null || true)"
  for name in "$@"; do
    case $installed in *" installed:$name "*) ;; *) echo "$name" ;; esac
  done
}

# Need_Packages NAME...: installs what is missing, if it may. Fails if that cannot be had.
Need_Packages() {
  local missing
  if ! command -v dpkg-query >/dev/null; then
    echo "Not a Debian system: taking for granted what these packages hold: $*"
    return 0
  fi
  mapfile -t missing < <(Missing_Packages "$@")
  [ "${#missing[@]}" -gt 0 ] || return 0
  if [ "$Install" = no ] || ! May_Install "${missing[@]}"; then
    echo "Going on without ${missing[*]}"
    return 0
  fi
  echo "Installing ${missing[*]}"
  Logged install-lists As_Root apt-get -q -o DPkg::Lock::Timeout=300 update || return 1
  Logged install As_Root env DEBIAN_FRONTEND=noninteractive apt-get -q -y -o DPkg::Lock::Timeout=300 \
    install --no-install-recommends "${missing[@]}"
}

# Logged NAME COMMAND...: runs the command with its output in build/log/NAME.log; shows the end of that if it
# fails.
Logged() {
  local log=build/log/$1.log
  shift
  mkdir -p build/log
  if "$@" >"$log" 2>&1 </dev/null; then return 0; fi
  tail -n 40 "$log"
  echo "Failed: $* (all of it in $log)"
  return 1
}
