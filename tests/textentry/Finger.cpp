#include "Finger.h"

#include <QProcess>
#include <QtTest>
#include <QWidget>

namespace finger {

namespace {

bool xdotool(const QStringList& arguments)
{
    // Not waitForFinished(): the X server may wait for this very application.
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(QStringLiteral("xdotool"), arguments);
    const bool ended =
        QTest::qWaitFor([&] { return process.state() == QProcess::NotRunning; }, 10000);
    return ended && process.error() == QProcess::UnknownError && process.exitCode() == 0;
}

QStringList moveTo(const QPoint& position)
{
    return {QStringLiteral("mousemove"), QString::number(position.x()),
            QString::number(position.y())};
}

} // namespace

bool tap(const QPoint& globalPosition)
{
    return xdotool(moveTo(globalPosition) << QStringLiteral("click") << QStringLiteral("1"));
}

bool tap(const QWidget* widget)
{
    return tap(widget->mapToGlobal(widget->rect().center()));
}

bool press(const QPoint& globalPosition)
{
    return xdotool(moveTo(globalPosition) << QStringLiteral("mousedown") << QStringLiteral("1"));
}

bool release()
{
    return xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

bool move(const QPoint& globalPosition)
{
    return xdotool(moveTo(globalPosition));
}

bool key(const char* name)
{
    return xdotool({QStringLiteral("key"), QString::fromLatin1(name)});
}

} // namespace finger
