"""An order to end, in any state: no box, no hanging note, no crash, settings written."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off


def nothing(_):
    pass


def changed_tone(session):
    session.screen.click("VCF cutoff frequency")


def chord(session):
    session.screen.click("Play a chord")
    session.wire.wait_for(4)


def sequencer(session):
    session.screen.menu("MIDI", "Sequencer...")
    session.screen.click("Note matrix", at=(6, 6))
    session.screen.click("Sequencer > Start sequencer")
    session.wire.wait_for(30)


def sweep(session):
    session.screen.menu("MIDI", "Oscillator...")
    session.screen.click("Start oscillator")
    session.wire.wait_for(2)


def receive(session):
    session.screen.menu("MIDI", "Setup...")
    session.screen.wait_for("OK")
    session.screen.key("Return")
    session.screen.box()
    session.screen.answer("OK")
    session.screen.menu("Tone", "Receive ")
    wait_until(lambda: not session.screen.is_enabled("File"), "the wait for a tone")


def dialog(session):
    session.screen.menu("File", "Tone", "Open...")
    session.screen.wait_for("Files")


def save_dialog(session):
    session.screen.click("VCF cutoff frequency")
    session.screen.menu("File", "Tone", "Save as...")
    session.screen.wait_for("Files")


def box(session):
    session.screen.click("VCF cutoff frequency")
    session.screen.menu("File", "Exit")
    session.screen.box()


def menu(session):
    session.screen.click("VCF cutoff frequency")
    session.screen.menu("File")


States = [nothing, changed_tone, chord, sequencer, sweep, receive, dialog, save_dialog, box, menu]


def start(session):
    """Ends at the first box of a start; what the settings hold is not all read by then."""
    session.stop()
    session.settings_file.write_text("[MIDI]\r\nOutput=gone\r\n[Recent Files]\r\nTone1=C:\\A.SYX\r\n")
    before = session.settings_file.read_text()
    session.start(wait_for_panel=False)
    session.screen.box()
    assert session.interrupt() == 0
    assert session.settings_file.read_text() == before


def main():
    with Session("ends") as session:
        for state in States:
            session.settings_file.unlink(missing_ok=True)
            session.write_settings()
            session.wire.skip()
            state(session)
            code = session.interrupt()
            assert code == 0, f"{state.__name__}: exit code {code}"
            assert session.settings()["MIDI"].get("Synthesizer") == "JX-8P", f"{state.__name__}: no settings"
            sent = [message for _, message in session.wire.all()]
            if any(message[0] == 0x90 and message[2] for message in sent):
                assert sent[-1] == All_notes_off, f"{state.__name__}: {sent[-1].hex(' ')}"
            session.start()
        start(session)


if __name__ == "__main__":
    main()
