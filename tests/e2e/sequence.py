"""A sequence drawn with the mouse, played at tempo 120, note for note on the wire."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, note

Strong, Soft = 127, 63
Top_note = 60  # of the range that is chosen at the start, C2..C3
Rows, Steps = 13, 8

# (step, row): velocity. A melody with a chord, a struck-again note and an empty step.
Drawn = {(0, 12): Strong, (1, 8): Strong, (2, 5): Soft, (2, 0): Strong, (3, 0): Soft, (5, 3): Strong, (6, 12): Soft,
         (7, 6): Strong}


def draw(screen):
    for (step, row), velocity in Drawn.items():
        screen.click("Note matrix", button=1 if velocity == Strong else 3, at=(step * 12 + 6, row * 12 + 6))
    # A second press of the same button takes a note away, another one changes it.
    screen.click("Note matrix", at=(4 * 12 + 6, 6))
    screen.click("Note matrix", at=(4 * 12 + 6, 6))
    screen.click("Note matrix", button=3, at=(12 + 6, 8 * 12 + 6))
    screen.click("Note matrix", button=1, at=(12 + 6, 8 * 12 + 6))


def step_messages(step):
    return [note(Top_note - row, Drawn.get((step, row), 0)) for row in range(Rows)]


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
        cycles = 3
        wire.wait_for(cycles * Steps * Rows)
        session.screenshot("playing")
        screen.click("Sequencer > Stop sequencer")
        played = wire.take_to(All_notes_off)
        wire.expect(All_notes_off, All_notes_off)  # both windows' stops and the close say so
        assert len(played) % Rows == 0 and len(played) >= cycles * Steps * Rows
        for step in range(len(played) // Rows):
            got = played[step * Rows:(step + 1) * Rows]
            assert got == step_messages(step % Steps), f"step {step}: {[message.hex(' ') for message in got]}"

        screen.click("Play a chord")  # with a sequence it plays the first step
        wire.expect(*step_messages(0))
        screen.menu("File", "Exit")
        assert screen.box() == "Save actual SEQUENCE first?"
        screen.answer("No")
        assert session.wait_for_end() == 0
        wait_until(lambda: wire.all()[-1][1] == All_notes_off, "the last word")


if __name__ == "__main__":
    main()
