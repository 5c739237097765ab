"""What a voice has said, and whether a pupil would have heard it to its end.

The voice is hasty, so that a lesson does not take an hour. A text that it has ended may still be cut off: where the voice is
told to be silent at a time at which one that is not hasty would still be speaking, and no key was pressed since.
"""

import time

CHARACTERS_A_SECOND = 15
HASTE = 10


def seconds(text):
    """How long a voice takes for a text."""
    return (len(text) + 5) / CHARACTERS_A_SECOND


def write(path, mark, text=""):
    with open(path, "a") as file:  # also what several write at once keeps its lines whole
        file.write(f"{time.monotonic():.3f} {mark} {text}\n")


class Text(str):
    """A text that the voice has begun."""

    ended = False
    cut = False


def texts(lines):
    """The texts in the lines of a transcript, in order."""
    found = []
    since_key = []  # those that no key has ended yet, each with the time at which a voice would have
    free = 0  # when a voice would have said all of them
    for line in lines:
        when, mark, rest = line.split(" ", 2)
        if mark == "START":
            text = Text(rest)
            free = max(float(when), free) + seconds(text)
            since_key.append((text, free))
            found.append(text)
        elif mark == "END":
            for text in reversed(found):
                if text == rest and not text.ended:
                    text.ended = True
                    break
        elif mark == "KEY":
            since_key, free = [], 0
        elif mark == "STOP":
            for text, end in since_key:
                text.cut = text.cut or float(when) < end
            since_key, free = [], 0
    return found
