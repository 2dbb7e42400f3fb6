"""What an independent JACK client receives, and what it sends."""

import subprocess

from harness.machine import wait_until

All_notes_off = bytes.fromhex("B0 7B 00")
Told = 30  # messages of a failure
Fresh_patch = (0, 0, 0, 0, 0, 0, 64)


class Wire:
    """A client "synth" with the ports synth:in and synth:out. Messages are read in order, each once."""

    def __init__(self, machine, capture_program):
        self.file = machine.directory / "wire.txt"

        def connected():  # a server that has just started may refuse its second client
            process = machine.start("wire", [capture_program, str(self.file), "synth"],
                                    stdin=subprocess.PIPE, stdout=subprocess.PIPE)
            return process if process.stdout.readline() == b"ready\n" else None

        self._process = wait_until(connected, lambda: f"the JACK client: {machine.log('wire')}")
        self._read = 0

    def all(self):
        """Every message since the start: microseconds and bytes. A line still being written does not count."""
        lines = self.file.read_text().split("\n")[:-1]
        stamped = (line.split(" ", 1) for line in lines)
        return [(int(time), bytes.fromhex(data)) for time, data in stamped]

    def _unread(self):
        return [message for _, message in self.all()[self._read:]]

    def skip(self):
        self._read = len(self.all())

    def expect(self, *messages):
        """The next messages, byte for byte."""
        wait_until(lambda: self._unread()[: len(messages)] == list(messages),
                   lambda: f"\n{as_text(messages)}\nbut this:\n{as_text(self._unread())}")
        self._read += len(messages)

    def take_to(self, last):
        """All messages before the next one that is equal to last; that one is passed over too."""
        wait_until(lambda: last in self._unread(), lambda: f"{last.hex(' ')} after:\n{as_text(self._unread())}")
        got = self._unread()
        got = got[: got.index(last)]
        self._read += len(got) + 1
        return got

    def wait_for(self, count):
        """Waits until so many messages are unread."""
        wait_until(lambda: len(self._unread()) >= count, f"{count} messages")

    def send(self, message):
        self._process.stdin.write(message.hex(" ").encode() + b"\n")
        self._process.stdin.flush()


def as_text(messages):
    return "\n".join(message.hex(" ") for message in messages[:Told]) or "(nothing)"


def tone(index, value):
    """One tone parameter, channel 1."""
    return bytes([0xF0, 0x41, 0x36, 0x00, 0x21, 0x20, 0x01, index, value, 0xF7])


def patch(index, value):
    """One patch parameter, channel 1."""
    return bytes([0xF0, 0x41, 0x36, 0x00, 0x21, 0x30, 0x01, index, value, 0xF7])


def note(number, velocity):
    return bytes([0x90, number, velocity])


def numbered(values):
    """Values, each behind its index."""
    return bytes(byte for pair in enumerate(values) for byte in pair)


def tone_dump(record):
    """The 67 bytes that the instrument transmits."""
    return bytes.fromhex("F0 41 35 00 21 20 01") + bytes(record) + b"\xF7"


def tone_file(record, patch_record=Fresh_patch):
    """A tone of 59 bytes with its patch, as a file of 89 bytes."""
    return tone_dump(record) + bytes.fromhex("F0 41 36 00 21 30 01") + numbered(patch_record) + b"\xF7"


def dump(record, patch_record=Fresh_patch):
    """The same as it goes to the instrument, with 24 07 where the file's tone ends."""
    return tone_file(record, patch_record).replace(b"\xF7", b"\x24\x07", 1)


def empty_record(name=""):
    """The tone of a fresh start: a name, tunes at their centres, all else 0."""
    record = bytearray(59)
    record[:10] = name.ljust(10).encode()
    record[13] = record[19] = 56
    record[20] = 64
    return record
