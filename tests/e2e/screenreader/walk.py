"""Walks through every page, panel, list, menu and dialog, and looks at each control on the way."""

import json
import os

from reader import Atspi, Failure, Reader, described, heard, main, states
from rules import faults_of, is_control, untranslated


class Walk:
    """What was seen and what was found wrong, over all stations of one run."""

    def __init__(self, command):
        self.reader = Reader(command)
        self.controls = {}  # station and description: how often
        self.faults = {}  # a sentence: the stations at which it is true
        self.names = set()
        known = os.environ.get("CORVANA_ENGLISH_NAMES")
        self.known = set()
        if known and os.path.exists(known):
            with open(known, encoding="utf-8") as file:
                self.known = set(json.load(file))

    def look(self, station, root=None):
        """Looks at everything that is shown now."""
        for node in list(self.reader.nodes(root)):
            state = states(node)
            if "showing" not in state:
                continue
            if is_control(node, state):
                self.controls[(described(node))] = station
            self.names |= {node.get_name(), node.get_description()}
            for fault in faults_of(node):
                self.faults.setdefault(f"{described(node)}: {fault}", []).append(station)
            if self.known and untranslated(node, self.known):
                self.faults.setdefault(f"{described(node)}: is still in English", []).append(station)

    def tab_to(self, matches, root=None):
        """Presses Tab until the focus is on what matches."""
        for _ in range(80):
            node = self.reader.focused()
            if node and matches(node):
                return node
            self.reader.keys("Tab")
        return None

    def report(self):
        for fault, stations in sorted(self.faults.items()):
            print(f"  {fault}   [{', '.join(sorted(set(stations))[:4])}]")
        if os.environ.get("CORVANA_LIST_CONTROLS"):
            for control, station in self.controls.items():
                print(f"  {station}: {control}")
        print(f"{len(self.controls)} controls, {len(self.faults)} faults")
        written = os.environ.get("CORVANA_WRITE_NAMES")
        if written:
            with open(written, "w", encoding="utf-8") as file:
                json.dump(sorted(name for name in self.names if name), file)
        if self.faults:
            raise Failure(f"{len(self.faults)} faults, see above")


def is_disclosure(node):
    state = states(node)
    return node.get_role_name() == "push button" and "expandable" in state and "expanded" not in state


def open_everything(walk, station):
    """Discloses what the page hides, and each part of a list of advanced options."""
    for node in [n for n in walk.reader.nodes() if is_disclosure(n)]:
        walk.reader.act(node, "Press", "Toggle")
        walk.look(station + ", disclosed")
    for table in [n for n in walk.reader.nodes() if n.get_role_name() == "table"]:
        if not walk.tab_to(lambda n: n.get_role_name() in ("table", "table cell")):
            raise Failure(f"Tab does not reach the table {heard(table)}")
        walk.reader.keys("Home")
        for row in range(Atspi.Table.get_n_rows(table)):
            walk.look(f"{station}, row {row + 1}")
            walk.reader.keys("Down")


def pages(walk):
    tabs = [node for node in walk.reader.nodes() if node.get_role_name() == "page tab"]
    if len(tabs) < 3:
        raise Failure(f"there are {len(tabs)} pages")
    for place, tab in enumerate(tabs):
        walk.reader.act(tab, "Press")
        walk.look(f"page {place + 1}")
        if place < 3:
            open_everything(walk, f"page {place + 1}")


def every_page(*command):
    walk = Walk(list(command))
    try:
        walk.reader.settle(1.0)
        walk.look("at first")
        pages(walk)
    finally:
        walk.reader.end()
    walk.report()


def every_list(*command):
    """The list of each pop-up button."""
    walk = Walk(list(command))
    reader = walk.reader
    try:
        reader.settle(1.0)
        tabs = [node for node in reader.nodes() if node.get_role_name() == "page tab"]
        most = 3 if os.environ.get("CORVANA_ALL_PRINTERS") else 1
        for tab in tabs[:most]:
            reader.act(tab, "Press")
            for node in [n for n in reader.nodes() if is_disclosure(n)]:
                reader.act(node, "Press")
            for node in [n for n in reader.nodes() if n.get_role_name() == "combo box"
                         and "enabled" in states(n)]:
                name = heard(node)
                reader.act(node, "ShowMenu")
                reader.wait(f"the list of {name}", lambda: len(reader.windows()) > 1 or
                            any(n.get_role_name() in ("list item", "table cell") for n in reader.nodes()))
                walk.look(f"list of {name}")
                reader.keys("Escape")
    finally:
        reader.end()
    walk.report()


def tab_to_name(walk, name):
    found = walk.tab_to(lambda node: heard(node).startswith(name))
    if not found:
        raise Failure(f"Tab does not reach {name}")
    return found


def every_dialog(*command):
    """Menus, and what opens over the window: by keys, as somebody without a mouse opens them."""
    walk = Walk(list(command))
    reader = walk.reader
    try:
        reader.settle(1.0)
        tab_to_name(walk, "Preset")
        reader.keys("space")
        walk.look("menu of presets")
        reader.type("s")
        walk.look("Save Preset", reader.open_window("Save"))
        reader.keys("Escape")
        reader.focus_window(reader.windows()[0])
        tab_to_name(walk, "Reset")
        reader.keys("space")
        walk.look("menu of Reset")
        reader.keys("Escape")
        reader.forget()
        reader.keys("ctrl+f")
        reader.type("paper")
        reader.wait("how many were found", lambda: any("settings found" in s for s in reader.announced()))
        walk.look("settings found")
        reader.keys("Escape", "Escape")
        tab_to_name(walk, "Choose Pages")
        reader.keys("space")
        walk.look("Choose Pages", reader.open_window("Choose Pages"))
        reader.keys("Escape")
        reader.focus_window(reader.windows()[0])
        reader.keys("F1")
        walk.look("help", reader.open_window())
        reader.keys("Escape")
        reader.focus_window(reader.windows()[0])
    finally:
        reader.end()
    walk.report()


if __name__ == "__main__":
    main({"every_page": every_page, "every_list": every_list, "every_dialog": every_dialog})
