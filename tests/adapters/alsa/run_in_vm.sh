#!/bin/bash
# run_in_vm.sh CACHE PROGRAM
# Runs a test program as root in a small virtual machine that has what a build machine lacks: the kernel's MIDI
# sequencer, and a USB-MIDI interface whose cable ends in the machine itself.
# The kernel is Debian's own, unpacked into CACHE (70 MB to download, once) and never installed.
# Answers the program's success; 77 (skipped) where the machine cannot be had, and says why.
set -uo pipefail
here=$(cd "$(dirname "$0")" && pwd)
program=$2
modules="snd-seq snd-seq-dummy snd-seq-midi dummy_hcd usb_f_midi snd-usb-audio"

skip() { echo "SKIPPED, the ALSA sequencer was not tested: $1"; exit 77; }

[ -x "$program" ] || { echo "run_in_vm: there is no program $program"; exit 1; }
for tool in qemu-system-x86_64 busybox cpio xz apt-get dpkg; do
  command -v $tool >/dev/null || skip "there is no $tool"
done
[ -d /usr/share/alsa ] || skip "there is no /usr/share/alsa"
mkdir -p "$1" && cache=$(cd "$1" && pwd) || skip "there is no directory $1"
version=$(apt-cache depends linux-image-amd64 2>/dev/null | sed -n 's/.*Depends: linux-image-//p' | head -1)
[ -n "$version" ] || skip "no kernel package is known here"

unpack_kernel() {
  local parts=$cache/parts
  rm -rf "$parts" && mkdir -p "$parts" || return 1
  (cd "$cache" && apt-get -qq -o APT::Sandbox::User=root download "linux-image-$version") || return 1
  dpkg --fsys-tarfile "$cache"/linux-image-"$version"_*.deb |
    tar -x -C "$parts" --wildcards "./boot/vmlinuz-*" "./lib/modules/$version/modules.*" \
      "./lib/modules/$version/kernel/sound/*" "./lib/modules/$version/kernel/drivers/usb/*" \
      "./lib/modules/$version/kernel/fs/configfs/*" "./lib/modules/$version/kernel/drivers/media/mc/*" || return 1
  rm -f "$cache"/linux-image-"$version"_*.deb
  busybox depmod -b "$parts" "$version" || return 1
  mv "$parts" "$cache/$version"
}
if [ ! -d "$cache/$version" ]; then
  unpack_kernel >"$cache/unpack.log" 2>&1 || skip "the kernel package cannot be had: $(tail -1 "$cache/unpack.log")"
fi

# What the machine sees as its files: busybox, the modules with what they need, the program with its libraries.
root=$cache/root
rm -rf "$root"
mkdir -p "$root"/{bin,proc,sys,dev,tmp,config,etc,lib64,usr/share,"lib/modules/$version"}
cp "$(command -v busybox)" "$root/bin/busybox"
cp -a /usr/share/alsa "$root/usr/share/"
tree=lib/modules/$version
for module in $modules; do
  row=$(grep -E "/${module//[-_]/[-_]}\.ko(\.xz)?:" "$cache/$version/$tree/modules.dep") || skip "no kernel module $module"
  for file in ${row/:/ }; do
    install -D "$cache/$version/$tree/$file" "$root/$tree/$file"
    case $file in *.xz) xz -df "$root/$tree/$file" ;; esac
  done
done
cp "$cache/$version/$tree"/modules.{order,builtin}* "$root/$tree/"
busybox depmod -b "$root" "$version"
install -m755 "$program" "$root/bin/program"
ldd "$program" | grep -o '/[^ ]*' | while read -r library; do install -D -m755 "$library" "$root$library"; done
install -m755 "$here/vm_init.sh" "$root/init"
(cd "$root" && find . -print0 | cpio --quiet --null -o -H newc | gzip -1) >"$cache/files.gz"

# /dev/kvm alone does not mean that it works: inside another virtual machine it may be there and lead nowhere.
speed="-accel tcg -cpu max"
if [ -w /dev/kvm ] && grep -qwE 'vmx|svm' /proc/cpuinfo; then speed="-accel kvm -cpu host"; fi
# shellcheck disable=SC2086
timeout -k 5 240 qemu-system-x86_64 $speed -m 512 -smp 2 -nodefaults -no-user-config -display none -serial stdio \
  -net none -no-reboot -kernel "$cache/$version/boot/vmlinuz-$version" -initrd "$cache/files.gz" \
  -append "console=ttyS0 loglevel=1 panic=-1 mitigations=off tsc=reliable" </dev/null | tr -d '\r' | tee "$cache/console.log"
grep -q '^VM-STARTED$' "$cache/console.log" || skip "the virtual machine did not start"
grep -q '^VM-NO-DEVICES' "$cache/console.log" && skip "the virtual machine has no MIDI devices"
grep -q '^VM-PASSED$' "$cache/console.log"
