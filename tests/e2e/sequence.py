"""A sequence drawn with the mouse, played at tempo 120 beside a slider dragged up and down: note for note on the wire,
nothing lost, nothing reordered."""

from harness.laws import check_drag, drag_slider, slider_step, values_of
from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, note, tone

Strong, Soft = 127, 63
Top_note = 60  # of the range that is chosen at the start, C2..C3
Rows, Steps = 13, 8
Cutoff, Cutoff_bottom = "VCF cutoff frequency", 112
Travel = (list(range(-1, -80, -1)) + list(range(-79, 0))) * 3  # 10 ms a pixel

# (step, row): velocity. A melody with a chord, a struck-again note and an empty step.
Drawn = {(0, 12): Strong, (1, 8): Strong, (2, 5): Soft, (2, 0): Strong, (3, 0): Soft, (5, 3): Strong, (6, 12): Soft,
         (7, 6): Strong}


def draw(screen):
    def press(step, row, button):
        screen.click("Note matrix", button, at=(step * 12 + 6, row * 12 + 6))

    for (step, row), velocity in Drawn.items():
        press(step, row, 1 if velocity == Strong else 3)
    # A second press of the same button takes a note away, another one changes it.
    for step, row, button in ((4, 0, 1), (4, 0, 1), (1, 8, 3), (1, 8, 1)):
        press(step, row, button)


def step_messages(step):
    return [note(Top_note - row, Drawn.get((step % Steps, row), 0)) for row in range(Rows)]


def main():
    with Session("sequence") as session:
        screen, wire = session.screen, session.wire
        screen.menu("MIDI", "Sequencer...")
        screen.wait_for("Note matrix")
        wire.expect(All_notes_off)  # the choice of the range at the window's load
        draw(screen)
        while screen.number("Tempo, sequences a minute") < 120:
            screen.click("Tempo, sequences a minute", at=(112, 7))
        words = "step 1: C strong; step 2: E strong; step 3: G soft, upper C strong"
        assert screen.value("Note matrix").startswith(words), screen.value("Note matrix")
        session.screenshot("drawn")

        screen.click("Sequencer > Start sequencer")
        path = drag_slider(screen, Cutoff, Travel)
        session.screenshot("playing")
        screen.click("Sequencer > Stop sequencer")
        sent = wire.take_to(All_notes_off)
        wire.expect(All_notes_off, All_notes_off)  # both windows' stops and the close say so
        played = [message for message in sent if len(message) == 3]
        assert len(played) % Rows == 0 and len(played) > 3 * Steps * Rows
        for step in range(len(played) // Rows):
            got = played[step * Rows:(step + 1) * Rows]
            assert got == step_messages(step), f"step {step}: {[message.hex(' ') for message in got]}"
        values = values_of([message for message in sent if len(message) != 3], tone(34, 0)[:8])
        check_drag(values, slider_step(Cutoff_bottom), path)
        assert len(values) > 50 and screen.value(Cutoff) == str(values[-1] * 99 // 127)

        screen.click("Play a chord")  # with a sequence it plays the first step
        wire.expect(*step_messages(0))
        screen.menu("File", "Exit")
        for what in ("TONE", "SEQUENCE"):
            assert screen.box() == f"Save actual {what} first?"
            screen.answer("No")
        assert session.wait_for_end() == 0
        wait_until(lambda: wire.all()[-1][1] == All_notes_off, "the last word")


if __name__ == "__main__":
    main()
