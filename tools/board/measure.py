"""Measures what the device pays, on a board with the common screen."""

from suite import SIZE
from user import User, tap_at

GALLERY = "platform-widgets-gallery"
PANELS = {"the gallery": GALLERY, "the settings example": "board-settings",
          "the same panel without the library": "board-plain-panel"}
PAGES = ("overview", "frames", "grid-button", "switch", "text-entry", "battery", "scroll-indicator",
         "animation", "file-browser")
START = 8000 # milliseconds, after which nothing that only greets the user moves any more
REST = 10000
GALLERY_ROW = 44 # pixels, of its list of pages
GALLERY_LIST = 52, 60 # where the list begins, and a column inside it


class Usage:
    def __init__(self, board):
        words, = board.do("usage")
        nanoseconds, self.wake_ups, self.resident, self.proportional = map(int, words.split())
        self.milliseconds = nanoseconds / 1e6


class Meter:
    def __init__(self, board):
        self.board = board
        self.user = User(board, None, "")

    def panel(self, program):
        """Milliseconds to the first frame, processor time until at rest, memory."""
        self.board.start(program)
        frame, = self.board.do("frame")
        self.board.wait_until_idle()
        usage = Usage(self.board)
        figures = (usage.milliseconds, usage.resident, usage.proportional)
        return [frame, *(f"{figure:,.0f}" for figure in figures)]

    def wake_ups(self, program, *arguments):
        self.board.start(program, *arguments)
        self.board.do("frame", f"wait {START}")
        before = Usage(self.board).wake_ups
        self.board.do(f"wait {REST}")
        return Usage(self.board).wake_ups - before

    def work(self, *commands, times=1):
        """Processor time of what the commands start, in milliseconds."""
        self.board.wait_until_idle()
        before = Usage(self.board).milliseconds
        for _ in range(times):
            self.board.do(*commands)
            self.board.wait_until_idle()
        return (Usage(self.board).milliseconds - before) / times

    def works(self):
        user = self.user
        user.starts()
        user.opens("switches")
        yield "a switch toggled", self.work(*user.tap("plain"), times=10)
        user.opens("fields")
        yield "a number pad opened for the first time", self.work(*user.tap("channel"))
        yield "a key of it tapped", self.work(*user.tap("keypad > Backspace"), times=10)
        yield "it closed by Cancel", self.work(*user.tap("keypad > Cancel"))
        yield "it opened again", self.work(*user.tap("channel"))
        user.opens("browser")
        yield "a directory of two entries opened", self.work(*user.tap("FileBrowser > 2019"))
        user.opens("browser")
        user.taps("FileBrowser > QComboBox")
        user.taps("popup > /tmp/notes")
        yield "a directory of 50 files opened", self.work(*user.tap("FileBrowser > many"))
        user.opens("indicator")
        drag = user.drag("area", 0, -300, 1000)
        yield "a list dragged for a second", self.work(*drag, "wait 200", "release 0")
        yield from self.page_changes()

    def page_changes(self):
        self.board.start(GALLERY)
        self.board.do("frame", f"wait {START}")
        top, x = GALLERY_LIST
        for row, page in enumerate(PAGES[1:-2], 1):
            tap = tap_at(x, top + row * GALLERY_ROW + GALLERY_ROW // 2)
            before = Usage(self.board).milliseconds
            self.board.do(*tap, "wait 1000") # some pages never come to rest
            yield f"the gallery's page {page} opened", Usage(self.board).milliseconds - before


def table(head, rows):
    rule = ["---"] + ["--:"] * (len(head) - 1)
    return "".join(f"| {' | '.join(map(str, row))} |\n" for row in (head, rule, *rows))


def report(board):
    meter = Meter(board)
    panels = [[name, *meter.panel(program)] for name, program in PANELS.items()]
    rest = [[f"the gallery's page {page}", meter.wake_ups(GALLERY, "--page", page)]
            for page in PAGES]
    rest += [[name, meter.wake_ups(program)] for name, program in list(PANELS.items())[1:]]
    works = [[name, f"{milliseconds:.1f}"] for name, milliseconds in meter.works()]
    return "\n".join([
        table(["Started", "first frame, ms", "processor time until at rest, ms",
               "resident memory, kB", "proportional memory, kB"], panels),
        table(["At rest", "wake-ups in 10 s"], rest),
        table(["Done", "processor time, ms"], works)])


def measure(make_board):
    board = make_board(SIZE)
    try:
        print(report(board), end="")
    finally:
        board.switch_off()
    return True
