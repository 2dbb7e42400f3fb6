"""A sequence and a curve drawn with the mouse. Played both at once, beside a slider dragged up and down, nothing is lost
or reordered; a display that goes leaves no note sounding."""

from harness.laws import check_slider, values_of
from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, note, tone

Strong, Soft = 127, 63
Top_note = 60  # of the range that is chosen at the start, C2..C3
Rows, Steps = 13, 8
# (step, row): velocity. A melody with a chord, a struck-again note and an empty step.
Drawn = {(0, 12): Strong, (1, 8): Strong, (2, 5): Soft, (2, 0): Strong, (3, 0): Soft, (5, 3): Strong, (6, 12): Soft,
         (7, 6): Strong}

Swept_head = tone(34, 0)[:8]
Double_ramp = [32, 39, 46, 53, 60, 67, 74, 81, 88] * 2
Square = [32] * 9 + [96] * 9
Border = 1  # of the curve's field
Drawn_step, Peak_height = 9, 100  # pixels inside the border

Decay = "Envelope 2 decay time"
Travel = (list(range(-1, -80, -1)) + list(range(-79, 0))) * 3  # 10 ms a pixel


def draw_sequence(screen):
    def press(step, row, button):
        screen.click("Note matrix", button, at=(step * 12 + 6, row * 12 + 6))

    for (step, row), velocity in Drawn.items():
        press(step, row, 1 if velocity == Strong else 3)
    # A second press of the same button takes a note away, another one changes it.
    for step, row, button in ((4, 0, 1), (4, 0, 1), (1, 8, 3), (1, 8, 1)):
        press(step, row, button)
    words = "step 1: C strong; step 2: E strong; step 3: G soft, upper C strong"
    wait_until(lambda: screen.value("Note matrix").startswith(words), words)
    while screen.number("Tempo, sequences a minute") < 120:
        screen.click("Tempo, sequences a minute", at=(112, 7))


def step_messages(step):
    return [note(Top_note - row, Drawn.get((step % Steps, row), 0)) for row in range(Rows)]


def check_sequence(played):
    assert len(played) % Rows == 0 and len(played) > 3 * Steps * Rows, len(played)
    for step in range(len(played) // Rows):
        got = played[step * Rows:(step + 1) * Rows]
        assert got == step_messages(step), f"step {step}: {[message.hex(' ') for message in got]}"


def stop_sweep(session):
    """Returns all that went out."""
    session.screen.click("Stop oscillator")
    session.screen.menu("MIDI", "Close MIDI Output")
    messages = session.wire.take_to(All_notes_off)
    session.wire.expect(All_notes_off)
    return messages


def check_sweep(messages, curve):
    values = values_of(messages, Swept_head)
    wanted = (curve * (len(values) // len(curve) + 1))[: len(values)]
    assert values == wanted, next(f"{values[at:at + 36]} at step {at}" for at, value in enumerate(values)
                                  if value != wanted[at])


def sweep(session, curve):
    session.screen.click("Start oscillator")
    session.wire.wait_for(len(curve) + 2)
    check_sweep(stop_sweep(session), curve)


def draw_while_it_plays(session, curve):
    """One step of the curve anew; returns the new curve. A hand's moves on the way to the last one may be skipped."""
    session.screen.click("Start oscillator")
    x = Border + 4 + 7 * Drawn_step
    session.screen.drag("Curve", (x - 1, Border + Peak_height), [(x, Border + Peak_height)])
    peak = 127 - Peak_height
    session.wire.take_to(tone(34, peak))
    stop_sweep(session)
    return [*curve[:Drawn_step], peak, *curve[Drawn_step + 1:]]


def play_all(session, curve):
    screen, wire = session.screen, session.wire
    screen.click("Sequencer > Start sequencer")
    screen.click("Start oscillator")
    screen.drag(Decay, (8, 0), [(8, height) for height in Travel])
    screen.click("Stop oscillator")
    screen.click("Sequencer > Stop sequencer")
    sent = wire.take_to(All_notes_off)
    wire.expect(All_notes_off, All_notes_off)  # both windows' stops and the close say so
    check_sequence([message for message in sent if len(message) == 3])
    swept = [message for message in sent if message[:8] == Swept_head]
    assert len(swept) > 3 * len(curve), f"{len(swept)} steps"
    check_sweep(swept, curve)
    dragged = values_of([message for message in sent if len(message) != 3 and message not in swept], tone(53, 0)[:8])
    check_slider(dragged, Travel)
    assert len(dragged) > 50 and screen.value(Decay) == str(dragged[-1] * 99 // 127)


def main():
    with Session("play") as session:
        screen, wire = session.screen, session.wire
        screen.menu("MIDI", "Sequencer...")
        wire.expect(All_notes_off)  # the choice of the range at the window's load
        draw_sequence(screen)
        screen.menu("MIDI", "Oscillator...")
        screen.choose("Target", "VCF Cutoff")
        screen.click("Step time in milliseconds", at=(7, 82), times=9)
        screen.wait_for("Oscillator > 50")
        sweep(session, Double_ramp)
        screen.click("Square")
        curve = draw_while_it_plays(session, Square)
        sweep(session, curve)
        assert screen.value("VCF cutoff frequency") == "0"  # the tone keeps its own value
        play_all(session, curve)

        screen.click("Play a chord")  # with a sequence it plays the first step
        wire.expect(*step_messages(0))
        screen.click("Start sequencer")
        screen.click("Start oscillator")
        wire.wait_for(60)
        screen.menu("File")
        session.end_at_once(lose_display=True)


main()
