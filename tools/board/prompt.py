"""A prompt that taps on a running board and takes photos of it."""

from pathlib import Path

from board import BoardError
from suite import SIZE

HELP = """\
  start PROGRAM [ARGUMENT...]   platform-widgets-gallery, board-settings, board-application
  tap X Y                       with a finger
  drag X Y X2 Y2                in half a second
  click X Y                     with the pointer
  key NAME...                   of the hardware keyboard, together: ctrl a, ret, esc
  photo [NAME]                  into NAME.png
  usage                         processor time (ns), wake-ups, resident and proportional memory (kB)
  quit"""


class Prompt:
    def __init__(self, board, folder):
        self.board, self.folder, self.count = board, Path(folder), 0

    def start(self, program, *arguments):
        self.board.start(program, *arguments)
        print(f"first frame after {self.board.do('frame')[0]} ms")

    def tap(self, x, y):
        self.board.do(f"press 0 {int(x)} {int(y)}", "wait 60", "release 0")

    def drag(self, x, y, x2, y2):
        self.board.do(f"press 0 {int(x)} {int(y)}", f"move 0 {int(x2)} {int(y2)} 500", "wait 200",
                      "release 0")

    def click(self, x, y):
        for down in (None, True, False):
            self.board.point(int(x), int(y), down)

    def key(self, *names):
        self.board.send_keys(names, True, False)

    def photo(self, name=None):
        self.board.wait_until_idle()
        self.count += 1
        path = self.folder / f"{name or f'photo{self.count}'}.png"
        self.board.photo().write_png(path)
        print(path)

    def usage(self):
        print(*self.board.do("usage"))

    def help(self):
        print(HELP)


def prompt(make_board, folder):
    board = make_board(SIZE)
    user = Prompt(board, folder)
    user.start("platform-widgets-gallery")
    user.help()
    try:
        while True:
            words = input("board> ").split()
            if words and words[0] == "quit":
                break
            if words:
                obey(user, words)
    except (EOFError, KeyboardInterrupt):
        print()
    board.switch_off()
    return True


def obey(user, words):
    command = getattr(user, words[0], None)
    if words[0].startswith("_") or not callable(command):
        print(f"no such command: {words[0]}; help lists them")
        return
    try:
        command(*words[1:])
    except (BoardError, TypeError, ValueError) as error:
        print(error)
