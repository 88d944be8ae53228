#include "PlatformMessages.h"

#include <QString>

namespace test {

namespace {

QtMessageHandler testHandler = nullptr;

/// What Qt asks of the X server about a window arrives when that is gone already: where it lies in
/// a frame that the window manager has taken away meanwhile, or to give the focus to a pop-up that
/// has been hidden again.
bool isOfVanishedWindow(const QString& message)
{
    const auto isError = [&](const char* error, const char* request) {
        return message.contains(QLatin1String(error)) && message.contains(QLatin1String(request));
    };
    return isError("XCB error: 3 (BadWindow)", "(TranslateCoords)")
        || isError("XCB error: 8 (BadMatch)", "(SetInputFocus)");
}

/// A window that is hidden and shown at once, before the X server has told of the first.
bool isOfShownAgain(const QString& message)
{
    return message.contains(
        QLatin1String("setNetWmStateOnUnmappedWindow() called on mapped window"));
}

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    const bool unsupported = message.startsWith(QLatin1String("This plugin does not support "));
    if (!unsupported && !isOfVanishedWindow(message) && !isOfShownAgain(message))
        testHandler(type, context, message);
}

} // namespace

void dropPlatformMessages()
{
    testHandler = qInstallMessageHandler(handleMessage);
}

} // namespace test
