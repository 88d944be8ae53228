#include "Player.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMenu>
#include <QPointer>
#include <QTimer>

#include <cstring>

namespace test {

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

void end(const QPointer<QMenu>& menu, bool choose)
{
    if (choose && !menu->actions().isEmpty())
        menu->actions().first()->trigger();
    if (menu)
        menu->close();
}

QString unexpectedWarning(const Model& model)
{
    for (const QString& warning : takeWarnings()) {
        if (!model.expectsWarning(warning))
            return QStringLiteral("unexpected warning: ") + warning;
    }
    return QString();
}

QString brokenBy(Model& model, const Command& command)
{
    model.perform(command);
    model.check();
    const QString failure = model.takeFailure();
    const QString warning = unexpectedWarning(model);
    return failure.isEmpty() ? warning : failure;
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

MenuCloser::MenuCloser()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool MenuCloser::eventFilter(QObject* watched, QEvent* event)
{
    auto* menu = event->type() == QEvent::Show ? qobject_cast<QMenu*>(watched) : nullptr;
    if (menu) {
        m_choose = !m_choose;
        QTimer::singleShot(0, menu, [menu, choose = m_choose] { end(menu, choose); });
    }
    return false;
}

Progress::Progress(const QString& fileName)
    : m_file(fileName)
{
    if (m_file.open(QIODevice::ReadWrite) && m_file.resize(sizeof(int)))
        m_memory = m_file.map(0, sizeof(int));
}

void Progress::set(int command)
{
    if (m_memory)
        std::memcpy(m_memory, &command, sizeof command);
}

Outcome play(Model& model, const Commands& commands, const std::function<void(int)>& progress)
{
    for (int i = 0; i < commands.size(); ++i) {
        progress(i);
        const QString broken = brokenBy(model, commands.at(i));
        if (!broken.isEmpty())
            return {i, broken};
    }
    return {int(commands.size()), QString()};
}

} // namespace test
