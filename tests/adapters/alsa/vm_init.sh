#!/bin/busybox sh
# First process of the virtual machine: makes the MIDI devices, runs the program, tells its result, and ends.
/bin/busybox --install -s /bin
export PATH=/bin HOME=/tmp
mount -t proc proc /proc
mount -t sysfs sys /sys
mount -t devtmpfs dev /dev
mount -t tmpfs tmp /tmp
echo VM-STARTED
for module in snd-seq snd-seq-dummy snd-seq-midi dummy_hcd usb_f_midi snd-usb-audio; do
  modprobe $module || echo "VM-NO-DEVICES $module"
done

# A USB device that this machine is both ends of: the gadget's card plays the instrument, and the card that the USB
# driver makes of it is the interface that a program sees. Writing to its UDC file plugs it in and out.
mount -t configfs config /config
gadget=/config/usb_gadget/synth
mkdir -p $gadget/strings/0x409 $gadget/configs/c.1 $gadget/functions/midi.0
echo 0x1d6b >$gadget/idVendor
echo 0x0104 >$gadget/idProduct
echo "MELVOR tests" >$gadget/strings/0x409/manufacturer
echo "Test Synth" >$gadget/strings/0x409/product
ln -s $gadget/functions/midi.0 $gadget/configs/c.1/
echo dummy_udc.0 >$gadget/UDC || echo VM-NO-DEVICES usb

cat /proc/asound/cards
/bin/program --gtest_color=no && echo VM-PASSED
poweroff -f
