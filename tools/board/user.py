"""Somebody who uses the application on the board, and tells what is to be seen."""

import json
from pathlib import Path

from picture import Picture

TAP = 60 # milliseconds that a finger stays


class Unexpected(Exception):
    """The application or the screen does not show what it must."""


class References:
    """The pictures that the screen is compared with."""

    def __init__(self, folder, arch, found, accept=False):
        self.folder, self.arch, self.found, self.accept = Path(folder), arch, Path(found), accept

    def check(self, name, picture):
        """An architecture may have a picture of its own, where it paints other pixels."""
        picture.write_png(self.found / f"{name}.png")
        common, own = self.folder / f"{name}.png", self.folder / self.arch / f"{name}.png"
        reference = own if own.exists() else common
        if reference.exists() and Picture.read_png(reference) == picture:
            return
        if self.accept:
            picture.write_png(own if common.exists() and self.arch != "arm64" else common)
        elif not reference.exists():
            raise Unexpected(f"there is no reference picture {common}")
        else:
            count = picture.differing_pixels(Picture.read_png(reference))
            what = "its size differs" if count is None else f"{count} pixels differ"
            raise Unexpected(f"the screen does not look as in {reference}: {what}")


class User:
    def __init__(self, board, references, theme):
        self.board, self.references, self.theme = board, references, theme

    # What is done. Each waits until the application has come to rest.

    def starts(self, *appearance, ratio=1):
        """Starts the application anew."""
        environment = {"QT_SCALE_FACTOR": str(ratio)} if ratio != 1 else None
        self.board.start("board-application", *appearance, environment=environment)
        while "ready" not in self.board.application.read():
            pass
        self.board.wait_until_idle()

    def opens(self, scene):
        self.ask("open", scene)
        self.board.wait_until_idle()

    def does(self, *gestures):
        self.board.do(*gestures)
        self.board.wait_until_idle()

    def taps(self, *paths, pause=0):
        """Taps one after the other, without a look at the screen in between."""
        self.does(*[step for path in paths for step in (*self.tap(path), f"wait {pause}")])

    def taps_without_waiting(self, *steps):
        """Taps parts, with other commands in between."""
        self.does(*[command for step in steps
                    for command in ([step] if step.startswith("wait ") else self.tap(step))])

    def taps_at(self, path, x, y):
        """Taps at a distance from the top left corner of a part."""
        left, top, _, _ = self.place(path)
        self.does(*tap_at(left + x, top + y))

    def types(self, keys):
        """Types characters on the open keypad."""
        for key in keys:
            self.taps(f"keypad > {key}")

    def drags(self, path, x, y, milliseconds=300, rest=200):
        """Drags from the middle of a part and lets the finger rest before it is lifted."""
        self.does(*self.drag(path, x, y, milliseconds), f"wait {rest}", "release 0")

    def scrolls_to(self, path, area, y=-100):
        """Drags an area until a part of it comes into sight."""
        for _ in range(10):
            if self.ask("place", path) is not None:
                return
            self.drags(area, 0, y)
        self.place(path)

    def presses(self, *keys):
        """Presses keys of the hardware keyboard at the same time."""
        self.board.send_keys(keys, True, False)
        self.board.wait_until_idle()

    def clicks(self, path):
        """Clicks with the pointer."""
        x, y = self.middle(path)
        for down in (None, True, False):
            self.board.point(x, y, down)
            self.board.wait_until_idle()

    def clicks_with_key(self, key, path):
        """Clicks while a key of the keyboard is held, which repeats itself all the time."""
        x, y = self.middle(path)
        self.board.send_keys([key], True)
        for down in (None, True, False):
            self.board.point(x, y, down)
            self.board.do("wait 100")
        self.board.send_keys([key], False)
        self.board.wait_until_idle()

    def calls(self, path, slot):
        """Has the program itself do something."""
        self.ask("call", path, slot)
        self.board.wait_until_idle()

    def sets(self, path, name, value):
        self.ask("set", path, name, value)
        self.board.wait_until_idle()

    # Gestures, for does().

    def tap(self, path):
        return tap_at(*self.middle(path))

    def drag(self, path, x, y, milliseconds=300):
        left, top = self.middle(path)
        return [f"press 0 {left} {top}", "wait 50", f"move 0 {left + x} {top + y} {milliseconds}"]

    def keeps_finger_down(self, *gestures):
        """Does something and does not wait: what is touched may move all the time."""
        self.board.do(*gestures)

    # What must be seen.

    def sees(self, path, name, value):
        found = self.ask("property", path, name)
        self.expect(f"{name} of {path}", found, value)

    def sees_between(self, path, name, low, high):
        found = self.ask("property", path, name)
        if not low < found < high:
            raise Unexpected(f"{name} of {path}: {found} is not between {low} and {high}")

    def sees_no(self, path):
        self.expect(f"place of {path}", self.ask("place", path), None)

    def sees_nothing_cut_off(self):
        self.expect("what is cut off", self.ask("cut off", "window"), [])

    def sees_keypads(self, *fields):
        self.expect("fields with an open keypad", self.ask("keypads"), sorted(fields))

    def sees_focus(self, name):
        self.expect("focus", self.ask("focus"), name)

    def is_told(self, *entries):
        """What the application was told by the widgets since this was last looked at."""
        self.expect("announcements", self.ask("journal"), list(entries))

    def is_told_first(self, *entries):
        """As is_told(), whatever comes after."""
        self.expect("announcements", self.ask("journal")[:len(entries)], list(entries))

    def sees_picture(self, name, path="window"):
        x, y, width, height = self.place(path)
        self.references.check(f"{self.theme}-{name}".replace(" ", "-"),
                              self.board.photo().part(x, y, width, height))

    # How it is found out.

    def expect(self, what, found, expected):
        if found != expected:
            raise Unexpected(f"{what}: {json.dumps(found)} instead of {json.dumps(expected)}")

    def ask(self, *question):
        self.board.application.write(json.dumps(question))
        reply = json.loads(self.board.application.read())
        if "error" in reply:
            raise Unexpected(f"{' '.join(map(str, question))}: {reply['error']}")
        return reply["answer"]

    def place(self, path):
        place = self.ask("place", path)
        if place is None:
            raise Unexpected(f"{path} is not to be seen")
        return place

    def middle(self, path):
        x, y, width, height = self.place(path)
        return x + width // 2, y + height // 2


def tap_at(x, y):
    return [f"press 0 {x} {y}", f"wait {TAP}", "release 0"]
