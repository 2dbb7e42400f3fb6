"""Curves of the oscillator, drawn by rule and by hand, on the wire as values of the filter's cutoff."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, tone

Cutoff_index = 34
Double_ramp = [32, 39, 46, 53, 60, 67, 74, 81, 88] * 2
Square = [32] * 9 + [96] * 9
Border = 1  # of the curve's field
Flat_height = 20  # of the hand-drawn line, pixels inside the border
Peak_height = 100


def play(session, cycles=2):
    """Starts the sweep, lets some cycles pass and stops it; returns all values that went out."""
    screen, wire = session.screen, session.wire
    screen.click("Start oscillator")
    wire.wait_for(cycles * 18)
    screen.click("Stop oscillator")
    screen.menu("MIDI", "Close MIDI Output")
    messages = wire.take_to(All_notes_off)
    wire.expect(All_notes_off)
    head = tone(Cutoff_index, 0)[:8]
    assert all(message[:8] == head and len(message) == 10 for message in messages)
    return [message[8] for message in messages]


def check(values, curve):
    wanted = (curve * (len(values) // len(curve) + 1))[: len(values)]
    assert values == wanted, f"{values}\nwanted\n{wanted}"


def main():
    with Session("sweep") as session:
        screen = session.screen
        screen.menu("MIDI", "Oscillator...")
        screen.choose("Target", "VCF Cutoff")
        for _ in range(9):  # presses below the thumb, 50 ms each
            screen.click("Step time in milliseconds", at=(7, 82))
        screen.wait_for("Oscillator > 50")  # the label below the bar

        check(play(session), Double_ramp)
        screen.click("Square")
        check(play(session), Square)
        session.screenshot("square")

        height = Border + Flat_height
        screen.drag("Curve", (1, height), [(Border + 4 + 7 * step, height) for step in range(18)])
        session.screenshot("drawn")
        check(play(session), [127 - Flat_height] * 18)

        # One step at a time while it plays.
        screen.click("Start oscillator")
        x = Border + 4 + 7 * 9
        screen.drag("Curve", (x - 1, Border + Peak_height), [(x, Border + Peak_height)])
        session.wire.take_to(tone(Cutoff_index, 127 - Peak_height))
        screen.click("Stop oscillator")
        screen.menu("MIDI", "Close MIDI Output")
        session.wire.take_to(All_notes_off)
        session.wire.expect(All_notes_off)
        drawn = [127 - Flat_height] * 18
        drawn[9] = 127 - Peak_height
        check(play(session), drawn)
        assert screen.value("VCF cutoff frequency") == "0"  # the tone keeps its own value
        assert session.interrupt() == 0
        wait_until(lambda: session.wire.all()[-1][1] == All_notes_off, "the last word")


if __name__ == "__main__":
    main()
