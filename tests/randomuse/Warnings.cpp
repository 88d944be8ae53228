#include "Warnings.h"

namespace soak {

namespace {

QStringList& warnings()
{
    static QStringList list;
    return list;
}

void keep(QtMsgType type, const QMessageLogContext&, const QString& message)
{
    // Qt's offscreen plugin says of several requests that it does not know them.
    const bool ofPlugin = message.startsWith(QLatin1String("This plugin does not support "));
    if (type != QtDebugMsg && type != QtInfoMsg && !ofPlugin)
        warnings().append(message);
    if (type == QtFatalMsg)
        fprintf(stderr, "%s\n", qPrintable(message));
}

} // namespace

void collectWarnings()
{
    qInstallMessageHandler(keep);
}

QStringList takeWarnings()
{
    const QStringList taken = warnings();
    warnings().clear();
    return taken;
}

} // namespace soak
