"""The program's windows as a screen reader sees them, and a hand that works them."""

import os

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

from harness.machine import wait_until  # noqa: E402

_Menu_roles = {Atspi.Role.MENU_BAR, Atspi.Role.MENU, Atspi.Role.POPUP_MENU}
_Window_roles = {Atspi.Role.FRAME, Atspi.Role.CANVAS}
_Item_roles = {Atspi.Role.MENU, Atspi.Role.MENU_ITEM, Atspi.Role.CHECK_MENU_ITEM}
_Around_focus = {Atspi.Role.FRAME, Atspi.Role.PANEL, Atspi.Role.LIST_ITEM}
_Looks = 5  # at a tree that changes meanwhile


class Screen:
    """Elements are found by their spoken names; "Sequencer > Start sequencer" is one of the child window whose caption
    begins so, "Note matrix > C, step 1" a cell of a canvas. Places are the program's own pixels, of which the screen
    has scale times scale each."""

    def __init__(self, machine, process_id, scale=1):
        os.environ.update(machine.environment)  # the accessibility bus is found by the environment
        self._machine = machine
        self._process_id = process_id
        self._scale = scale
        self.application = wait_until(self._find_application, "the program on the accessibility bus")

    def _find_application(self):
        desktop = Atspi.get_desktop(0)
        desktop.set_cache_mask(Atspi.Cache.NONE)
        for index in range(desktop.get_child_count()):
            try:
                child = desktop.get_child_at_index(index)
                if child is not None and child.get_process_id() == self._process_id:
                    child.set_cache_mask(Atspi.Cache.NONE)
                    return child
            except GLib.Error:
                continue  # a program that has gone
        return None

    # --- looking

    def _walk(self, node, into_menus=False):
        for index in range(node.get_child_count()):
            child = node.get_child_at_index(index)
            if child is None:
                continue
            yield child
            role = child.get_role()
            if role != Atspi.Role.CANVAS and (into_menus or role not in _Menu_roles):
                yield from self._walk(child, into_menus)

    def _find(self, test, into_menus=False, below=None):
        """The first shown element that passes, or None. An element that goes meanwhile is no answer."""
        for _ in range(_Looks):
            try:
                return next((node for node in self._walk(below or self.application, into_menus)
                             if test(node) and has_state(node, "SHOWING")), None)
            except GLib.Error:
                continue
        return None

    def _look(self, name):
        window, _, element = name.rpartition(" > ")
        below = self._find(lambda node: node.get_role() in _Window_roles and
                           node.get_name().startswith(window)) if window else self.application
        return below and self._find(lambda node: node.get_name() == element, below=below)

    def element(self, name):
        return wait_until(lambda: self._look(name), f'the element "{name}"')

    def has(self, name):
        return self._look(name) is not None

    wait_for = element

    def wait_for_end_of(self, name):
        wait_until(lambda: not self.has(name), f'the end of "{name}"')

    def place(self, name):
        """Left, top, width and height."""
        return _extents(self.element(name))

    def pixels(self, name):
        """What the screen shows of the element, as text that can be compared."""
        left, top, width, height = (side * self._scale for side in self.place(name))
        return self._machine.run("import", "-window", "root", "-crop", f"{width}x{height}+{left}+{top}", "txt:-")

    def value(self, name):
        """What the element says of its value."""
        return self.element(name).get_description()

    def text(self, name):
        field = self.element(name)
        return Atspi.Text.get_text(field, 0, Atspi.Text.get_character_count(field))

    def items(self, name):
        """The texts of a list's rows; a directory stands indented under the one that it is in."""
        node = self.element(name)
        return [node.get_child_at_index(index).get_name().strip() for index in range(node.get_child_count())]

    def is_enabled(self, name):
        """Of an element, or a menu of the bar."""
        node = wait_until(lambda: self._find(lambda node: node.get_name() == name, into_menus=True), f'"{name}"')
        return has_state(node, "ENABLED")

    def is_checked(self, name):
        return has_state(self.element(name), "CHECKED")

    def focus(self, left=None):
        """Waits until another element than left has the focus; returns its name."""
        def look():  # the window around the element and the chosen row in it claim the focus too
            node = self._find(lambda node: has_state(node, "FOCUSED") and node.get_role() not in _Around_focus)
            return node and node.get_name() != left and node.get_name()
        return wait_until(look, f"the focus behind {left}")

    def frame(self):
        """Left, top, width and height of the main window."""
        return _extents(wait_until(lambda: self._find(lambda node: node.get_role() == Atspi.Role.FRAME), "the frame"))

    def wait_for_title(self, title):
        """Of the main window, as the window manager shows it: "*" is the toolkit's mark of a change."""
        def look():
            return (self._machine.run("xdotool", "getactivewindow", "getwindowname") or "").strip() == title
        wait_until(look, f'the title "{title}"')

    def number(self, name):
        """The value of a scroll bar."""
        return round(Atspi.Value.get_current_value(self.element(name)))

    # --- the hand

    def hand(self, *steps):
        """Steps of xdotool, as one gesture."""
        words = [str(step) for step in steps]
        for index, word in enumerate(words):
            if word == "mousemove":
                words[index + 1:index + 3] = [str(int(place) * self._scale) for place in words[index + 1:index + 3]]
        assert self._machine.run("xdotool", *words) is not None, f"xdotool {words}"

    def click(self, name, button=1, at=None, times=1):
        """at: pixels from the element's top left corner; its middle if not given."""
        self._click(self.element(name), button, at, times)

    def _click(self, node, button=1, at=None, times=1):
        left, top, width, height = _extents(node)
        x, y = at or (width // 2, height // 2)
        self.hand("mousemove", left + x, top + y, "click", "--repeat", times, "--delay", 60, button)

    def click_row(self, name, text, times=1):
        """Clicks, or double clicks, the row with that text of a list; it must not be scrolled out of sight."""
        row = wait_until(lambda: self._find(lambda node: node.get_name().strip() == text, below=self.element(name)),
                         f'the row "{text}"')
        self._click(row, times=times)

    def drag(self, name, grip, path):
        """Presses at grip (pixels from the top left corner) and moves through path, a list of such places, all
        counted from where the element stood at the press. Returns that place."""
        left, top, _, _ = self.place(name)
        steps = ["mousemove", left + grip[0], top + grip[1], "mousedown", 1]
        for x, y in path:
            steps += ["mousemove", left + x, top + y, "sleep", 0.01]
        self.hand(*steps, "mouseup", 1)
        return left, top

    def key(self, *names):
        self.hand("key", "--delay", 20, *names)

    def type(self, text):
        self.hand("type", "--delay", 20, text)

    def choose(self, name, text):
        """Opens the drop-down list and types the text."""
        self.click(name)
        self.type(text)
        self.key("Return")
        wait_until(lambda: self.value(name) == text, text)

    def menu(self, *path):
        """Chooses an item by the captions on the way to it."""
        item = None
        for caption in path:
            item = self._menu_item(caption, item)
            self._click(item)

    def shut_menu(self):
        """A click on a grey item leaves its menu open."""
        while self._find(lambda node: node.get_role() == Atspi.Role.POPUP_MENU, into_menus=True):
            self.key("Escape")

    def _menu_item(self, caption, above):
        def test(node):  # a shortcut stands behind a tab
            return node.get_role() in _Item_roles and node.get_name().split("\t")[0] == caption
        return wait_until(lambda: self._find(test, into_menus=True, below=above), f'the menu item "{caption}"')

    # --- what assistive programs do

    def act(self, name, action):
        node = self.element(name)
        names = [Atspi.Action.get_action_name(node, index) for index in range(Atspi.Action.get_n_actions(node))]
        assert Atspi.Action.do_action(node, names.index(action))

    def turn(self, name, number):
        assert Atspi.Value.set_current_value(self.element(name), number)

    # --- message boxes

    def _box(self):
        return self._find(lambda node: node.get_role() == Atspi.Role.ALERT and node.get_name())

    def _box_text(self):
        box = self._box()
        label = box and self._find(lambda node: node.get_role() == Atspi.Role.LABEL and node.get_name(), below=box)
        return label and label.get_name()

    def has_box(self):
        return self._box() is not None

    def box(self):
        """The text of the message box that is open; waits for one."""
        return wait_until(self._box_text, "a message box")

    def answer(self, button):
        """Clicks a button of the open message box; returns when the box has gone, or another stands there."""
        box = wait_until(self._box, "a message box")
        self._click(wait_until(lambda: self._find(lambda node: node.get_name() == button, below=box),
                               f'the button "{button}"'))
        wait_until(lambda: self._box() != box, "the end of the box")


def has_state(node, state):
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def _extents(node):
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return box.x, box.y, box.width, box.height
