"""Slider, knob, switch and keyboard of the panel, moved by a real mouse and real keys, byte for byte on the wire; at two
pixels a point."""

from harness.laws import Panel_keys_top, check_drag, drag_slider, slider_step, slider_top, values_of
from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, note, tone

Cutoff = "VCF cutoff frequency"
Cutoff_head = tone(34, 0)[:8]
Cutoff_bottom = 112


def to_fence(session, head):
    """The values that went out up to now. The little keyboard's right button marks the end."""
    session.screen.click("Play a chord", button=3)
    return values_of(session.wire.take_to(All_notes_off), head)


def drag_cutoff(session, heights):
    screen = session.screen
    path = drag_slider(screen, Cutoff, heights)
    values = to_fence(session, Cutoff_head)
    check_drag(values, slider_step(Cutoff_bottom), path)
    assert screen.value(Cutoff) == str(values[-1] * 99 // 127)
    panel_top = screen.place("Play a chord")[1] - Panel_keys_top
    assert screen.place(Cutoff)[1] - panel_top == slider_top(Cutoff_bottom, values[-1])
    return values


def slider(session):
    up = drag_cutoff(session, range(-1, -62, -2))
    assert up[0] == 0 and up == sorted(up) and 90 < up[-1] < 127, up
    session.screenshot("dragged")
    down = drag_cutoff(session, range(1, 31))
    assert down[0] == up[-1] and down == sorted(down, reverse=True) and 40 < down[-1] < 70, down

    # The drag has left the focus on the slider; the fence has taken it away.
    session.screen.click(Cutoff)
    session.screen.key("End", "Prior", "Prior", "Next", "Up", "KP_Add", "Down", "Left", "x", "Home", "Up")
    values = to_fence(session, Cutoff_head)
    assert values == [down[-1], 0, 16, 32, 16, 17, 18, 17, 127, 127], values


def display(session):
    """Shows the value for a second, then the name again, which is blank."""
    screen = session.screen
    screen.click(Cutoff)

    def value_shown():
        screen.key("Home")
        return screen.text("Tone name") == "99"

    wait_until(value_shown, "the value in the display")
    wait_until(lambda: screen.text("Tone name") == "", "the name in the display")
    to_fence(session, Cutoff_head)


def knob(session):
    """Four pixels to the right are a semitone; the first move jumps by the pointer's distance from the left edge."""
    path = list(range(4, 41, 3)) + list(range(40, 19, -2))
    session.screen.drag("DCO 1 tune", (2, 22), [(x, 22) for x in path])
    lowest_bytes = {0: 56, **{n: 68 + 4 * n for n in range(1, 7)}, 7: 96, **{n: 72 + 4 * n for n in range(8, 13)}}
    semitones = {lowest: n for n, lowest in lowest_bytes.items()}
    steps = [semitones[value] for value in to_fence(session, tone(13, 0)[:8])]
    assert steps[0] == 0 and steps[-1] == 5, steps
    check_drag(steps, lambda _, place: place, [0] + [round(x / 4) for x in path])
    assert session.screen.value("DCO 1 tune") == "plus 5 semitones"


def switch(session):
    for value in (64, 0):
        session.screen.click("VCA mode")
        session.wire.expect(tone(58, value))
    session.screen.key("Up", "Left", "Home")
    session.wire.expect(tone(58, 64), tone(58, 64), tone(58, 0))


def chord(session):
    session.screen.click("Play a chord")
    session.wire.expect(*(note(number, 90) for number in (60, 64, 67, 72)))
    session.screen.click("Play a chord", button=3)
    session.wire.expect(All_notes_off)


def main():
    with Session("first-sound", scale=2, screen=(2560, 2048)) as session:
        session.screenshot("start")
        slider(session)
        display(session)
        knob(session)
        switch(session)
        chord(session)
        session.screenshot("end")
        session.screen.menu("File", "Exit")
        assert session.screen.box() == "Save actual TONE first?"
        session.screen.answer("No")
        assert session.wait_for_end() == 0
        session.wire.expect(All_notes_off)


if __name__ == "__main__":
    main()
