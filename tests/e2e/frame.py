"""The main window: maximized, minimized and at its place, as the settings left it, and never out of reach."""

import re

from harness.machine import wait_until
from harness.program import Session

Starts = 4
Screen_size = (1280, 1024)
Place = (101, 83, 507, 403)
Keys = ("Left", "Top", "Width", "Height")
Lost = ["3000 80 700 600", "100 80 3000 2000", "1250 1000 541 508"]


def window(session):
    """State and outer place of the window as the window manager has them; None while there is none."""
    def run(*command):
        return session.machine.run(*command) or ""
    for number in run("xdotool", "search", "--pid", str(session.process.pid), "--name", "^MELVOR").split():
        told = run("xprop", "-id", number, "WM_STATE", "_NET_WM_STATE", "_NET_FRAME_EXTENTS")
        decorations = re.search(r"= (\d+), (\d+), (\d+), (\d+)", told)
        if "window state" not in told or not decorations:
            continue
        left, right, top, bottom = map(int, decorations.groups())
        x, y, width, height = (int(re.search(rf"{key}: +(-?\d+)", run("xwininfo", "-id", number)).group(1))
                               for key in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height"))
        state = 1 if "Iconic" in told else 2 if "MAXIMIZED_VERT" in told else 0
        return state, (x - left, y - top, width + left + right, height + top + bottom)
    return None


def wait_for(session, state, place):
    wait_until(lambda: window(session) == (state, place), lambda: f"{state} {place}, but {window(session)}")


def write(session, state, place):
    session.write_settings()
    text = session.settings_file.read_text()
    for key, number in zip(("State", *Keys), (state, *place)):
        text = re.sub(rf"(?m)^{key}=.*\n", "", text).replace("[Main Window]\n", f"[Main Window]\n{key}={number}\n")
    session.settings_file.write_text(text)


def expect_kept(session, state):
    assert session.interrupt() == 0
    section = session.settings()["Main Window"]
    kept = int(section["State"]), tuple(int(section[key]) for key in Keys)
    assert kept == (state, Place), kept


def maximized(session):
    whole = (0, 0, *Screen_size)
    write(session, 2, Place)
    for _ in range(Starts):
        session.start()
        for _ in range(3):
            for state, place in ((2, whole), (0, Place)):
                wait_for(session, state, place)
                left, top, width, _ = place
                session.screen.hand("mousemove", left + width // 2, top + 8, "click", "--repeat", 2, "--delay", 60, 1)
        wait_for(session, 2, whole)
        expect_kept(session, 2)


def minimized(session):
    write(session, 1, Place)
    for _ in range(Starts):
        session.start(wait_for_panel=False)
        wait_until(lambda: (window(session) or (0,))[0] == 1, lambda: f"minimized: {window(session)}")
        expect_kept(session, 1)


def inside(place):
    left, top, width, height = place
    return min(left, top) >= 0 and left + width <= Screen_size[0] and top + height <= Screen_size[1]


def brought_back(session):
    for lost in Lost:
        write(session, 0, lost.split())
        session.start()
        wait_until(lambda: inside(window(session)[1]), lambda: f"{lost}: {window(session)}")
        session.interrupt()


def main():
    with Session("frame", screen=Screen_size) as session:
        session.interrupt()
        maximized(session)
        minimized(session)
        brought_back(session)


main()
