#include "Touchscreen.h"

#include "Clock.h"
#include "Files.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <linux/uinput.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

constexpr int reportInterval = 10; // milliseconds, as of a common touch screen
constexpr int greatestTracking = 65535;
constexpr int notTouching = -1;

} // namespace

Touchscreen::Touchscreen(int width, int height)
    : m_file(open("/dev/uinput", O_RDWR | O_CLOEXEC))
{
    ioctl(m_file, UI_SET_EVBIT, EV_KEY);
    ioctl(m_file, UI_SET_KEYBIT, BTN_TOUCH);
    ioctl(m_file, UI_SET_EVBIT, EV_ABS);
    ioctl(m_file, UI_SET_PROPBIT, INPUT_PROP_DIRECT);
    addAxis(ABS_X, width - 1);
    addAxis(ABS_Y, height - 1);
    addAxis(ABS_MT_SLOT, contacts - 1);
    addAxis(ABS_MT_TRACKING_ID, greatestTracking);
    addAxis(ABS_MT_POSITION_X, width - 1);
    addAxis(ABS_MT_POSITION_Y, height - 1);

    uinput_setup setup = {};
    setup.id.bustype = BUS_VIRTUAL;
    std::strcpy(setup.name, "Board touchscreen");
    ioctl(m_file, UI_DEV_SETUP, &setup);
    if (ioctl(m_file, UI_DEV_CREATE) < 0)
        std::perror("touchscreen");
}

Touchscreen::~Touchscreen()
{
    close(m_file);
}

void Touchscreen::addAxis(int axis, int maximum)
{
    uinput_abs_setup setup = {};
    setup.code = __u16(axis);
    setup.absinfo.maximum = maximum;
    ioctl(m_file, UI_SET_ABSBIT, axis);
    ioctl(m_file, UI_ABS_SETUP, &setup);
}

std::string Touchscreen::device() const
{
    char name[64] = {};
    ioctl(m_file, UI_GET_SYSNAME(sizeof name), name);
    for (const std::string& entry : entriesOf(std::string("/sys/devices/virtual/input/") + name)) {
        if (entry.compare(0, 5, "event") == 0)
            return "/dev/input/" + entry;
    }
    return {};
}

void Touchscreen::emitEvent(int type, int code, int value)
{
    input_event event = {};
    event.type = __u16(type);
    event.code = __u16(code);
    event.value = value;
    if (write(m_file, &event, sizeof event) < 0)
        std::perror("touchscreen");
}

bool Touchscreen::isAnyDown() const
{
    return std::any_of(std::begin(m_down), std::end(m_down), [](bool down) { return down; });
}

void Touchscreen::report(int contact, int tracking, Place place)
{
    const bool down = tracking != notTouching;
    const bool wasAnyDown = isAnyDown();
    emitEvent(EV_ABS, ABS_MT_SLOT, contact);
    emitEvent(EV_ABS, ABS_MT_TRACKING_ID, tracking);
    if (down) {
        emitEvent(EV_ABS, ABS_MT_POSITION_X, place.x);
        emitEvent(EV_ABS, ABS_MT_POSITION_Y, place.y);
        emitEvent(EV_ABS, ABS_X, place.x);
        emitEvent(EV_ABS, ABS_Y, place.y);
    }
    m_down[contact] = down;
    m_places[contact] = place;
    if (isAnyDown() != wasAnyDown)
        emitEvent(EV_KEY, BTN_TOUCH, int(isAnyDown()));
    emitEvent(EV_SYN, SYN_REPORT, 0);
}

void Touchscreen::press(int contact, int x, int y)
{
    m_tracking = m_tracking % greatestTracking + 1;
    report(contact, m_tracking, {x, y});
}

void Touchscreen::move(int contact, int x, int y, int milliseconds)
{
    const Place from = m_places[contact];
    const int steps = std::max(1, milliseconds / reportInterval);
    for (int step = 1; step <= steps; ++step) {
        pass(milliseconds / steps);
        const Place place = {from.x + (x - from.x) * step / steps,
                             from.y + (y - from.y) * step / steps};
        emitEvent(EV_ABS, ABS_MT_SLOT, contact);
        emitEvent(EV_ABS, ABS_MT_POSITION_X, place.x);
        emitEvent(EV_ABS, ABS_MT_POSITION_Y, place.y);
        emitEvent(EV_ABS, ABS_X, place.x);
        emitEvent(EV_ABS, ABS_Y, place.y);
        emitEvent(EV_SYN, SYN_REPORT, 0);
        m_places[contact] = place;
    }
}

void Touchscreen::release(int contact)
{
    report(contact, notTouching, m_places[contact]);
}
