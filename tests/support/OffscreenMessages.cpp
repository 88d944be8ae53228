#include "OffscreenMessages.h"

#include <QString>

namespace test {

namespace {

QtMessageHandler testHandler = nullptr;

/// On X11 Qt asks where a window lies in its frame, which the window manager may have taken away
/// meanwhile: the server then answers that there is no such window.
bool isOfVanishedFrame(const QString& message)
{
    return message.contains(QLatin1String("XCB error: 3 (BadWindow)"))
        && message.contains(QLatin1String("(TranslateCoords)"));
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool unsupported = message.startsWith(QLatin1String("This plugin does not support "));
    if (!unsupported && !isOfVanishedFrame(message))
        testHandler(type, context, message);
}

} // namespace

void dropOffscreenMessages()
{
    testHandler = qInstallMessageHandler(handleMessage);
}

} // namespace test
