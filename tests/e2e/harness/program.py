"""The program itself, from its start to its end."""

import configparser
import os
import pathlib
import signal
import sys

from harness.machine import Machine, wait_until
from harness.screen import Screen
from harness.wire import All_notes_off, Wire

Panel = "VCF cutoff frequency"  # an element that is there as soon as the panel is

# A frame with room for every window beside the panel.
Wide_frame = {
    "Main Window": {"Width": "1240", "Height": "960"},
    "Windows": {"Save Positions": "1", "Sequencer Left": "540", "Sequencer Top": "0", "Patch Left": "540",
                "Patch Top": "250", "File Dialog Left": "540", "File Dialog Top": "440"},
}


def _parser():
    parser = configparser.ConfigParser(delimiters="=", interpolation=None)
    parser.optionxform = str
    return parser


class Session:
    """A machine with the program on it and a JACK client on its wire. settings: {section: {key: text}} in place of
    the wide frame's. configured: whether the JACK client is chosen; without, the start asks. scale: pixels a point."""

    def __init__(self, name, settings=None, scale=1, configured=True, screen=(1280, 1024)):
        self.name = name
        self.machine = Machine(screen)
        self.settings_file = pathlib.Path(self.machine.environment["XDG_CONFIG_HOME"]) / "melvor" / "MELVOR.INI"
        self._settings = settings or {}
        self._scale = scale
        self._configured = configured

    def __enter__(self):
        self.machine.__enter__()
        try:
            self.connect()
            self.write_settings()
            self.start(wait_for_panel=self._configured)
        except BaseException as error:
            self.__exit__(type(error))
            raise
        return self

    def __exit__(self, kind, *_):
        try:
            if kind is not None:
                self._tell()
        finally:
            self.machine.__exit__()

    def _tell(self):
        """What is worth knowing of a failure."""
        folder = pathlib.Path(os.environ["SCREENSHOTS"])
        folder.mkdir(parents=True, exist_ok=True)
        self.machine.run("import", "-window", "root", str(folder / f"{self.name}.png"))
        if (self.machine.directory / "melvor.log").exists():
            print(self.machine.log("melvor"), file=sys.stderr)

    def write_settings(self):
        sections = _parser()
        sections.read_dict({**Wide_frame, **self._settings})
        if self._configured:
            sections.read_dict({"MIDI": {"Output": "synth:in", "Input": "synth:out"}})
        self.settings_file.parent.mkdir(exist_ok=True)
        with open(self.settings_file, "w", newline="\r\n") as file:
            sections.write(file, space_around_delimiters=False)

    def settings(self):
        """The settings file as sections of keys."""
        sections = _parser()
        sections.read(self.settings_file)
        return sections

    def connect(self):
        self.wire = Wire(self.machine, os.environ["JACK_CAPTURE"])

    def start(self, wait_for_panel=True):
        if self._scale != 1:
            self.machine.environment["QT_SCALE_FACTOR"] = str(self._scale)
        self.process = self.machine.start("melvor", [os.environ["MELVOR"]])
        self.screen = Screen(self.machine, self.process.pid, self._scale)
        if wait_for_panel:
            self.screen.element(Panel)
            active = ("xdotool", "getactivewindow", "getwindowpid")
            wait_until(lambda: (self.machine.run(*active) or "").strip() == str(self.process.pid),
                       "the program's window in front")

    def wait_for_end(self):
        """The exit code, once the program has ended by itself."""
        wait_until(lambda: self.process.poll() is not None, "the end of the program")
        return self.process.returncode

    def interrupt(self):
        """Asks the program to end as a closing desktop does; returns its exit code."""
        self.process.send_signal(signal.SIGTERM)
        return self.wait_for_end()

    def end_at_once(self, lose_display=False):
        """In the middle of whatever it does, by a signal or, where the display goes, by the toolkit: no box, the
        settings written, no note left sounding."""
        assert "Synthesizer" not in self.settings()["MIDI"]
        if lose_display:
            self.machine.display.terminate()
        assert self.wait_for_end() == 1 if lose_display else self.interrupt() == 0
        assert self.settings()["MIDI"]["Synthesizer"] == "JX-8P"
        wait_until(lambda: self.wire.all()[-1][1] == All_notes_off, "the last word")
