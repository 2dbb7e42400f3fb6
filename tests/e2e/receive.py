"""A tone sent by the instrument, or by the built-in one, reaches the panel; what is no tone leaves it waiting."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, dump, empty_record, tone

Cutoff_index = 34


def instrument_tone(name, cutoff):
    """The 67 bytes that the instrument transmits."""
    record = empty_record(name)
    record[Cutoff_index] = cutoff
    return bytes.fromhex("F0 41 35 00 21 20 01") + bytes(record) + b"\xF7", record


def from_the_built_in_instrument(session):
    """It has no tone buttons, and sends its tone as soon as the program listens."""
    screen = session.screen
    session.confirm_setup([("MIDI input device", "Built-in JX-8P")])
    screen.menu("Tone", "Receive ")
    wait_until(lambda: screen.text("Tone name").rstrip() == "BUILT-IN", "the built-in instrument's tone")
    wait_until(lambda: screen.is_enabled("File"), "the end of the wait")


def main():
    with Session("receive") as session:
        screen, wire = session.screen, session.wire
        message, record = instrument_tone("SOLO LEAD", 100)
        session.confirm_setup()
        screen.menu("Tone", "Receive ")
        wait_until(lambda: not screen.is_enabled("File"), "the wait for a tone")
        session.screenshot("waiting")
        wire.send(bytes.fromhex("F0 7E 00 06 01 F7"))  # another's message does not end the wait
        wire.send(message)
        wait_until(lambda: screen.text("Tone name") == "SOLO LEAD", "the name of the tone")
        wait_until(lambda: screen.is_enabled("File"), "the end of the wait")
        assert screen.value("VCF cutoff frequency") == str(100 * 99 // 127)
        session.screenshot("received")

        screen.menu("Tone", "Send")
        wire.expect(dump(record))
        screen.click("VCF cutoff frequency")  # what is sent at once is on again
        wire.expect(tone(Cutoff_index, 100))

        screen.menu("Tone", "Receive ")
        assert screen.box() == "Save actual TONE first?"
        screen.answer("No")
        wait_until(lambda: not screen.is_enabled("File"), "the wait for a tone")
        screen.click("Stop sequencer")
        wait_until(lambda: screen.is_enabled("File"), "the end of the wait")
        wire.send(instrument_tone("TOO LATE", 1)[0])
        screen.click("Play a chord", button=3)
        wire.expect(All_notes_off)
        # A value that the display still shows goes after a second.
        wait_until(lambda: screen.text("Tone name") == "SOLO LEAD", "the tone that came in time")
        from_the_built_in_instrument(session)
        assert session.interrupt() == 0


if __name__ == "__main__":
    main()
