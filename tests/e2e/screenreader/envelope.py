"""Somebody who sees nothing prints an envelope: everything is found by its name, and everything that
is decided is decided by what is heard."""

import re

from reader import Atspi, Failure, Reader, described, heard, main
from rules import faults_of


def go_to(reader, name, role=None):
    """Presses Tab until what is read out begins like this."""
    heard_on_the_way = []
    for _ in range(60):
        node = reader.focused()
        if node and re.match(name, heard(node)) and (not role or node.get_role_name() == role):
            return node
        heard_on_the_way.append(heard(node) if node else "nothing")
        reader.keys("Tab")
    raise Failure(f"Tab does not reach {name}; it reaches {heard_on_the_way}")


def choose(reader, name, choice):
    """Goes down the list of a pop-up button until the choice is read out."""
    popup = go_to(reader, name, "combo box")
    reader.keys("Home")
    for _ in range(40):
        if popup.get_name() == choice:
            return popup
        before = popup.get_name()
        reader.keys("Down")
        popup.clear_cache()
        if popup.get_name() == before:
            break
    raise Failure(f"{name} has no choice {choice}; the last is {popup.get_name()}")


def turn_to(reader, page):
    """The tab list is one stop of Tab; arrows turn the pages."""
    for _ in range(60):
        node = reader.focused()
        if node and node.get_role_name() in ("page tab list", "page tab"):
            break
        reader.keys("Tab")
    else:
        raise Failure("Tab does not reach the pages")
    for _ in range(8):
        tab = next(n for n in reader.nodes() if n.get_role_name() == "page tab"
                   and n.get_state_set().contains(Atspi.StateType.SELECTED))
        if heard(tab) == page:
            return
        reader.keys("Right")
    raise Failure(f"there is no page {page}")


def hear_alert(reader):
    """What an alert says, and that its first button has the focus."""
    alert = reader.open_window()
    said = " ".join(heard(n) for n in reader.nodes(alert) if n.get_role_name() in ("label", "push button"))
    return alert, said


def envelope(*command):
    reader = Reader(list(command))
    try:
        reader.settle(1.0)
        choose(reader, "Paper Size", "Envelope DL")
        # The paper brings its medium along, with instructions.
        if len(reader.windows()) > 1:
            close_alerts(reader)
        turn_to(reader, "Print Setting")
        media = go_to(reader, "Media Type", "combo box")
        if "Envelope" not in media.get_name():
            choose(reader, "Media Type", "Envelopes")
        close_alerts(reader)
        turn_to(reader, "Summary")
        table = go_to(reader, "Summary", "table")
        cells = [heard(cell) for cell in reader.nodes(table) if cell.get_role_name() == "table cell"]
        for line in ("Envelope DL", "Envelopes"):
            if line not in cells:
                raise Failure(f"the summary does not say {line}: {cells}")
        reader.forget()
        go_to(reader, "Print$", "push button")
        reader.keys("space")
        close_alerts(reader)
        reader.wait("the end of the program", lambda: reader.process.poll() is not None)
        if reader.process.returncode != 0:
            raise Failure(f"the program ended with status {reader.process.returncode}")
    finally:
        reader.end()


def close_alerts(reader):
    """Hears each alert that has come up, and answers it with Enter."""
    for _ in range(3):
        reader.settle(0.5)
        if reader.process.poll() is not None:
            return
        if len(reader.windows()) < 2:
            reader.focus_window(reader.windows()[0])
            return
        alert, said = hear_alert(reader)
        print("heard:", said)
        faults = [f"{described(node)}: {fault}" for node in reader.nodes(alert) for fault in faults_of(node)]
        if faults:
            raise Failure("; ".join(faults))
        if len(said.split()) < 5:
            raise Failure(f"an alert says no more than: {said}")
        reader.keys("Return")
    raise Failure("alerts without end")


if __name__ == "__main__":
    main({"envelope": envelope})
