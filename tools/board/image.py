#!/usr/bin/env python3
"""Packs what the emulated board runs into the archive that its kernel unpacks into memory.

usage: image.py ARCH SYSROOT KERNEL BUILD ARCHIVE

ARCH is arm64 or armhf, SYSROOT its Debian file system, KERNEL a folder with the kernel's modules,
BUILD the folder of the cross-build, ARCHIVE the file to write.
"""

import re
import stat
import subprocess
import sys
from pathlib import Path

TRIPLETS = {"arm64": "aarch64-linux-gnu", "armhf": "arm-linux-gnueabihf"}
LOADERS = {"arm64": "lib/ld-linux-aarch64.so.1", "armhf": "lib/ld-linux-armhf.so.3"}
MODULES = ("virtio_pci", "virtio_gpu", "virtio_input", "evdev", "uinput", "virtio_console")
PLUGINS = ("platforms/libqlinuxfb.so", "imageformats/libqsvg.so", "iconengines/libqsvgicon.so")
DATA = ("etc/fonts", "usr/share/fontconfig", "usr/share/fonts/truetype/dejavu",
        "usr/share/qt5/translations/qtbase_de.qm")
AGENT = "tests/board/board-agent"
PROGRAMS = ("gallery/platform-widgets-gallery", "tests/board/board-application",
            "tests/board/board-settings", "tests/board/board-plain-panel")
NEWC = "070701" + "%08x" * 13


class Archive:
    """A cpio archive in the format that the kernel reads."""

    def __init__(self):
        self.parts = []
        self.known = set()

    def add_folder(self, name):
        if name and name not in self.known:
            self.add_folder(name.rpartition("/")[0])
            self._add(name, stat.S_IFDIR | 0o755, b"")

    def add_file(self, name, content, mode=0o755):
        if name not in self.known:
            self.add_folder(name.rpartition("/")[0])
            self._add(name, stat.S_IFREG | mode, content)

    def add_console(self):
        """The kernel opens it for the first process before there is any other device."""
        self.add_folder("dev")
        self._add("dev/console", stat.S_IFCHR | 0o600, b"", device=(5, 1))

    def write(self, path):
        self._add("TRAILER!!!", 0, b"")
        path.write_bytes(b"".join(self.parts))

    def _add(self, name, mode, content, device=(0, 0)):
        self.known.add(name)
        encoded = name.encode() + b"\0"
        header = NEWC % (len(self.known), mode, 0, 0, 1, 0, len(content), 0, 0, *device,
                         len(encoded), 0)
        for part in (header.encode() + encoded, content):
            self.parts.append(part + b"\0" * (-len(part) % 4))


def module_files(kernel):
    """The modules, each after those that it needs."""
    files = {path.stem.replace("-", "_"): path for path in kernel.glob("lib/modules/**/*.ko")}
    ordered = {}

    def add(name):
        if name in ordered or name not in files: # what is not there is built into the kernel
            return
        content = files[name].read_bytes()
        for needed in re.search(rb"\0depends=([^\0]*)\0", content)[1].decode().split(","):
            add(needed.replace("-", "_"))
        ordered[name] = content

    for module in MODULES:
        add(module)
    return ordered


def needed_libraries(file):
    result = subprocess.run(["readelf", "-d", file], capture_output=True, text=True, check=True)
    return re.findall(r"\(NEEDED\).*\[(.*)\]", result.stdout)


class Packer:
    """Collects programs and plugins with the libraries that they need."""

    def __init__(self, arch, sysroot, build):
        self.archive = Archive()
        self.sysroot = sysroot
        self.libraries = f"usr/lib/{TRIPLETS[arch]}"
        self.folders = [sysroot / "lib" / TRIPLETS[arch], sysroot / self.libraries,
                        *{file.parent for file in build.glob("**/libplatform_*.so.1.2")}]

    def add_program(self, name, file):
        if name in self.archive.known:
            return
        self.archive.add_file(name, file.read_bytes())
        for library in needed_libraries(file):
            places = [folder / library for folder in self.folders if (folder / library).exists()]
            if not places:
                sys.exit(f"image.py: {file} needs {library}, which is nowhere")
            self.add_program(f"{self.libraries}/{library}", places[0])

    def add_plugin(self, name):
        name = f"{self.libraries}/qt5/plugins/{name}"
        self.add_program(name, self.sysroot / name)

    def add_data(self, name):
        start = self.sysroot / name
        for path in [start] if start.is_file() else sorted(start.rglob("*")):
            if path.is_file():
                self.archive.add_file(str(path.relative_to(self.sysroot)), path.read_bytes(), 0o644)

    def add_modules(self, kernel):
        modules = module_files(kernel)
        for name, content in modules.items():
            self.archive.add_file(f"board/{name}.ko", content, 0o644)
        lines = "".join(f"/board/{name}.ko\n" for name in modules)
        self.archive.add_file("board/modules", lines.encode(), 0o644)


def pack(arch, sysroot, kernel, build, target):
    packer = Packer(arch, sysroot, build)
    packer.archive.add_console()
    packer.archive.add_file("init", (build / AGENT).read_bytes())
    packer.add_modules(kernel)
    packer.add_program(LOADERS[arch], sysroot / LOADERS[arch])
    for program in PROGRAMS:
        packer.add_program(f"usr/bin/{Path(program).name}", build / program)
    for plugin in PLUGINS:
        packer.add_plugin(plugin)
    for name in DATA:
        packer.add_data(name)
    packer.archive.write(target)


if __name__ == "__main__":
    if len(sys.argv) != 6:
        sys.exit(__doc__)
    pack(sys.argv[1], *map(Path, sys.argv[2:]))
