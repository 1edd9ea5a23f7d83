"""One module a language: its texts by the English ones."""
