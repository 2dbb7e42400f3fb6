"""What comes from outside: a tone of the instrument, one of the built-in instrument, and the news that the JACK server
has gone. An order to end finds the program waiting for a tone."""

from harness.machine import end, wait_until
from harness.program import Session
from harness.wire import dump, empty_record, note, tone, tone_dump

Cutoff = "VCF cutoff frequency"


def confirm_setup(screen):
    """Closes the setup window, which turns the menu's Receive on."""
    screen.wait_for("MIDI enabled")
    screen.key("Return")
    assert screen.box().startswith("Please don't forget to enable the MIDI System Exclusive (SysEx)")
    screen.answer("OK")


def see_wait(screen):
    wait_until(lambda: not screen.is_enabled("File"), "the wait for a tone")


def see_tone(screen, name):
    wait_until(lambda: screen.text("Tone name").rstrip() == name and screen.is_enabled("File"), f"the tone {name}")


def receive(screen, wire):
    record = empty_record("SOLO LEAD")
    record[34] = 100
    see_wait(screen)
    wire.send(bytes.fromhex("F0 7E 00 06 01 F7"))  # another's message does not end the wait
    wire.send(tone_dump(record))
    see_tone(screen, "SOLO LEAD")
    assert screen.value(Cutoff) == str(100 * 99 // 127)
    screen.menu("Tone", "Send")
    wire.expect(dump(record))
    screen.click(Cutoff)  # what is sent at once is on again
    wire.expect(tone(34, 100))


def lose_the_server(session):
    """What is played into the void is told; the new server's devices are found by their names."""
    screen = session.screen
    end(session.machine.jack)
    screen.click("Play a chord")
    for procedure in ("MIDI_SendNote", "MIDI_Put"):  # the chord, and the notes' end at the close
        assert screen.box().startswith(f"{procedure}*: (68) The MIDI device is no longer connected."), screen.box()
        screen.answer("OK")
    session.machine.start_jack()
    session.connect()
    screen.menu("MIDI", "Setup...")
    screen.click("MIDI enabled", at=(7, 11))
    confirm_setup(screen)
    screen.click("Play a chord")
    session.wire.expect(*(note(number, 90) for number in (60, 64, 67, 72)))


def take_from(screen, device):
    screen.menu("MIDI", "Setup...")
    screen.choose("MIDI input device", device)
    confirm_setup(screen)
    screen.menu("Tone", "Receive ")


def main():
    with Session("receive") as session:
        screen = session.screen
        take_from(screen, "synth:out")
        receive(screen, session.wire)
        lose_the_server(session)
        take_from(screen, "Built-in JX-8P")
        assert screen.box() == "Save actual TONE first?"
        screen.answer("No")
        see_tone(screen, "BUILT-IN")  # sent as soon as the program listens, since it has no buttons
        take_from(screen, "synth:out")
        see_wait(screen)
        session.end_at_once()


main()
