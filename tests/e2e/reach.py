"""What a screen reader finds: every control by name, its value with its meaning, and actions that move the sound."""

from collections import Counter

from harness.machine import wait_until
from harness.program import Session
from harness.screen import Atspi, GLib, has_state
from harness.wire import All_notes_off, note, patch, tone

Cutoff = "VCF cutoff frequency"
Controls = {"slider", "dial", "push button", "radio button", "check box", "combo box", "list", "scroll bar", "text",
            "image", "canvas"}
Panel = {"slider": 41, "dial": 6, "push button": 3, "text": 1, "image": 3}
# Menu path, name of the window, what it holds.
Dialogs = [
    (("Help", "How to use MELVOR..."), "MELVOR Help",
     {"push button": 3, "slider": 3, "dial": 2, "radio button": 4, "text": 1, "image": 1}),
    (("File", "Tone", "Open..."), "Open Tone File",
     {"text": 1, "list": 2, "combo box": 4, "push button": 7, "check box": 2, "radio button": 2}),
]
Windows = [
    (("Tone", "Patch..."), "Patch Parameter", {"slider": 4, "dial": 2, "radio button": 10}),
    (("MIDI", "Oscillator..."), "Oscillator",
     {"image": 1, "scroll bar": 3, "combo box": 1, "check box": 1, "radio button": 10, "push button": 2}),
    (("MIDI", "Sequencer..."), "Sequencer",
     {"image": 8, "canvas": 1, "push button": 16, "radio button": 6, "combo box": 2, "scroll bar": 1}),
]


def shown(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if has_state(child, "SHOWING"):
            yield child
            if child.get_role_name() not in ("combo box", "list", "text", "canvas"):
                yield from shown(child)


def check_window(screen, title, wanted):
    controls = [node for node in shown(screen.element(title)) if node.get_role_name() in Controls]
    names = [node.get_name() for node in controls]
    assert all(names) and len(set(names)) == len(names), f"{title}: {sorted(names)}"
    assert Counter(node.get_role_name() for node in controls) == wanted, f"{title}: {sorted(names)}"


def told(screen, name, number, words):
    wait_until(lambda: (screen.number(name), screen.value(name)) == (number, words), f"{name}: {words}")


def move_the_sound(screen, wire):
    screen.turn(Cutoff, 50)
    wire.expect(*(tone(34, value) for value in (16, 32, 48, 64, 65)))
    told(screen, Cutoff, 50, "50")
    screen.act("DCO 1 range", "Increase")
    wire.expect(tone(11, 32))
    told(screen, "DCO 1 range", 1, "8 feet")
    screen.turn("DCO 1 tune", -8)
    wire.take_to(tone(13, 20))
    told(screen, "DCO 1 tune", -8, "minus 8 semitones")


def hear_a_key(screen, wire):
    """A change by key is told unasked, even one of which the cap shows nothing."""
    heard = []
    listener = Atspi.EventListener.new(lambda event: heard.append(event.source.get_name()))
    assert listener.register("object:property-change:accessible-value")
    screen.element(Cutoff).grab_focus()
    screen.turn(Cutoff, 49)
    wire.take_to(tone(34, 64))
    screen.key("Up")
    wire.expect(tone(34, 65))
    wait_until(lambda: (GLib.MainContext.default().iteration(False), len(heard) > 1)[1], lambda: f"news: {heard}")
    assert set(heard) == {Cutoff}, heard


def main():
    with Session("reach") as session:
        screen, wire = session.screen, session.wire
        check_window(screen, "Editor", Panel)
        for path, title, wanted in Dialogs:
            screen.menu(*path)
            check_window(screen, title, wanted)
            screen.key("Escape")
            screen.wait_for_end_of(title)
        wire.expect(All_notes_off)  # the end of the file dialog's preview
        move_the_sound(screen, wire)
        hear_a_key(screen, wire)
        for path, title, wanted in Windows:
            screen.menu(*path)
            check_window(screen, title, wanted)
        wire.skip()
        screen.act("After touch volume", "Press")
        wire.expect(patch(4, 4))
        wait_until(lambda: screen.is_checked("After touch volume"), "the light")
        screen.act("Key E", "Press")
        wire.expect(note(52, 127))
        screen.act("Note matrix > E, step 3", "Soft")
        wait_until(lambda: screen.value("Note matrix") == "step 3: E soft", "the note")
        assert screen.is_checked("Note matrix > E, step 3")
        screen.menu("MIDI", "Setup...")
        for enabled in (False, True):
            screen.act("MIDI enabled", "Toggle")
            wait_until(lambda: screen.is_enabled("MIDI output device") == enabled, "the devices to choose")
        session.end_at_once()


main()
