"""A choice that cannot be had: it is said at once, although the focus stays where it was, and the way out
is a button that Tab reaches and that does what it says."""

from envelope import close_alerts, go_to
from reader import Failure, Reader, heard, main


def refusal(*command):
    reader = Reader(list(command))
    try:
        reader.settle(1.0)
        popup = go_to(reader, "Two-Sided Printing", "combo box")
        before = popup.get_name()
        reader.forget()
        reader.keys("Down")
        said = reader.wait("what is said of a choice that is refused",
                           lambda: [text for text in reader.announced() if "Two-Sided Printing" in text])
        print("heard:", said[0])
        if "Glossy" not in said[0]:
            raise Failure(f"it is not said what it collides with: {said[0]}")
        popup.clear_cache()
        if popup.get_name() != before or reader.focused() != popup:
            raise Failure(f"the choice is {popup.get_name()}, and the focus on {heard(reader.focused())}")
        offer = go_to(reader, "Set|Change|Choose|Use|Turn", "push button")
        print("heard:", heard(offer))
        reader.forget()
        reader.keys("space")
        close_alerts(reader)
        reader.wait("the choice that was refused", lambda: popup.clear_cache() or popup.get_name() != before)
        # What was taken back on another page is said as well.
        reader.forget()
        reader.keys("ctrl+z")
        reader.wait("what is taken back", lambda: [text for text in reader.announced() if "Undo" in text])
    finally:
        reader.end()


if __name__ == "__main__":
    main({"refusal": refusal})
