"""A name typed into its window: 28 bytes exactly, and whole messages behind it."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import dump, empty_record

Typed = "my pad 1"


def name_message(name):
    """Ten parameters in one message that ends in 0F."""
    pairs = bytes(byte for pair in enumerate(name.ljust(10).encode()) for byte in pair)
    return bytes.fromhex("F0 41 36 00 21 20 01") + pairs + b"\x0F"


def main():
    with Session("name") as session:
        screen, wire = session.screen, session.wire
        screen.menu("Tone", "Name...")
        screen.wait_for("Please enter a name for the Tone:")
        screen.type(Typed + "andmore")
        session.screenshot("typing")
        screen.key("Return")
        name = (Typed + "andmore")[:10].upper()
        wire.expect(name_message(name))
        assert len(name_message(name)) == 28
        wait_until(lambda: screen.text("Tone name") == name, "the name in the display")
        session.screenshot("named")

        screen.menu("Tone", "Send")
        record = empty_record(name)
        record[10] = 32
        wire.expect(dump(record))

        screen.click("Tone name")  # opens the window too
        screen.wait_for("Please enter a name for the Tone:")
        screen.type("OTHER")
        screen.key("Escape")
        screen.wait_for_end_of("Please enter a name for the Tone:")
        assert screen.text("Tone name") == name
        screen.menu("Tone", "Send")
        wire.expect(dump(record))
        assert session.interrupt() == 0


if __name__ == "__main__":
    main()
