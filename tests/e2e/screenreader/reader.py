"""The dialog as a screen reader has it: over the accessibility bus and nothing else.

A Reader starts the program, reads what it says of itself, hears what it says has changed, and works it
by names and by keys. Where something is on the screen is never asked.
"""

import re
import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

# Roles of what somebody acts on. All else is there to be read, or holds other things together.
CONTROLS = {
    "push button", "toggle button", "check box", "radio button", "combo box", "spin button", "slider",
    "text", "password text", "list", "list box", "table", "tree", "tree table", "page tab", "page tab list",
    "menu item", "check menu item", "radio menu item", "link",
}
# A table or a list has its cells and items for what is in it; these are read with it.
ITEMS = {"list item", "table cell", "tree item"}


# Of X, for the keys that have no letter.
KEYSYMS = {
    "space": 0x20, "Tab": 0xFF09, "Return": 0xFF0D, "Escape": 0xFF1B, "Home": 0xFF50, "Left": 0xFF51,
    "Up": 0xFF52, "Right": 0xFF53, "Down": 0xFF54, "End": 0xFF57, "F1": 0xFFBE,
}


class Failure(Exception):
    """An expectation that was not met."""


def states(node):
    return {state.value_nick for state in node.get_state_set().get_states()}


def is_showing(node):
    return node.get_state_set().contains(Atspi.StateType.SHOWING)


def children(node, most=400):
    for place in range(min(node.get_child_count(), most)):
        child = node.get_child_at_index(place)
        if child:
            yield child


def shown(node):
    """The node and everything shown below it, in reading order."""
    yield node
    for child in children(node):
        if is_showing(child):
            yield from shown(child)


def labels(node):
    """What the labels say that belong to the node."""
    texts = []
    for relation in node.get_relation_set():
        if relation.get_relation_type() == Atspi.RelationType.LABELLED_BY:
            texts += [relation.get_target(i).get_name() for i in range(relation.get_n_targets())]
    return [text for text in texts if text]


def heard(node):
    """Label and name, as they are read out together."""
    texts = labels(node)
    name = node.get_name()
    if name and name not in texts:
        texts.append(name)
    return " ".join(texts).strip()


def text_of(node):
    if not node.get_text_iface():
        return None
    return Atspi.Text.get_text(node, 0, -1)


def actions(node):
    if not node.get_action_iface():
        return []
    return [Atspi.Action.get_action_name(node, i) for i in range(Atspi.Action.get_n_actions(node))]


def described(node):
    return f'{node.get_role_name()} "{heard(node)}"'


class Reader:
    """One run of the program, and everything that it says."""

    def __init__(self, command, patience=30):
        self.patience = patience
        self.events = []  # (kind, detail, role, name)
        self._focus = None
        self._listener = Atspi.EventListener.new(self._hear)
        for kind in ("object:state-changed", "object:property-change", "object:selection-changed",
                     "window:activate"):
            self._listener.register(kind)
        self.process = subprocess.Popen(command)
        self.application = self.wait("the program on the accessibility bus", self._find_application)
        self.wait("a window", self.windows)
        self.focus_window(self.windows()[0])

    # What is heard.

    def _hear(self, event, *_):
        try:
            source = event.source
            # Bus and desktop have events of their own.
            if source and source.get_process_id() == self.process.pid:
                self.events.append((event.type, event.detail1, source.get_role_name(), heard(source)))
                if event.type == "object:state-changed:focused" and event.detail1:
                    self._focus = source
        except GLib.Error:
            pass  # what said it has gone

    def settle(self, seconds=0.15):
        """Hears, until nothing has been said for a while."""
        quiet_since = time.monotonic()
        end = quiet_since + self.patience
        while time.monotonic() < end and time.monotonic() - quiet_since < seconds:
            while GLib.MainContext.default().iteration(False):
                pass
            if len(self.events) != getattr(self, "_count", 0):
                self._count = len(self.events)
                quiet_since = time.monotonic()
            time.sleep(0.01)

    def wait(self, what, condition):
        end = time.monotonic() + self.patience
        while True:
            while GLib.MainContext.default().iteration(False):
                pass
            try:
                found = condition()
                if found:
                    return found
            except GLib.Error:
                pass  # something has gone while it was looked at
            if time.monotonic() > end:
                raise Failure(f"waited in vain for {what}")
            time.sleep(0.05)

    def announced(self):
        """What the program has said although the focus was elsewhere."""
        return [name for kind, on, role, name in self.events
                if kind.startswith("object:state-changed:showing") and on and role == "notification"]

    def forget(self):
        self.events.clear()
        self._count = 0

    # What there is.

    def _find_application(self):
        desktop = Atspi.get_desktop(0)
        for application in children(desktop):
            if application.get_process_id() == self.process.pid:
                return application
        if self.process.poll() is not None:
            raise Failure(f"the program ended with status {self.process.returncode}")
        return None

    def windows(self):
        self.application.clear_cache()
        return [window for window in children(self.application) if is_showing(window)]

    def nodes(self, root=None):
        for window in [root] if root else self.windows():
            yield from shown(window)

    def look_for(self, name, role=None, root=None):
        """The first that is shown and whose label or name begins like this, or nothing."""
        for node in self.nodes(root):
            if role and node.get_role_name() not in (role if isinstance(role, tuple) else (role,)):
                continue
            if re.match(name, heard(node)):
                return node
        return None

    def find(self, name, role=None, root=None):
        return self.wait(f'{role or "something"} "{name}"', lambda: self.look_for(name, role, root))

    def focused(self):
        """What said last that it has got the focus."""
        return self._focus

    # What is done.

    def act(self, node, *names):
        """Does the first of these actions that the node has."""
        offered = actions(node)
        for name in names or ("Press", "Toggle"):
            if name in offered:
                Atspi.Action.do_action(node, offered.index(name))
                self.settle()
                return
        raise Failure(f"{described(node)} cannot be worked: it offers {offered}")

    def keys(self, *names):
        """Presses keys the way assistive technology does; combinations as a keyboard does."""
        for name in names:
            if name in KEYSYMS:
                Atspi.generate_keyboard_event(KEYSYMS[name], None, Atspi.KeySynthType.SYM)
            else:
                subprocess.run(["xdotool", "key", name], check=True)
        self.settle()

    def type(self, text):
        for letter in text:
            Atspi.generate_keyboard_event(ord(letter), None, Atspi.KeySynthType.SYM)
        self.settle()

    def focus_window(self, window):
        """As a window manager does; the tests have none."""
        name = window.get_name()
        ids = subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(self.process.pid)],
                             capture_output=True, text=True, check=False).stdout.split()
        for number in ids:
            title = subprocess.run(["xdotool", "getwindowname", number], capture_output=True, text=True,
                                   check=False).stdout.strip()
            if title == name:
                subprocess.run(["xdotool", "windowfocus", number], check=False)
        self.settle()

    def open_window(self, name=None):
        """The window that has come up over the first one; it gets the keys."""
        def newest():
            others = self.windows()[1:]
            return next((w for w in others if not name or re.match(name, w.get_name())), None)
        window = self.wait("another window", newest)
        self.settle()
        self.focus_window(window)
        return window

    def end(self):
        if self.process.poll() is None:
            self.process.terminate()
            try:
                self.process.wait(10)
            except subprocess.TimeoutExpired:
                self.process.kill()
                self.process.wait()


def main(tests):
    """Runs tests by name: each takes the rest of the command line."""
    name, *arguments = sys.argv[1:]
    try:
        tests[name](*arguments)
    except Failure as failure:
        print(f"{name}: {failure}", file=sys.stderr)
        sys.exit(1)
