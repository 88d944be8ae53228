"""An emulated board: a processor, a frame buffer, a touchscreen, a keyboard and a pointer."""

import json
import socket
import subprocess
import tempfile
import time
from pathlib import Path

from picture import Picture

MACHINES = {
    "arm64": ("qemu-system-aarch64", "-M", "virt", "-cpu", "cortex-a57"),
    "armhf": ("qemu-system-arm", "-M", "virt,highmem=off", "-cpu", "cortex-a15"),
}
# 250 million instructions a second: the board's time follows what it has done, so that a busy
# desktop changes nothing. While it has nothing to do it skips to its next timer, so that nobody
# waits. Its calendar begins on the same day.
CLOCK = ("-smp", "1", "-icount", "shift=2,sleep=off", "-rtc", "base=2020-02-03T04:05:06,clock=vm")
QUIET = 300 # milliseconds without any activity, shorter than half the blinking of a cursor
LIMIT = 60000 # milliseconds of the board
TIMEOUT = 300 # seconds of the desktop


class BoardError(Exception):
    pass


class Lines:
    """A socket that speaks in lines."""

    def __init__(self, path, process):
        deadline = time.monotonic() + TIMEOUT
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(TIMEOUT)
        while True:
            try:
                self.socket.connect(str(path))
                break
            except OSError:
                if process.poll() is not None or time.monotonic() > deadline:
                    raise BoardError("the emulator does not start") from None
                time.sleep(0.05)
        self.file = self.socket.makefile("r", encoding="utf-8")

    def read(self):
        try:
            line = self.file.readline()
        except TimeoutError:
            raise BoardError("the board does not answer") from None
        if not line:
            raise BoardError("the board is gone")
        return line.rstrip("\n")

    def write(self, line):
        self.socket.sendall(line.encode() + b"\n")


class Board:
    """Is ready once it is made, and has to be switched off."""

    def __init__(self, arch, kernel, image, size, log):
        self.arch, self.size, self.log = arch, size, log
        self.folder = tempfile.TemporaryDirectory(prefix="board")
        path = Path(self.folder.name)
        width, height = size
        self.screendump = path / "screen"
        command = [
            *MACHINES[arch], *CLOCK, "-m", "1G", "-nodefaults", "-display", "none", "-no-reboot",
            "-kernel", kernel, "-initrd", image,
            "-append", "console=ttyAMA0 quiet consoleblank=0 vt.global_cursor_default=0",
            "-device", f"virtio-gpu-pci,xres={width},yres={height}",
            "-device", "virtio-keyboard-pci", "-device", "virtio-tablet-pci",
            "-device", "virtio-serial-pci",
            "-chardev", f"socket,id=agent,path={path}/agent,server=on,wait=off",
            "-device", "virtserialport,chardev=agent,name=agent",
            "-chardev", f"socket,id=application,path={path}/application,server=on,wait=off",
            "-device", "virtserialport,chardev=application,name=application",
            "-serial", f"file:{log}", "-qmp", f"unix:{path}/qmp,server=on,wait=off"]
        with open(f"{log}.emulator", "w", encoding="utf-8") as messages:
            self.process = subprocess.Popen(
                [str(word) for word in command],
                stdin=subprocess.DEVNULL, stdout=messages, stderr=messages)
        try:
            self.connect(path)
        except BaseException:
            self.process.kill()
            self.process.wait()
            raise

    def connect(self, path):
        self.monitor = Lines(path / "qmp", self.process)
        self.monitor.read()
        self.control("qmp_capabilities")
        self.agent = Lines(path / "agent", self.process)
        self.application = Lines(path / "application", self.process)
        if self.agent.read() != "ready":
            raise BoardError("the board does not get ready")

    def switch_off(self):
        self.agent.write("off")
        try:
            self.process.wait(timeout=30)
        except subprocess.TimeoutExpired:
            self.process.kill()
            self.process.wait()
        self.folder.cleanup()

    def control(self, command, **arguments):
        """Asks the emulator."""
        self.monitor.write(json.dumps({"execute": command, "arguments": arguments}))
        while True:
            answer = json.loads(self.monitor.read())
            if "error" in answer:
                raise BoardError(answer["error"]["desc"])
            if "return" in answer:
                return answer["return"]

    def do(self, *commands):
        """Has the board carry out commands, one right after the other; gives what they answer."""
        self.agent.write(";".join(commands))
        return self.agent.read().split(";")

    def wait_until_idle(self):
        answer, = self.do(f"idle {QUIET} {LIMIT}")
        if answer != "ok":
            running, = self.do("running")
            raise BoardError("the application does not come to rest" if running == "yes"
                             else "the application has ended")

    def start(self, program, *arguments, environment=None):
        variables = [f"{name}={value}" for name, value in (environment or {}).items()]
        self.do(" ".join(["start", *variables, f"/usr/bin/{program}", *arguments]))

    def photo(self):
        """What the screen shows."""
        self.control("screendump", filename=str(self.screendump))
        return Picture.read_ppm(self.screendump)

    def send_keys(self, names, *states):
        """Presses or releases keys of the hardware keyboard, by the emulator's names.

        Several states follow each other at once: a key that is down for a while repeats itself.
        """
        self.control("input-send-event", events=[
            {"type": "key", "data": {"down": down, "key": {"type": "qcode", "data": name}}}
            for down in states for name in names])

    def point(self, x, y, down=None):
        """Moves the pointer, and presses or releases its button."""
        events = [{"type": "abs", "data": {"axis": axis, "value": value * 32767 // (length - 1)}}
                  for axis, value, length in zip("xy", (x, y), self.size)]
        if down is not None:
            events.append({"type": "btn", "data": {"down": down, "button": "left"}})
        self.control("input-send-event", events=events)
