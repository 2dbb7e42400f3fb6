"""Curves of the oscillator, drawn by rule and by hand, on the wire as values of the filter's cutoff; at 1 ms a step
beside a dragged slider they keep their order, and memory stays."""

import pathlib

from harness.laws import check_drag, drag_slider, slider_step, values_of
from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, tone

Swept_head = tone(34, 0)[:8]
Double_ramp = [32, 39, 46, 53, 60, 67, 74, 81, 88] * 2
Square = [32] * 9 + [96] * 9
Border = 1  # of the curve's field
Flat_height = 20  # of the hand-drawn line, pixels inside the border
Peak_height = 100
Decay, Decay_bottom = "Envelope 2 decay time", 437
Travel = (list(range(-1, -80, -1)) + list(range(-79, 0))) * 3  # 10 ms a pixel
Growth_kb = 1024


def set_step_time(screen, milliseconds, presses, below_thumb):
    screen.click("Step time in milliseconds", at=(7, below_thumb), times=presses)
    screen.wait_for(f"Oscillator > {milliseconds}")  # the label below the bar


def stop(session):
    """Stops the sweep; returns all that went out."""
    session.screen.click("Stop oscillator")
    session.screen.menu("MIDI", "Close MIDI Output")
    messages = session.wire.take_to(All_notes_off)
    session.wire.expect(All_notes_off)
    return messages


def check(messages, curve):
    values = values_of(messages, Swept_head)
    wanted = (curve * (len(values) // len(curve) + 1))[: len(values)]
    assert values == wanted, f"{values}\nwanted\n{wanted}"


def play(session, curve):
    session.screen.click("Start oscillator")
    session.wire.wait_for(len(curve) + 2)
    check(stop(session), curve)


def draw_while_it_plays(session):
    """One step at a time. Returns the curve."""
    session.screen.click("Start oscillator")
    x = Border + 4 + 7 * 9
    session.screen.drag("Curve", (x - 1, Border + Peak_height), [(x, Border + Peak_height)])
    session.wire.take_to(tone(34, 127 - Peak_height))
    stop(session)
    return [127 - Flat_height] * 9 + [127 - Peak_height] + [127 - Flat_height] * 8


def resident_kb(process):
    lines = pathlib.Path(f"/proc/{process.pid}/status").read_text().splitlines()
    return int(next(line.split()[1] for line in lines if line.startswith("VmRSS")))


def play_fast(session, curve):
    screen, wire = session.screen, session.wire
    set_step_time(screen, 1, 49, 93)
    screen.click("Start oscillator")
    wire.wait_for(1000)
    before_kb = resident_kb(session.process)
    path = drag_slider(screen, Decay, Travel)
    grown_kb = resident_kb(session.process) - before_kb
    messages = stop(session)
    swept = [message for message in messages if message[:8] == Swept_head]
    assert len(swept) > 2000, f"{len(swept)} steps"
    check(swept, curve)
    dragged = values_of([message for message in messages if message[:8] != Swept_head], tone(53, 0)[:8])
    check_drag(dragged, slider_step(Decay_bottom), path)
    assert screen.value(Decay) == str(dragged[-1] * 99 // 127)
    assert grown_kb < Growth_kb, f"memory grew by {grown_kb} kB"


def main():
    with Session("sweep") as session:
        screen = session.screen
        screen.menu("MIDI", "Oscillator...")
        screen.choose("Target", "VCF Cutoff")
        set_step_time(screen, 50, 9, 82)
        play(session, Double_ramp)
        screen.click("Square")
        play(session, Square)
        session.screenshot("square")

        height = Border + Flat_height
        screen.drag("Curve", (1, height), [(Border + 4 + 7 * step, height) for step in range(18)])
        session.screenshot("drawn")
        play(session, [127 - Flat_height] * 18)
        curve = draw_while_it_plays(session)
        play(session, curve)
        assert screen.value("VCF cutoff frequency") == "0"  # the tone keeps its own value
        play_fast(session, curve)
        assert session.interrupt() == 0
        wait_until(lambda: session.wire.all()[-1][1] == All_notes_off, "the last word")


if __name__ == "__main__":
    main()
