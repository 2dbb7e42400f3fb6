"""A musician's evening, nearly all by keys: a first start, a sound made, named, varied, undone and saved, the windows
tried, help looked up; and all of it back the next day, when the files are heard by a click and one is opened."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, Fresh_patch, dump, empty_record, note, numbered, patch, tone, tone_file

Tabs = 60  # more than any window has
Cutoff = "VCF cutoff frequency"


class Evening:
    def __init__(self, session):
        self.session, self.screen, self.wire = session, session.screen, session.wire
        self.record = empty_record()
        self.patch = [*Fresh_patch]

    def go_to(self, name):
        """Tab by Tab, as a hand does who hears where it is."""
        self.screen.wait_for(name)
        at = self.screen.focus()
        for _ in range(Tabs):
            if at == name:
                return
            self.screen.key("Tab")
            at = self.screen.focus(left=at)
        raise AssertionError(f"no Tab leads to {name}")

    def press(self, name):
        self.go_to(name)
        self.screen.key("space")

    def answer(self, text, button, key):
        """button: the one that has the focus as soon as the box takes keys."""
        wait_until(lambda: self.screen.box().startswith(text) and self.screen.focus() == button, text)
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

    def edit(self):
        self.go_to("DCO 1 tune")
        self.screen.key("Right")
        self.wire.expect(tone(13, 72))
        self.go_to(Cutoff)
        self.screen.key("Home", "Next")
        self.wire.expect(tone(34, 127), tone(34, 111))
        self.screen.click("DCO 1 range")
        self.screen.key("Up")
        self.wire.expect(tone(11, 32))
        self.record[34], self.record[11], self.record[13] = 111, 32, 72

    def name(self):
        """28 bytes that end in 0F, and nothing from the panel, which is locked meanwhile."""
        self.screen.click("Tone name")
        self.screen.wait_for("Name of the tone")
        self.screen.click(Cutoff)
        self.screen.type("evening pad 12")
        self.screen.key("Return")
        self.screen.wait_for_end_of("Name of the tone")
        self.record[:11] = b"EVENING PA "
        self.wire.expect(tone(0, 0)[:7] + numbered(self.record[:10]) + b"\x0F")
        assert self.screen.text("Tone name") == "EVENING PA"

    def patch_window(self):
        """Nothing on the way there is a key of the knob or of the sliders."""
        self.screen.click("VCA dynamics")
        self.screen.key("shift+Tab", "shift+Tab")
        self.go_to("DCO 1 tune")
        self.screen.key("Control_L", "Shift_L", "Super_L", "ISO_Level3_Shift", "alt+t", "p")
        self.go_to("Portamento")
        self.screen.key("Up")
        self.wire.expect(patch(2, 64))
        self.screen.click("After touch volume")
        self.wire.expect(patch(4, 4))
        self.patch[2], self.patch[4] = 64, 4
        self.screen.key("Escape")
        self.screen.wait_for_end_of("After touch volume")

    def random_and_undo(self):
        self.screen.key("ctrl+r")
        wait_until(lambda: self.screen.text("Tone name") == "RANDOM", "a random tone")
        self.wire.wait_for(1)
        self.wire.skip()
        self.screen.key("alt+e", "u")
        self.wire.expect(dump(self.record, self.patch))

    def oscillator(self):
        self.screen.key("alt+m", "i")
        self.press("Square")
        self.press("Start oscillator")
        self.wire.take_to(tone(14, 32))
        self.press("Stop oscillator")
        self.screen.key("ctrl+c")
        self.wire.take_to(All_notes_off)
        self.wire.expect(All_notes_off)

    def sequencer(self):
        self.screen.key("ctrl+u")
        self.wire.expect(All_notes_off)
        self.press("Start sequencer")
        self.wire.expect(*(note(60 - row, 0) for row in range(13)))
        self.press("Stop sequencer")
        self.wire.take_to(All_notes_off)

    def save_as(self, name):
        self.screen.key("alt+f", "t", "a")
        self.type_name(name)

    def type_name(self, name):
        self.go_to("File name")
        self.screen.key("ctrl+a")
        self.screen.type(name)
        self.screen.key("Return")

    def save(self):
        self.save_as("first")
        # The dialog has written the file; the command behind it asks about it once more.
        self.answer("File exists: c:\\first.syx Overwrite?", "Cancel", "Return")
        self.screen.focus(left="Cancel")
        assert self.file("first").read_bytes() == tone_file(self.record, self.patch)

    def save_under_another_name(self):
        """The first name is declined. The sound is in the second file, and by Undo in the editor, with its file."""
        before = tone_file(self.record, self.patch)
        self.screen.click(Cutoff)
        self.screen.key("End")
        self.record[34] = 0
        self.save_as("first")
        self.answer("File exists: c:\\first.syx Overwrite?", "No", "Return")
        self.type_name("second")
        self.answer("File exists: c:\\second.syx Overwrite?", "Cancel", "Return")
        self.screen.focus(left="Cancel")
        assert self.file("first").read_bytes() == before
        assert self.file("second").read_bytes() == tone_file(self.record, self.patch)
        self.screen.wait_for_title("MELVOR - SECOND.SYX*")
        self.wire.skip()
        self.screen.key("ctrl+z")
        self.wire.expect(dump(self.record, self.patch))
        self.screen.wait_for_title("MELVOR - SECOND.SYX")

    def keep_a_bank(self):
        """Save would write over the head of its second tone: it asks, and Enter says No."""
        bank = b"".join(tone_file(empty_record(name))[:67] for name in ("ONE", "TWO"))
        self.file("bank").write_bytes(bank)
        self.screen.key("ctrl+o")
        self.type_name("bank")
        self.answer("File contains another TONE. Save old TONE first?", "Yes", "alt+n")
        wait_until(lambda: self.screen.text("Tone name") == "TWO", "the second tone")
        self.screen.wait_for_end_of("File name")
        self.screen.key("ctrl+s")
        self.answer("File contains another TONE: ", "No", "Return")
        self.screen.focus(left="No")
        assert self.file("bank").read_bytes() == bank
        self.screen.wait_for_title("MELVOR - C:\\BANK.SYX*")
        self.screen.key("ctrl+o")
        self.screen.wait_for("File name")
        self.screen.key("Escape")
        self.screen.wait_for_end_of("File name")
        self.screen.wait_for_title("MELVOR - C:\\BANK.SYX*")

    def file(self, name):
        return self.session.machine.home / f"{name}.syx"

    def help(self):
        for keys, what in ((["F1"], "Topics"), (["alt+h", "h"], "Examples of the control elements"),
                           (["alt+h", "a"], "Informations")):
            self.screen.key(*keys)
            self.screen.wait_for(what)
            self.screen.key("Escape")
            self.screen.wait_for_end_of(what)

    def close(self):
        self.screen.click("LFO rate")
        self.screen.key("alt+F4")
        self.answer("Save actual TONE first?", "Yes", "Escape")
        self.screen.focus(left="Yes")
        self.screen.key("alt+f", "x")
        self.answer("Save actual TONE first?", "Yes", "alt+n")
        assert self.session.wait_for_end() == 0


def next_day(session, evening):
    kept = session.settings()
    assert (kept["MIDI"]["Output"], kept["MIDI"]["Input"]) == ("synth:in", "synth:out"), kept["MIDI"]
    session.start()
    session.wire.skip()
    session.screen.menu("File", "Tone", f"2 {kept['Recent Files']['Tone2'].upper()}")
    second = dump(evening.record, evening.patch)
    session.wire.expect(dump(evening.record), second)
    listen(session, dump({**dict(enumerate(evening.record)), 34: 111}.values(), evening.patch), second)
    session.screen.menu("File", "Tone", "Open...")
    session.screen.wait_for("Files")
    assert session.interrupt() == 0  # which finds the dialog open
    assert session.settings()["Recent Files"]["Tone1"].upper() == "C:\\SECOND.SYX"


def listen(session, first, second):
    """The notes before end, and the tone goes out behind each of the file's two messages."""
    session.screen.menu("File", "Tone", "Open...")
    session.screen.click_row("Files", "first.syx")
    session.wire.expect(All_notes_off, first, first, note(24, 80))
    session.screen.click_row("Files", "second.syx", times=2)
    session.wire.expect(All_notes_off, second, second, second, second, All_notes_off)
    session.screen.wait_for_end_of("Files")


def main():
    with Session("evening", configured=False) as session:
        before = session.settings_file.read_text()
        session.screen.box()
        assert session.interrupt() == 0
        assert session.settings_file.read_text() == before  # it was not all read yet
        session.start(wait_for_panel=False)
        evening = Evening(session)
        for act in (evening.set_up, evening.edit, evening.name, evening.patch_window, evening.random_and_undo,
                    evening.oscillator, evening.sequencer, evening.save, evening.save_under_another_name,
                    evening.keep_a_bank, evening.help, evening.close):
            act()
        next_day(session, evening)


main()
