#include "Devices.h"

#include "Files.h"
#include "Port.h"

#include <cstdio>
#include <fcntl.h>
#include <linux/input.h>
#include <sstream>
#include <sys/ioctl.h>
#include <sys/mount.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace {

void loadModule(const std::string& path)
{
    const int file = open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0 || syscall(SYS_finit_module, file, "", 0) < 0)
        std::perror(path.c_str());
    if (file >= 0)
        close(file);
}

/// The /dev/input/eventN of the input device \a name.
std::string inputDevice(const std::string& name)
{
    for (const std::string& entry : entriesOf("/dev/input")) {
        const std::string device = "/dev/input/" + entry;
        const int file = open(device.c_str(), O_RDONLY | O_CLOEXEC);
        char found[256] = {};
        ioctl(file, EVIOCGNAME(sizeof found), found);
        close(file);
        if (found == name)
            return device;
    }
    return {};
}

} // namespace

void setUpDevices()
{
    for (const char* folder : {"/proc", "/sys", "/dev", "/tmp", "/run"})
        mkdir(folder, 0755);
    mount("proc", "/proc", "proc", 0, nullptr);
    mount("sysfs", "/sys", "sysfs", 0, nullptr);
    mount("devtmpfs", "/dev", "devtmpfs", 0, nullptr);
    const int console = open("/dev/console", O_RDWR);
    for (int file = 0; file <= 2; ++file)
        dup2(console, file);

    std::istringstream modules(readFile("/board/modules"));
    for (std::string module; std::getline(modules, module);)
        loadModule(module);
}

std::vector<std::string> inputEnvironment(const std::string& touchscreen)
{
    return {
        "PATH=/usr/bin:/bin",
        "HOME=/tmp",
        "LC_ALL=C.UTF-8",
        "QT_QPA_PLATFORM=linuxfb",
        "QT_FONT_DPI=96",
        "QT_QPA_FB_HIDECURSOR=1",
        "QT_QPA_FB_NO_LIBINPUT=1", // it would need udev
        "QT_QPA_EVDEV_TOUCHSCREEN_PARAMETERS=" + touchscreen,
        "QT_QPA_EVDEV_KEYBOARD_PARAMETERS=" + inputDevice("QEMU Virtio Keyboard"),
        "QT_QPA_EVDEV_MOUSE_PARAMETERS=" + inputDevice("QEMU Virtio Tablet") + ":abs",
        "BOARD_PORT=" + Port::deviceOf("application"),
    };
}
