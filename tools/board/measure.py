"""Measures what the device pays, on a board with the common screen."""

from suite import SIZE
from user import User

GALLERY = "platform-widgets-gallery"
PANELS = {"the gallery": GALLERY, "the settings example": "board-settings",
          "the same panel without the library": "board-plain-panel"}
START = 8000 # milliseconds, after which nothing that only greets the user moves any more
REST = 10000


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

    def pages(self):
        """What the gallery calls its pages, and their titles in its list."""
        self.user.starts()
        self.user.opens("gallery")
        return list(zip(*(self.user.ask("property", "window", name)
                          for name in ("pages", "titles"))))

    def page_changes(self):
        for page, title in self.pages()[1:]:
            entry = f"pageList > {title}"
            self.user.scrolls_to(entry, "pageList")
            before = Usage(self.board).milliseconds
            self.board.do(*self.user.tap(entry), "wait 1000") # an animation greets for longer
            yield f"the gallery's page {page} opened", Usage(self.board).milliseconds - before
            self.board.wait_until_idle()


def table(head, rows):
    rule = ["---"] + ["--:"] * (len(head) - 1)
    return "".join(f"| {' | '.join(map(str, row))} |\n" for row in (head, rule, *rows))


def report(board):
    meter = Meter(board)
    panels = [[name, *meter.panel(program)] for name, program in PANELS.items()]
    rest = [[f"the gallery's page {page}", meter.wake_ups(GALLERY, "--page", page)]
            for page, _ in meter.pages()]
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
