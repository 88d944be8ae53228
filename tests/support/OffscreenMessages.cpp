#include "OffscreenMessages.h"

#include <QString>

namespace test {

namespace {

QtMessageHandler testHandler = nullptr;

void handleMessage(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (!message.startsWith(QLatin1String("This plugin does not support ")))
        testHandler(type, context, message);
}

} // namespace

void dropOffscreenMessages()
{
    testHandler = qInstallMessageHandler(handleMessage);
}

} // namespace test
