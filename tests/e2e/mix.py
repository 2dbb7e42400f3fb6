"""Ten seconds of a slider dragged up and down beside the sequencer at its fastest: nothing lost, nothing reordered."""

from harness.laws import check_drag, slider_step, values_of
from harness.program import Session
from harness.wire import All_notes_off, note, tone

Cutoff = "VCF cutoff frequency"
Cutoff_head = tone(34, 0)[:8]
Cutoff_bottom = 112
Panel_keys_top = 223
Travel = list(range(-1, -80, -1)) + list(range(-79, 0))
Rounds = 6  # of the travel, 10 ms a pixel
Fast = {"MIDI": {"Sequence Preload": "1"}, "Recent Files": {"Sequences": "c:\\", "Sequence1": "C:\\FAST.SEQ"}}
Base_note = 48
Cells = [127 if (step + row) % 5 == 0 else 0 for step in range(8) for row in range(13)]


def main():
    session = Session("mix", settings=Fast)
    (session.machine.home / "fast.seq").write_bytes(b"SEQ1" + bytes([120, Base_note]) + bytes(Cells))
    with session:
        screen, wire = session.screen, session.wire
        panel_top = screen.place("Play a chord")[1] - Panel_keys_top
        screen.click("Start sequencer")
        _, cap_top = screen.drag(Cutoff, (8, 0), [(8, height) for height in Travel * Rounds])
        session.screenshot("running")
        screen.click("Stop sequencer")
        messages = wire.take_to(All_notes_off)
        wire.expect(All_notes_off)

        notes = [message for message in messages if len(message) == 3]
        wanted = [note(Base_note + 12 - index % 13, Cells[index % 104]) for index in range(len(notes))]
        assert notes == wanted, "the sequence"
        assert len(notes) > 13 * 30

        values = values_of([message for message in messages if len(message) != 3], Cutoff_head)
        grip = cap_top - panel_top
        check_drag(values, slider_step(Cutoff_bottom), [grip] + [grip + height for height in Travel * Rounds])
        assert len(values) > 100 and screen.value(Cutoff) == str(values[-1] * 99 // 127)
        assert session.interrupt() == 0


if __name__ == "__main__":
    main()
