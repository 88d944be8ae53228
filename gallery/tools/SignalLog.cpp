#include "Tools.h"

#include "properties/ValueEditor.h"
#include "Touch.h"

#include <QLineEdit>
#include <QMetaMethod>
#include <QPointer>
#include <QTextBlock>
#include <QTextCursor>

namespace {

constexpr int longestLog = 200; // lines

bool isShown(const QMetaMethod& method)
{
    const QMetaObject* const declaring = method.enclosingMetaObject();
    return method.methodType() == QMetaMethod::Signal && declaring != &QObject::staticMetaObject
        && declaring != &QWidget::staticMetaObject;
}

bool isSecret(const QObject* object)
{
    const auto* field = qobject_cast<const QLineEdit*>(object);
    return field && field->echoMode() != QLineEdit::Normal;
}

QString argumentText(int type, const void* data)
{
    if (type == QMetaType::QString)
        return QLatin1Char('"') + *static_cast<const QString*>(data) + QLatin1Char('"');
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return valueText(QVariant(type, data));
#else
    return valueText(QVariant(QMetaType(type), data)); // a number alone is no type any more
#endif
}

} // namespace

/**
 * Receives every signal of one object.
 *
 * Without a Q_OBJECT of its own it has no more methods than QObject: each further number that is
 * called stands for the signal of that place in the list, as in QSignalSpy.
 */
class SignalListener : public QObject
{
public:
    SignalListener(QObject* object, const QString& name, SignalLog* log)
        : QObject(log)
        , m_object(object)
        , m_name(name)
        , m_log(log)
    {
        const QMetaObject& meta = *object->metaObject();
        for (int index = 0; index < meta.methodCount(); ++index) {
            const QMetaMethod method = meta.method(index);
            if (!isShown(method))
                continue;
            QMetaObject::connect(object, index, this,
                                 QObject::staticMetaObject.methodCount() + m_signals.size(),
                                 Qt::DirectConnection, nullptr);
            m_signals.append(method);
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void** arguments) override
    {
        const int left = QObject::qt_metacall(call, id, arguments);
        if (left < 0 || call != QMetaObject::InvokeMetaMethod || left >= m_signals.size())
            return left;
        report(m_signals.at(left), arguments);
        return -1;
    }

private:
    void report(const QMetaMethod& method, void** arguments)
    {
        QStringList texts;
        for (int i = 0; i < method.parameterCount(); ++i) {
            const int type = method.parameterType(i);
            if (type == QMetaType::UnknownType)
                texts.append(QString::fromLatin1(method.parameterTypes().at(i)));
            else if (isSecret(m_object) && type == QMetaType::QString)
                texts.append(QChar(0x2026));
            else
                texts.append(argumentText(type, arguments[i + 1]));
        }
        m_log->note(
            QStringLiteral("%1: %2(%3)")
                .arg(m_name, QString::fromLatin1(method.name()), texts.join(QStringLiteral(", "))));
    }

    QPointer<QObject> m_object;
    QString m_name;
    SignalLog* m_log;
    QVector<QMetaMethod> m_signals;
};

SignalLog::SignalLog(QWidget* parent)
    : QPlainTextEdit(parent)
{
    setObjectName(QStringLiteral("signalLog"));
    setReadOnly(true);
    setTextInteractionFlags(Qt::NoTextInteraction); // a drag scrolls
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setMaximumBlockCount(longestLog);
    setFrameShape(QFrame::NoFrame);
    setPlaceholderText(tr("Use the widgets of the page: what they tell is listed here."));
    setLayoutDirection(Qt::LeftToRight); // it reads like code
    touch::makeScrollable(this);
}

void SignalLog::listenTo(QObject* object, const QString& name)
{
    m_listeners.append(new SignalListener(object, name, this));
}

void SignalLog::reset()
{
    qDeleteAll(m_listeners);
    m_listeners.clear();
    clear();
    m_last.clear();
    m_repetitions = 0;
}

void SignalLog::note(const QString& text)
{
    m_repetitions = text == m_last ? m_repetitions + 1 : 1;
    m_last = text;
    if (m_repetitions == 1) {
        appendPlainText(text);
        return;
    }
    QTextCursor line(document()->lastBlock());
    line.select(QTextCursor::BlockUnderCursor);
    line.select(QTextCursor::LineUnderCursor);
    line.insertText(QStringLiteral("%1  \u00d7%2").arg(text).arg(m_repetitions));
}
