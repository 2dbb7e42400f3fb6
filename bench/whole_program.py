"""Figures of the whole program on a virtual display, beside a bare frame of the toolkit."""

import mmap
import os
import pathlib
import signal
import statistics
import struct
import subprocess
import sys
import time

Root = pathlib.Path(__file__).resolve().parent.parent
sys.path.insert(0, str(Root / "tests" / "e2e"))

from harness.machine import Machine, end, wait_until  # noqa: E402
from harness.program import Session  # noqa: E402

Starts = 10
Idle_s = 20
Stopped_s = 8
Settle_s = 2
Step_ms = 62
Played_s = 60
Rows = 13  # notes of a step
Inside = (200, 150, 300, 250)  # a part of the screen that both frames fill: left, top, width, height


class Framebuffer:
    """The virtual display's own memory, looked at without asking the display."""

    def __init__(self, folder):
        file = next(pathlib.Path(folder).glob("Xvfb_screen0"))
        with open(file, "rb") as opened:
            self._memory = mmap.mmap(opened.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(">25I", self._memory[:100])
        self._start = header[0] + header[19] * 12
        self._line = header[12]

    def look(self):
        """Some pixels of the inside, as bytes."""
        left, top, width, height = Inside
        return b"".join(self._memory[self._start + (top + y) * self._line + left * 4:][: width * 4]
                        for y in range(0, height, 25))


class Stage(Machine):
    """A machine whose display can be looked at through its memory."""

    def __init__(self, jack):
        super().__init__(jack=jack)
        self.display_options = ["-fbdir", str(self.directory)]

    def __enter__(self):
        super().__enter__()
        self.framebuffer = Framebuffer(self.directory)
        return self


def settings(machine):
    folder = pathlib.Path(machine.environment["XDG_CONFIG_HOME"]) / "melvor"
    folder.mkdir(exist_ok=True)
    (folder / "MELVOR.INI").write_text("[MIDI]\nOutput=Built-in JX-8P\nInput=Built-in JX-8P\n")


def first_paint_ms(machine, program):
    """From the start of the process to the first pixels of the window's inside."""
    empty = machine.framebuffer.look()
    start = time.monotonic()
    process = machine.start("started", [program])
    while machine.framebuffer.look() == empty:
        if time.monotonic() - start > 30:
            raise AssertionError(f"{program} painted nothing")
        time.sleep(0.0005)
    took = (time.monotonic() - start) * 1000
    end(process)
    wait_until(lambda: machine.framebuffer.look() == empty, "the empty display")
    return took


def resident_kb(process, kind):
    for line in pathlib.Path(f"/proc/{process.pid}/smaps_rollup").read_text().splitlines():
        if line.startswith(kind + ":"):
            return int(line.split()[1])
    raise AssertionError(kind)


def processor_s(process):
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def start_and_rest(programs, jack):
    """For each program: milliseconds to the first paint, resident megabytes, and per cent of a processor at rest."""
    times = {program: [] for program in programs}
    with Stage(jack) as machine:
        del machine.environment["QT_LINUX_ACCESSIBILITY_ALWAYS_ON"]
        settings(machine)
        for _ in range(Starts):
            for program in programs:
                times[program].append(first_paint_ms(machine, program))
        figures = {}
        for program in programs:
            process = machine.start("resting", [program])
            time.sleep(Settle_s)
            before = processor_s(process)
            time.sleep(Idle_s)
            idle = (processor_s(process) - before) / Idle_s * 100
            figures[program] = statistics.median(times[program]), resident_kb(process, "Rss") / 1024, idle
            end(process)
    return [figures[program] for program in programs]


def longest_answer_ms(session, seconds):
    """The user-interface thread answers one question after another; the longest wait for an answer."""
    longest = 0
    over = time.monotonic() + seconds
    while time.monotonic() < over:
        asked = time.monotonic()
        session.screen.application.get_child_count()
        longest = max(longest, (time.monotonic() - asked) * 1000)
        time.sleep(0.001)
    return longest


def drag_beside(session, seconds):
    """A hand that drags a slider up and down in a process of its own."""
    left, top, width, height = session.screen.place("VCF cutoff frequency")
    x, y = left + width // 2, top + height // 2
    heights = list(range(0, 80, 2)) + list(range(80, 0, -2))
    steps = [step for height in heights * int(seconds * 100 / len(heights) + 1)
             for step in ("mousemove", str(x), str(y - height), "sleep", "0.01")]
    return session.machine.start("hand", ["xdotool", "mousemove", str(x), str(y), "mousedown", "1", *steps, "mouseup",
                                          "1"])


def longest_answers_in_a_drag():
    """While the JACK server runs, and while it stands still; milliseconds."""
    with Session("gaps") as session:
        session.screen.click("VCF cutoff frequency")
        session.wire.wait_for(1)
        longest = []
        for stopped in (False, True):
            hand = drag_beside(session, Stopped_s)
            if stopped:
                session.machine.jack.send_signal(signal.SIGSTOP)
            longest.append(longest_answer_ms(session, Stopped_s))
            if stopped:
                session.machine.jack.send_signal(signal.SIGCONT)
            hand.wait()
        return longest


def lateness(times_us):
    """99th percentile and drift, in milliseconds, of ticks by the times when they came. Their schedule is where the
    earliest hundredth of them stands, since a stamp of the server's clock can be off by itself."""
    late_ms = [(time - times_us[0]) / 1000 - step * Step_ms for step, time in enumerate(times_us)]
    schedule_ms = sorted(late_ms)[len(late_ms) // 100]
    late_ms = sorted(late - schedule_ms for late in late_ms)
    part = len(times_us) // 10
    drift_ms = ((statistics.mean(times_us[-part:]) - statistics.mean(times_us[:part])) / 1000
                - (len(times_us) - part) * Step_ms)
    return late_ms[int(len(late_ms) * 0.99)], drift_ms


def lateness_in_a_drag(bare_frame):
    """Of the sequencer's steps as they arrive at a JACK client while a slider is dragged all the time, and of a bare
    precise timer."""
    session = Session("ticks", settings={"MIDI": {"Sequence Preload": "1"},
                                         "Recent Files": {"Sequences": "c:\\", "Sequence1": "C:\\BENCH.SEQ"}})
    (session.machine.home / "bench.seq").write_bytes(b"SEQ1" + bytes([120, 48]) + bytes([127] * 8 * Rows))
    with session:
        session.screen.click("Start sequencer")
        drag_beside(session, Played_s).wait()
        notes = [stamp for stamp, message in session.wire.all() if len(message) == 3 and message[0] == 0x90]
        session.screen.click("Stop sequencer")
        steps = notes[::Rows][: Played_s * 1000 // Step_ms]
        bare = session.machine.start("bare", [bare_frame, str(Step_ms), str(len(steps))], stdout=subprocess.PIPE)
        printed, _ = bare.communicate()
        return lateness(steps), lateness([int(line) for line in printed.split()])
