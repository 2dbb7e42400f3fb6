"""The machine that one scenario runs on: display, window manager, session bus and JACK server, all private."""

import os
import pathlib
import shutil
import signal
import subprocess
import sys
import tempfile
import time

Patience_s = 30
Look_again_s = 0.01
First_display = 1000
Displays = 30000


def wait_until(condition, what):
    """Returns the condition's value as soon as that is true; AssertionError with what, a text or what gives one, if
    it never comes."""
    end = time.monotonic() + Patience_s
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"never came: {what() if callable(what) else what}")
        time.sleep(Look_again_s)


class Machine:
    """Everything lives in one new directory and ends with it. screen: width and height in pixels. jack: whether a
    JACK server runs."""

    def __init__(self, screen=(1280, 1024), jack=True):
        self.directory = pathlib.Path(tempfile.mkdtemp(prefix="melvor-e2e-"))
        self.home, settings, runtime = (self.directory / name for name in ("home", "settings", "runtime"))
        for folder in (self.home, settings, runtime):
            folder.mkdir(mode=0o700)
        self.screen = screen
        self.server = f"melvor-{self.directory.name}"
        self.display_options = []
        self._wants_jack = jack
        self._running = []
        self.environment = {
            "PATH": os.environ["PATH"],
            "LANG": "C.UTF-8",
            "HOME": str(self.home),
            "XDG_CONFIG_HOME": str(settings),
            "XDG_RUNTIME_DIR": str(runtime),
            "JACK_DEFAULT_SERVER": self.server,
            "JACK_NO_START_SERVER": "1",
            "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1",
        }

    def __enter__(self):
        signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))  # whoever stops a scenario stops its machine too
        try:
            self._start_display()
            self._start_bus()
            if self._wants_jack:
                self.start_jack()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self._running):
            end(process)
        shutil.rmtree(self.directory, ignore_errors=True)

    def start(self, name, command, **options):
        """Starts a program of this machine; its output goes to NAME.log. It ends with the machine at the latest."""
        options.setdefault("stdin", subprocess.DEVNULL)
        with open(self.directory / f"{name}.log", "ab") as log:
            options.setdefault("stdout", log)
            process = subprocess.Popen(command, env=self.environment, cwd=self.home, stderr=log, **options)
        self._running.append(process)
        return process

    def log(self, name):
        return (self.directory / f"{name}.log").read_text(errors="replace")

    def run(self, *command):
        """Runs a command of this machine to its end and returns what it printed; None if it failed."""
        done = subprocess.run(command, env=self.environment, capture_output=True, text=True, check=False)
        return done.stdout if done.returncode == 0 else None

    def _start_display(self):
        width, height = self.screen
        number = First_display + os.getpid() % Displays
        # Without -noreset the server starts anew when its last client leaves, and refuses whoever comes just then.
        self.display = self.start("xvfb", ["Xvfb", f":{number}", "-screen", "0", f"{width}x{height}x24", "-noreset",
                                           "-nolisten", "tcp", *self.display_options])
        self.environment["DISPLAY"] = f":{number}"
        wait_until(lambda: self.run("xprop", "-root") is not None or self.display.poll() is not None, "the display")
        self.start("openbox", ["openbox", "--sm-disable"])
        managed = ("xprop", "-root", "_NET_SUPPORTING_WM_CHECK")
        wait_until(lambda: "window id" in (self.run(*managed) or ""),
                   lambda: f"the window manager: {self.log('xvfb')}{self.log('openbox')}")

    def _start_bus(self):
        bus = self.start("bus", ["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address"],
                         stdout=subprocess.PIPE)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().decode().strip()

    def start_jack(self):
        """The dummy driver: a server without hardware. It waits for its clients, so that a busy machine loses nothing
        on the way to the one that listens."""
        self.jack = self.start("jackd", ["jackd", "-n", self.server, "-S", "-r", "-t", "5000", "-p", "128", "-d",
                                         "dummy", "-r", "48000", "-p", "256"])
        wait_until(lambda: self.run("jack_lsp") is not None, "the JACK server")


def end(process):
    """Ends a program in order, or at once if it does not listen; returns its exit code."""
    if process.poll() is None:
        process.terminate()
        try:
            process.wait(Patience_s)
        except subprocess.TimeoutExpired:
            process.kill()
    return process.wait()
