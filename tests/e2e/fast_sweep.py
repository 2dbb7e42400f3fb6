"""Ten seconds of a sweep at 1 ms a step with a slider dragged beside it: the slider is heard to its last value, memory
stays, and Stop stops it."""

import pathlib

from harness.laws import check_drag, slider_step, values_of
from harness.program import Session
from harness.wire import All_notes_off, tone

Decay = "Envelope 2 decay time"
Decay_bottom = 437
Decay_head = tone(53, 0)[:8]
Swept_head = tone(34, 0)[:8]
Lower_panel = ("LFO rate", 437)  # an element that no window covers, and its place on the panel
Travel = list(range(-1, -80, -1)) + list(range(-79, 0))
Rounds = 6  # of the travel, 10 ms a pixel
Curve = {32, 39, 46, 53, 60, 67, 74, 81, 88}
Growth_kb = 1024


def resident_kb(process):
    lines = pathlib.Path(f"/proc/{process.pid}/status").read_text().splitlines()
    return int(next(line.split()[1] for line in lines if line.startswith("VmRSS")))


def set_step_time_to_1_ms(screen):
    for _ in range(9):
        screen.click("Step time in milliseconds", at=(7, 82))
    screen.wait_for("Oscillator > 50")  # the label below the bar
    for _ in range(49):
        screen.click("Step time in milliseconds", at=(7, 93))
    screen.wait_for("Oscillator > 1")


def main():
    with Session("fast-sweep") as session:
        screen, wire = session.screen, session.wire
        panel_top = screen.place(Lower_panel[0])[1] - Lower_panel[1]
        screen.menu("MIDI", "Oscillator...")
        screen.choose("Target", "VCF Cutoff")
        set_step_time_to_1_ms(screen)

        screen.click("Start oscillator")
        wire.wait_for(1000)
        before_kb = resident_kb(session.process)
        _, cap_top = screen.drag(Decay, (8, 0), [(8, height) for height in Travel * Rounds])
        after_kb = resident_kb(session.process)
        session.screenshot("sweeping")
        screen.click("Stop oscillator")
        screen.menu("MIDI", "Close MIDI Output")
        messages = wire.take_to(All_notes_off)
        wire.expect(All_notes_off)

        swept = values_of([message for message in messages if message[:8] == Swept_head], Swept_head)
        assert len(swept) > 2000 and set(swept) == Curve, f"{len(swept)} steps"
        dragged = values_of([message for message in messages if message[:8] != Swept_head], Decay_head)
        grip = cap_top - panel_top
        check_drag(dragged, slider_step(Decay_bottom), [grip] + [grip + height for height in Travel * Rounds])
        assert screen.value(Decay) == str(dragged[-1] * 99 // 127)
        assert after_kb - before_kb < Growth_kb, f"memory grew by {after_kb - before_kb} kB"
        assert session.interrupt() == 0


if __name__ == "__main__":
    main()
