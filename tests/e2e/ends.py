"""An order to end, in any state: no box, no hanging note, no crash, settings written."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off


def playing(session):
    session.screen.click("VCF cutoff frequency")  # a tone that is not saved
    session.screen.menu("MIDI", "Sequencer...")
    session.screen.click("Note matrix", at=(6, 6))
    session.screen.click("Sequencer > Start sequencer")
    session.screen.menu("MIDI", "Oscillator...")
    session.screen.click("Start oscillator")
    session.wire.wait_for(60)


def chord_and_menu(session):
    session.screen.click("Play a chord")
    session.wire.wait_for(4)
    session.screen.menu("File")


def receive(session):
    session.confirm_setup()
    session.screen.menu("Tone", "Receive ")
    wait_until(lambda: not session.screen.is_enabled("File"), "the wait for a tone")


def save_dialog(session):
    session.screen.click("VCF cutoff frequency")
    session.screen.menu("File", "Tone", "Save as...")
    session.screen.wait_for("Files")


def box(session):
    session.screen.click("VCF cutoff frequency")
    session.screen.menu("File", "Exit")
    session.screen.box()


def start(session):
    """Ends at the first box of a start; what the settings hold is not all read by then."""
    session.settings_file.write_text("[MIDI]\r\nOutput=gone\r\n[Recent Files]\r\nTone1=C:\\A.SYX\r\n")
    before = session.settings_file.read_text()
    session.start(wait_for_panel=False)
    session.screen.box()
    assert session.interrupt() == 0
    assert session.settings_file.read_text() == before


def main():
    with Session("ends") as session:
        for state in (playing, chord_and_menu, receive, save_dialog, box):
            if state != playing:
                session.start()
            session.write_settings()
            session.wire.skip()
            state(session)
            code = session.interrupt()
            assert code == 0, f"{state.__name__}: exit code {code}"
            assert session.settings()["MIDI"].get("Synthesizer") == "JX-8P", f"{state.__name__}: no settings"
            sent = [message for _, message in session.wire.all()]
            assert sent[-1] == All_notes_off, f"{state.__name__}: {sent[-1].hex(' ')}"
        start(session)


if __name__ == "__main__":
    main()
