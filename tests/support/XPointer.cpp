#include "XPointer.h"

#include <QProcess>
#include <QStringList>
#include <QtTest>
#include <QWidget>

namespace test {

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

bool XPointer::tap(const QPoint& globalPosition)
{
    return xdotool(moveTo(globalPosition) << QStringLiteral("click") << QStringLiteral("1"));
}

bool XPointer::tap(const QWidget& widget)
{
    return tap(widget, widget.rect().center());
}

bool XPointer::tap(const QWidget& widget, const QPoint& position)
{
    return tap(widget.mapToGlobal(position));
}

bool XPointer::press(const QPoint& globalPosition)
{
    return xdotool(moveTo(globalPosition) << QStringLiteral("mousedown") << QStringLiteral("1"));
}

bool XPointer::release()
{
    return xdotool({QStringLiteral("mouseup"), QStringLiteral("1")});
}

bool XPointer::move(const QPoint& globalPosition)
{
    return xdotool(moveTo(globalPosition));
}

bool XPointer::drag(const QPoint& from, const QPoint& to)
{
    constexpr int moves = 10;
    QStringList arguments = moveTo(from) << QStringLiteral("mousedown") << QStringLiteral("1");
    for (int i = 1; i <= moves; ++i) {
        arguments << QStringLiteral("sleep") << QStringLiteral("0.02")
                  << moveTo(from + (to - from) * i / moves);
    }
    // A pause before the end, or what was dragged flies on.
    arguments << QStringLiteral("sleep") << QStringLiteral("0.02");
    return xdotool(arguments << QStringLiteral("mouseup") << QStringLiteral("1"));
}

bool XPointer::key(const char* name)
{
    return xdotool({QStringLiteral("key"), QString::fromLatin1(name)});
}

} // namespace test
