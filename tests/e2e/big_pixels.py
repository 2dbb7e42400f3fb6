"""The panel at two pixels a point: all of it there, and worked in the same way."""

from harness.laws import check_drag, slider_step, slider_top, values_of
from harness.program import Session
from harness.wire import All_notes_off, tone

Cutoff = "VCF cutoff frequency"
Cutoff_bottom = 112
Panel_keys_top = 223
Heights = list(range(-1, -40, -1))


def main():
    with Session("big-pixels", scale=2, screen=(2560, 2048)) as session:
        screen, wire = session.screen, session.wire
        session.screenshot("start")
        panel_top = screen.place("Play a chord")[1] - Panel_keys_top
        _, cap_top = screen.drag(Cutoff, (8, 0), [(8, height) for height in Heights])
        screen.click("Play a chord", button=3)
        values = values_of(wire.take_to(All_notes_off), tone(34, 0)[:8])
        grip = cap_top - panel_top
        check_drag(values, slider_step(Cutoff_bottom), [grip] + [grip + height for height in Heights])
        assert values[-1] > 50 and screen.place(Cutoff)[1] - panel_top == slider_top(Cutoff_bottom, values[-1])
        session.screenshot("dragged")
        assert session.interrupt() == 0


if __name__ == "__main__":
    main()
