"""A folder of tones: some heard by a click, one opened, one deleted, a folder made. An order to end finds the dialog
open."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, Fresh_patch, dump, empty_record, note, tone_file

Preview_note, Preview_velocity = 60, 80
Settings = {"MIDI": {"Soundcheck Note": str(Preview_note), "Soundcheck Velocity": str(Preview_velocity)},
            "Recent Files": {"Tones": "c:\\tones\\"}}
Tones = 5


def record_of(number):
    record = empty_record(f"TONE {number}")
    record[34] = number
    return record


def patch_of(number):
    return (0, number, 0, 0, 0, 0, 64)


def preview(number, patch_before):
    """The notes before end, and the tone goes out behind each of the file's two messages."""
    record = record_of(number)
    return [All_notes_off, dump(record, patch_before), dump(record, patch_of(number))]


def hear(session):
    patch = Fresh_patch
    for number in range(3):
        session.screen.click_row("Files", f"tone{number}.syx")
        session.wire.expect(*preview(number, patch), note(Preview_note, Preview_velocity))
        patch = patch_of(number)
    assert session.screen.text("Tone name") == "TONE 2"


def open_one(session):
    session.screen.click_row("Files", "tone4.syx", times=2)
    opened = dump(record_of(4), patch_of(4))
    session.wire.expect(*preview(4, patch_of(2)), opened, opened, All_notes_off)
    session.screen.wait_for_end_of("Files")


def delete_one(session, folder):
    screen = session.screen
    screen.click_row("Files", "tone3.syx")
    screen.click("Delete")
    assert screen.box() == "Delete TONE3.SYX ?"
    screen.answer("Yes")
    wait_until(lambda: "tone3.syx" not in screen.items("Files"), "the list without it")
    assert not (folder / "tone3.syx").exists()


def make_folder(session, folder):
    screen = session.screen
    screen.click_row("Directories", "tones")
    screen.click("New folder")
    screen.wait_for("Create new folder")
    screen.type("mine")
    screen.key("Return")
    wait_until(lambda: "mine" in screen.items("Directories"), "the folder in the list")
    (folder / "mine").rmdir()


def main():
    session = Session("browse", settings=Settings)
    folder = session.machine.home / "tones"
    folder.mkdir()
    files = {folder / f"tone{number}.syx": tone_file(record_of(number), patch_of(number)) for number in range(Tones)}
    for file, content in files.items():
        file.write_bytes(content)
    with session:
        session.screen.menu("File", "Tone", "Open...")
        hear(session)
        open_one(session)
        session.screen.menu("File", "Tone", "Open...")
        delete_one(session, folder)
        make_folder(session, folder)
        session.end_at_once()
        del files[folder / "tone3.syx"]
        assert {file: file.read_bytes() for file in folder.iterdir()} == files
        assert session.settings()["Recent Files"]["Tone1"].upper() == "C:\\TONES\\TONE4.SYX"


main()
