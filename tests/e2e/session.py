"""A musician's whole evening: first start, a sound made, named, saved, compared, played, swept, received, and all of it
back the next day."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, dump, empty_record, note, patch, tone, tone_file

Cutoff = "VCF cutoff frequency"
Cutoff_index = 34
Name_prompt = "Please enter a name for the Tone:"


class Evening:
    def __init__(self, session):
        self.session, self.screen, self.wire = session, session.screen, session.wire
        self.record = empty_record()
        self.patch = [0, 0, 0, 0, 0, 0, 64]

    def station(self, name):
        self.session.screenshot(name)

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
        self.screen.key("Tab")
        self.screen.type("synth:in")
        self.screen.key("Tab")
        self.screen.type("synth:out")
        wait_until(lambda: self.screen.value("MIDI input device") == "synth:out", "the choice")
        self.station("setup")
        self.screen.click("OK")
        assert self.screen.box().startswith("Please don't forget to enable the MIDI System Exclusive (SysEx)")
        self.station("reminder")
        self.screen.answer("OK")
        self.screen.element(Cutoff)

    def edit(self):
        self.screen.click(Cutoff)
        self.wire.expect(tone(Cutoff_index, 0))
        self.screen.key("Home", "Next")
        self.wire.expect(tone(Cutoff_index, 127), tone(Cutoff_index, 111))
        self.record[Cutoff_index] = 111
        self.screen.click("DCO 1 range")
        self.screen.key("Up", "Up")
        self.wire.expect(tone(11, 32), tone(11, 64))
        self.record[11] = 64
        self.station("edited")

    def name(self, text):
        self.screen.menu("Tone", "Name...")
        self.screen.wait_for(Name_prompt)
        self.screen.type(text)
        self.screen.key("Return")
        self.screen.wait_for_end_of(Name_prompt)
        self.record[:11] = text.upper().ljust(11).encode()
        pairs = bytes(byte for pair in enumerate(self.record[:10]) for byte in pair)
        self.wire.expect(tone(0, 0)[:7] + pairs + b"\x0F")
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

    def open_other(self):
        other = empty_record("OTHER")
        other[41] = 99
        (self.session.machine.home / "other.syx").write_bytes(tone_file(other))
        self.screen.menu("File", "Tone", "Open...")
        self.screen.click_row("Files", "other.syx")
        self.wire.expect(All_notes_off, dump(other, self.patch), dump(other), note(24, 80))
        self.station("browsing")
        self.screen.click("Ok")
        self.screen.wait_for_end_of("Files")
        self.record, self.patch = other, [0, 0, 0, 0, 0, 0, 64]
        opened = dump(other)
        self.wire.expect(opened, opened, All_notes_off)

    def sequence(self):
        self.screen.menu("MIDI", "Sequencer...")
        self.wire.expect(All_notes_off)
        self.screen.click("Note matrix", at=(6, 12 * 12 + 6))
        self.screen.click("Sequencer > Start sequencer")
        self.wire.wait_for(13)
        self.station("playing")
        self.wire.expect(*(note(60 - row, 127 if row == 12 else 0) for row in range(13)))
        self.screen.click("Sequencer > Stop sequencer")
        self.wire.take_to(All_notes_off)
        self.wire.expect(All_notes_off, All_notes_off)

    def sweep(self):
        self.screen.menu("MIDI", "Oscillator...")
        self.screen.click("Start oscillator")
        self.wire.expect(tone(14, 32), tone(14, 39))
        self.station("sweeping")
        self.screen.click("Stop oscillator")
        self.screen.menu("MIDI", "Close MIDI Output")
        self.wire.take_to(All_notes_off)
        self.wire.expect(All_notes_off)

    def receive(self):
        received = empty_record("FROM JX")
        received[Cutoff_index] = 50
        self.screen.menu("Tone", "Receive ")
        wait_until(lambda: not self.screen.is_enabled("File"), "the wait for a tone")
        self.station("receiving")
        self.wire.send(bytes.fromhex("F0 41 35 00 21 20 01") + bytes(received) + b"\xF7")
        wait_until(lambda: self.screen.text("Tone name") == "FROM JX", "the tone")
        wait_until(lambda: self.screen.is_enabled("File"), "the end of the wait")
        self.record = received
        self.check_tone()

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
        self.screen.menu("File", "Exit")
        assert self.screen.box() == "Save actual TONE first?"
        self.station("last-question")
        self.screen.answer("No")
        assert self.screen.box() == "Save actual SEQUENCE first?"
        self.screen.answer("No")
        assert self.session.wait_for_end() == 0

    def next_day(self):
        kept = self.session.settings()
        assert kept["MIDI"]["Output"] == "synth:in" and kept["MIDI"]["Input"] == "synth:out", kept["MIDI"]
        self.session.start()
        self.screen = self.session.screen
        self.wire.skip()
        self.screen.menu("File", "Tone", f"1 {kept['Recent Files']['Tone1'].upper()}")
        opened = dump(self.record_of_file("other.syx"))
        self.wire.expect(opened, opened)
        self.station("next-day")
        assert self.session.interrupt() == 0

    def record_of_file(self, name):
        return (self.session.machine.home / name).read_bytes()[7:66]


def main():
    with Session("session", configured=False) as session:
        evening = Evening(session)
        evening.set_up()
        evening.edit()
        evening.name("evening")
        evening.patch_window()
        evening.random_and_undo()
        evening.save("first")
        evening.open_other()
        evening.sequence()
        evening.sweep()
        evening.receive()
        evening.help()
        evening.close()
        evening.next_day()


if __name__ == "__main__":
    main()
