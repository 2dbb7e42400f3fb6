"""A whole session by keys alone: set up, tone, patch, oscillator, sequencer, files, help and the last question."""

from harness.machine import wait_until
from harness.program import Session
from harness.screen import Atspi
from harness.wire import All_notes_off, dump, empty_record, note, patch, tone, tone_file


class Keys:
    def __init__(self, session):
        self.session, self.screen, self.wire = session, session.screen, session.wire
        self.record = empty_record("KEYS")

    def focused(self, name):
        return self.screen._find(lambda node: node.get_name() == name and
                                 node.get_state_set().contains(Atspi.StateType.FOCUSED))

    def go_to(self, name, key="Tab", most=60):
        """Tab by Tab, as a hand does who hears where it is."""
        self.screen.wait_for(name)
        for _ in range(most):
            if self.focused(name):
                return
            self.screen.key(key)
        wait_until(lambda: self.focused(name), f"the focus on {name}", patience_s=5)

    def menu(self, *keys):
        self.screen.key(f"alt+{keys[0]}")
        for key in keys[1:]:
            self.screen.key(key)

    def answer(self, text, button, key):
        """button: the one that has the focus as soon as the box takes keys."""
        wait_until(lambda: (self.screen._box_text() or "").startswith(text) and self.focused(button), text)
        self.screen.key(key)

    def set_up(self):
        for kind in ("output", "input"):
            self.answer(f"MIDI {kind} device not configured - starting MIDI setup.", "OK", "Return")
        for kind, device in (("output", "synth:in"), ("input", "synth:out")):
            self.go_to(f"MIDI {kind} device")
            self.screen.type(device)
            wait_until(lambda: self.screen.value(f"MIDI {kind} device") == device, device)
        self.screen.key("Return")
        self.answer("Please don't forget to enable the MIDI System Exclusive (SysEx)", "OK", "Return")

    def panel(self):
        self.go_to("VCF cutoff frequency")
        self.screen.key("Home", "Next")
        self.wire.take_to(tone(34, 127))  # a knob on the way sends itself again at Tab
        self.wire.expect(tone(34, 111))
        self.go_to("DCO 1 range", "shift+Tab")
        self.screen.key("Up")
        self.wire.take_to(tone(11, 32))
        self.go_to("DCO 1 tune")
        self.screen.key("Right")
        self.wire.expect(tone(13, 72))
        self.record[34], self.record[11], self.record[13], self.record[10] = 111, 32, 72, ord(" ")
        self.menu("t", "n")
        self.screen.wait_for("Name of the tone")
        self.screen.type("keys")
        self.screen.key("Return")
        self.wire.wait_for(1)
        self.wire.skip()

    def patch(self):
        self.menu("t", "p")
        self.go_to("Portamento")
        self.screen.key("Up")
        self.wire.take_to(patch(2, 64))
        self.go_to("Key mode poly 1")
        self.screen.key("Down")
        self.wire.take_to(patch(3, 1))
        self.screen.key("Escape")
        self.screen.wait_for_end_of("Portamento time")

    def oscillator(self):
        self.menu("m", "i")
        self.go_to("Square")
        self.screen.key("space")
        self.go_to("Start oscillator")
        self.screen.key("space")
        self.wire.take_to(tone(14, 32))
        self.go_to("Stop oscillator")
        self.screen.key("space", "ctrl+c")
        self.wire.take_to(All_notes_off)
        self.wire.expect(All_notes_off)

    def sequencer(self):
        self.screen.key("ctrl+u")
        self.wire.expect(All_notes_off)
        self.go_to("Start sequencer")
        self.session.screenshot("focus")
        self.screen.key("space")
        self.wire.expect(*(note(60 - row, 0) for row in range(13)))
        self.go_to("Stop sequencer")
        self.screen.key("space")
        self.wire.take_to(All_notes_off)

    def files(self):
        self.menu("f", "t", "a")
        self.go_to("File name")
        self.screen.type("keys")
        self.screen.key("Return")
        self.answer("File exists: c:\\keys.syx Overwrite?", "Yes", "Escape")
        file = self.session.machine.home / "keys.syx"
        assert file.read_bytes() == tone_file(self.record, (0, 0, 64, 1, 0, 0, 64))

    def help(self):
        self.screen.key("F1")
        self.go_to("Topics")
        self.screen.key("Home")
        wait_until(lambda: self.screen.text("Description of the topic"), "a description")
        self.screen.key("Escape")
        self.screen.wait_for_end_of("Topics")

    def close(self):
        self.go_to("LFO rate")
        self.screen.key("Up")
        self.menu("f", "x")
        self.answer("Save actual TONE first?", "Yes", "alt+n")
        assert self.session.wait_for_end() == 0


def main():
    with Session("keyboard", configured=False) as session:
        keys = Keys(session)
        for act in (keys.set_up, keys.panel, keys.patch, keys.oscillator, keys.sequencer, keys.files, keys.help,
                    keys.close):
            act()


if __name__ == "__main__":
    main()
