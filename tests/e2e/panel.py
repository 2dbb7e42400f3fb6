"""Sliders, lights and display of the panel, moved by a real mouse and real keys, byte for byte on the wire and as
the screen shows them; at two pixels a point. An order to end answers the question about the changed tone."""

from harness.laws import check_slider, slider_height, values_of
from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, empty_record, tone, tone_file

Cutoff = "VCF cutoff frequency"
Envelopes = [f"Envelope {number} {stage}" for number in (1, 2)
             for stage in ("attack time", "decay time", "sustain level", "release time")]
Key_modes = ["poly 1", "unison 1", "solo 1", "poly 2", "unison 2", "solo 2"]
Lit_tone = "C:\\LIGHTS.SYX"


def to_fence(session, index):
    """The parameter's values that went out up to now. The little keyboard's right button marks the end."""
    session.screen.click("Play a chord", button=3)
    return values_of(session.wire.take_to(All_notes_off), tone(index, 0)[:8])


def drag_cutoff(session, path):
    """path: heights below the cap's upper edge."""
    screen = session.screen
    _, top = screen.drag(Cutoff, (8, 0), [(8, height) for height in path])
    values = to_fence(session, 34)
    check_slider(values, path)
    assert screen.value(Cutoff) == str(values[-1] * 99 // 127)
    assert screen.place(Cutoff)[1] - top == slider_height(values[0]) - slider_height(values[-1])
    return values


def slider(session):
    up = drag_cutoff(session, range(-1, -62, -2))
    assert up[0] == 0 and up == sorted(up) and 90 < up[-1] < 127, up
    down = drag_cutoff(session, range(1, 31))
    assert down[0] == up[-1] and down == sorted(down, reverse=True) and 40 < down[-1] < 70, down

    # The drag has left the focus on the slider; the fence has taken it away.
    session.screen.click(Cutoff)
    session.screen.key("End", "Prior", "Prior", "Next", "Up", "KP_Add", "Down", "Left", "x", "Home", "Up")
    values = to_fence(session, 34)
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
    to_fence(session, 34)


def marks(session):
    """Of eight sliders the one with the focus blinks, and none any more once the little keyboard has it."""
    screen = session.screen
    rest = {name: screen.pixels(name) for name in Envelopes}
    for name in Envelopes:
        screen.click(name)
        wait_until(lambda: screen.pixels(name) != rest[name], f"the blink of {name}")
        screen.click("Play a chord", button=3)
        session.wire.take_to(All_notes_off)
        wait_until(lambda: screen.pixels(name) == rest[name], f"{name} at rest")
    while screen.text("Tone name"):  # the value of the last one stays for a second
        assert screen.pixels(name) == rest[name], name
    assert {name: screen.pixels(name) for name in Envelopes} == rest


def lights(session):
    """A tone lights another one than that which was chosen last. A group shows one, or none while that one blinks."""
    screen = session.screen
    screen.menu("Tone", "Patch...")
    dark = screen.pixels("Key mode solo 1")
    screen.click("Key mode solo 1")
    wait_until(lambda: screen.pixels("Key mode solo 1") != dark, "the light")
    screen.menu("File", "Tone", f"1 {Lit_tone}")
    wait_until(lambda: screen.text("Tone name") == "LIGHTS", "the tone")

    def lit():
        return [mode for mode in Key_modes if screen.pixels(f"Key mode {mode}") != dark]

    blinking = []
    wait_until(lambda: blinking.append(lit()) or {(), ("unison 2",)} <= {*map(tuple, blinking)}, lambda: blinking)
    assert all(modes in ([], ["unison 2"]) for modes in blinking), blinking
    screen.key("Tab")
    assert screen.focus() == "After touch off" and lit() == ["unison 2"], lit()
    screen.key("Escape")
    screen.click("Play a chord", button=3)
    session.wire.take_to(All_notes_off)


def main():
    session = Session("panel", {"Recent Files": {"Tone1": Lit_tone}}, scale=2, screen=(2560, 2048))
    (session.machine.home / "lights.syx").write_bytes(tone_file(empty_record("LIGHTS"), (0, 0, 0, 5, 0, 0, 64)))
    with session:
        marks(session)
        slider(session)
        display(session)
        lights(session)
        session.screen.menu("File", "Exit")
        assert session.screen.box() == "Save actual TONE first?"
        session.end_at_once()


main()
