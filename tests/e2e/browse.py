"""A folder of tones: some heard by a click, one opened, saved under a new name, deleted, a folder made."""

from harness.machine import wait_until
from harness.program import Session
from harness.wire import All_notes_off, dump, empty_record, note, tone_file

Preview_note, Preview_velocity = 60, 80
Settings = {"MIDI": {"Soundcheck Note": str(Preview_note), "Soundcheck Velocity": str(Preview_velocity)},
            "Recent Files": {"Tones": "c:\\tones\\"}}
Tones = 20
Fresh_patch = (0, 0, 0, 0, 0, 0, 64)


def record_of(number):
    record = empty_record(f"TONE {number}")
    record[34] = number % 128
    return record


def patch_of(number):
    return (0, number % 128, 0, 0, 0, 0, 64)


def preview(number, patch_before):
    """The notes before end, and the tone goes out behind each of the file's two messages."""
    record = record_of(number)
    return [All_notes_off, dump(record, patch_before), dump(record, patch_of(number))]


def hear(session):
    patch = Fresh_patch
    for number in range(3):
        session.screen.click_row("Files", f"tone{number:03}.syx")
        session.wire.expect(*preview(number, patch), note(Preview_note, Preview_velocity))
        patch = patch_of(number)
    assert session.screen.text("Tone name") == "TONE 2"
    session.screenshot("heard")
    return patch


def open_one(session, patch_before):
    session.screen.click_row("Files", "tone004.syx", times=2)
    opened = dump(record_of(4), patch_of(4))
    session.wire.expect(*preview(4, patch_before), opened, opened, All_notes_off)
    session.screen.wait_for_end_of("Files")


def save_copy(session, folder):
    screen = session.screen
    screen.menu("File", "Tone", "Save as...")
    screen.wait_for("Files")
    screen.type("copy")
    screen.key("Return")
    # The dialog has written the file; the command behind it asks about it once more.
    assert screen.box() == "File exists: c:\\tones\\copy.syx Overwrite?"
    screen.answer("Cancel")
    assert (folder / "copy.syx").read_bytes() == tone_file(record_of(4), patch_of(4))


def delete_copy(session, folder):
    screen = session.screen
    screen.menu("File", "Tone", "Open...")
    screen.click_row("Files", "copy.syx")
    screen.click("Delete")
    assert screen.box() == "Delete COPY.SYX ?"
    screen.answer("Yes")
    wait_until(lambda: not (folder / "copy.syx").exists(), "the end of the file")
    wait_until(lambda: "copy.syx" not in screen.items("Files"), "the list without it")


def make_folder(session, folder):
    screen = session.screen
    screen.click_row("Directories", "tones")
    screen.click("New folder")
    screen.wait_for("Create new folder")
    screen.type("mine")
    screen.key("Return")
    wait_until((folder / "mine").is_dir, "the folder")
    wait_until(lambda: "mine" in screen.items("Directories"), "the folder in the list")
    screen.key("Escape")
    screen.wait_for_end_of("Files")


def main():
    session = Session("browse", settings=Settings)
    folder = session.machine.home / "tones"
    folder.mkdir()
    for number in range(Tones):
        (folder / f"tone{number:03}.syx").write_bytes(tone_file(record_of(number), patch_of(number)))
    before = {file.name: file.read_bytes() for file in folder.iterdir()}
    with session:
        session.screen.menu("File", "Tone", "Open...")
        session.screen.wait_for("Files")
        patch = hear(session)
        open_one(session, patch)
        save_copy(session, folder)
        delete_copy(session, folder)
        make_folder(session, folder)
        (folder / "mine").rmdir()
        assert {file.name: file.read_bytes() for file in folder.iterdir()} == before
        assert session.interrupt() == 0
        # The copy, saved last, is the newest; that it has gone is found at the next change of the list.
        assert session.settings()["Recent Files"]["Tone2"].upper() == "C:\\TONES\\TONE004.SYX"


if __name__ == "__main__":
    main()
