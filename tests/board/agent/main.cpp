#include "Clock.h"
#include "Commands.h"
#include "Devices.h"
#include "Files.h"
#include "Port.h"

/// The board's first process: sets it up and obeys the host.
int main()
{
    setUpDevices();
    // Devices appear a moment after their modules.
    while (Port::deviceOf("agent").empty() || readFile("/sys/class/graphics/fb0/name").empty())
        pass(10);
    Commands commands;
    Port port(Port::deviceOf("agent"));
    port.writeLine("ready");
    for (;;)
        port.writeLine(commands.run(port.readLine()));
}
