"""A musician's evening: first start, a sound made, named, varied and saved, help looked up, and all of it back the next
day."""

from harness.machine import wait_until
from harness.program import Reminder, Session
from harness.wire import All_notes_off, dump, empty_record, patch, tone, tone_file

Cutoff = "VCF cutoff frequency"
Cutoff_index = 34
Name_prompt = "Please enter a name for the Tone:"


class Evening:
    def __init__(self, session):
        self.session, self.screen, self.wire = session, session.screen, session.wire
        self.station = session.screenshot
        self.record = empty_record()
        self.patch = [0, 0, 0, 0, 0, 0, 64]

    def check_tone(self):
        """The instrument's picture of the sound is the one that this scenario keeps."""
        self.screen.menu("Tone", "Send")
        self.wire.expect(dump(self.record, self.patch))

    def set_up(self):
        for kind in ("output", "input"):
            assert self.screen.box() == f"MIDI {kind} device not configured - starting MIDI setup."
            self.station(f"no-{kind}")
            self.screen.answer("OK")
        self.screen.wait_for("OK")
        for port in ("synth:in", "synth:out"):
            self.screen.key("Tab")
            self.screen.type(port)
        wait_until(lambda: self.screen.value("MIDI input device") == "synth:out", "the choice")
        self.station("setup")
        self.screen.click("OK")
        assert self.screen.box().startswith(Reminder)
        self.station("reminder")
        self.screen.answer("OK")

    def edit(self):
        self.screen.click(Cutoff)
        self.wire.expect(tone(Cutoff_index, 0))
        self.screen.key("Home", "Next")
        self.wire.expect(tone(Cutoff_index, 127), tone(Cutoff_index, 111))
        self.screen.click("DCO 1 range")
        self.screen.key("Up", "Up")
        self.wire.expect(tone(11, 32), tone(11, 64))
        self.record[Cutoff_index], self.record[11] = 111, 64
        self.station("edited")

    def name(self, typed):
        """28 bytes that end in 0F, and nothing from the panel, which is locked meanwhile."""
        self.screen.menu("Tone", "Name...")
        self.screen.wait_for(Name_prompt)
        self.screen.click(Cutoff)
        self.screen.type(typed)
        self.screen.key("Return")
        self.screen.wait_for_end_of(Name_prompt)
        self.record[:11] = typed[:10].upper().encode() + b" "
        pairs = bytes(byte for pair in enumerate(self.record[:10]) for byte in pair)
        self.wire.expect(tone(0, 0)[:7] + pairs + b"\x0F")
        self.screen.click("Tone name")  # opens the window too
        self.screen.wait_for(Name_prompt)
        self.screen.type("OTHER")
        self.screen.key("Escape")
        self.screen.wait_for_end_of(Name_prompt)
        assert self.screen.text("Tone name") == typed[:10].upper()
        self.station("named")

    def patch_window(self):
        self.screen.menu("Tone", "Patch...")
        self.screen.click("After touch volume")
        self.wire.expect(patch(4, 4))
        self.screen.click("Portamento")
        self.wire.expect(patch(2, 64))
        self.patch[4], self.patch[2] = 4, 64
        self.station("patch")
        self.screen.key("Escape")
        self.screen.wait_for_end_of("After touch volume")
        self.check_tone()

    def random_and_undo(self):
        self.screen.menu("Tone", "Random")
        wait_until(lambda: self.screen.text("Tone name") == "RANDOM", "a random tone")
        self.station("random")
        self.wire.wait_for(1)
        self.wire.skip()
        self.screen.menu("Edit", "Undo")
        self.wire.expect(dump(self.record, self.patch))
        self.check_tone()

    def save(self, name):
        self.screen.menu("File", "Tone", "Save as...")
        self.screen.wait_for("Files")
        self.screen.type(name)
        self.station("save-as")
        self.screen.key("Return")
        assert self.screen.box() == f"File exists: c:\\{name}.syx Overwrite?"
        self.screen.answer("Cancel")
        file = self.session.machine.home / f"{name}.syx"
        assert file.read_bytes() == tone_file(self.record, self.patch)
        # The dialog leaves the undo copies in the editor; they are those from before the random tone.
        self.wire.expect(dump(self.record, self.patch), All_notes_off)

    def help(self):
        for page, what in (("How to use MELVOR...", "Examples of the control elements"), ("Search...", "Topics"),
                           ("About...", "Informations")):
            self.screen.menu("Help", page)
            self.screen.wait_for(what)
            self.station(f"help-{page.split('.')[0].lower().replace(' ', '-')}")
            self.screen.key("Escape")
            self.screen.wait_for_end_of(what)

    def close(self):
        self.screen.click("LFO rate")
        self.wire.expect(tone(46, 0))
        self.screen.menu("Windows", "Save Positions")
        self.screen.key("alt+F4")
        assert self.screen.box() == "Save actual TONE first?"
        self.station("last-question")
        self.screen.answer("Cancel")
        self.screen.key("alt+f")
        self.screen.menu("Exit")
        self.screen.answer("No")
        assert self.session.wait_for_end() == 0

    def next_day(self):
        kept = self.session.settings()
        assert kept["MIDI"]["Output"] == "synth:in" and kept["MIDI"]["Input"] == "synth:out", kept["MIDI"]
        self.session.start()
        self.screen = self.session.screen
        self.wire.skip()
        self.screen.menu("File", "Tone", f"1 {kept['Recent Files']['Tone1'].upper()}")
        self.wire.expect(dump(self.record), dump(self.record, self.patch))
        self.station("next-day")
        assert self.session.interrupt() == 0


def main():
    with Session("session", configured=False) as session:
        evening = Evening(session)
        evening.set_up()
        evening.edit()
        evening.name("evening pad 12")
        evening.patch_window()
        evening.random_and_undo()
        evening.save("first")
        evening.help()
        evening.close()
        evening.next_day()


if __name__ == "__main__":
    main()
