"""What must be true of everything that a screen reader reads."""

import re

from reader import CONTROLS, ITEMS, Atspi, actions, described, heard, labels, states, text_of

# Roles that say nothing: whatever takes the focus has one that does.
SILENT_ROLES = {"filler", "panel", "unknown", "invalid", "layered pane", "scroll pane", "viewport", "frame"}
MARKUP = re.compile(r"<[a-z/!][^>]*>|&(amp|lt|gt|quot|#\d+);", re.IGNORECASE)
WORD = re.compile(r"[A-Za-z]{3,}")
# Names that are the same in each language: of products and files, and units.
SAME_EVERYWHERE = re.compile(r"Corvana .*|[^ ]*\.(pdf|ps)|[0-9]+ dpi")


def is_control(node, state):
    role = node.get_role_name()
    if role in CONTROLS:
        return True
    if role in ITEMS or role in ("scroll bar", "separator"):
        return False  # a part of what it stands in
    return "focusable" in state


def faults_of(node):
    """The sentences that a reviewer would write, each without the node's name."""
    state = states(node)
    role = node.get_role_name()
    said = heard(node)
    for what, text in (("name", said), ("description", node.get_description())):
        if MARKUP.search(text or ""):
            yield f"its {what} reads markup out: {text}"
    if role in ITEMS and not said and "selectable" in state:
        yield "an item without a name"
    if not is_control(node, state):
        return
    if role in SILENT_ROLES:
        yield "takes the focus and does not say what it is"
    if not said:
        yield "has no name"
    yield from faults_of_value(node, role, state)


def faults_of_value(node, role, state):
    if role == "combo box":
        name = node.get_name()
        if not name:
            yield "does not say what is chosen"
        elif not labels(node) and ":" not in name and "：" not in name:
            yield "says what is chosen and not of what"
    if role in ("slider", "spin button"):
        if not node.get_value_iface():
            yield "has no value"
        elif not Atspi.Value.get_minimum_value(node) < Atspi.Value.get_maximum_value(node):
            yield "has no range"
    if role in ("text", "password text") and text_of(node) is None:
        yield "has no text"
    worked = {"push button", "toggle button", "check box", "radio button", "menu item", "combo box"}
    if role in worked and "enabled" in state and not actions(node):
        yield "cannot be worked"


def untranslated(node, known):
    """Whether a name has words and is what it is in English as well."""
    return any(WORD.search(text) and text in known and not SAME_EVERYWHERE.fullmatch(text)
               for text in (node.get_name(), node.get_description()) if text)
