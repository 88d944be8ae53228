#include "Desktop.h"

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
#include <QApplication>
#include <QDesktopWidget>
#else
#include <QGuiApplication>
#include <QJsonArray>

#include <qpa/qplatformnativeinterface.h>
#endif

namespace test {

namespace {

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

/// Qt 5 has one screen on this platform, but the desktop widget can be given any geometry.
QRect around(const QVector<QRect>& screens)
{
    QRect all;
    for (const QRect& screen : screens)
        all |= screen;
    return all;
}

#else

/// A function of Qt 6's platform plugin, which its own tests use.
template <typename Function>
Function* platformFunction(const char* name)
{
    QPlatformNativeInterface* platform = QGuiApplication::platformNativeInterface();
    return reinterpret_cast<Function*>(platform->nativeResourceForIntegration(name));
}

QJsonObject configuration()
{
    using Get = QJsonObject(QPlatformNativeInterface*);
    return platformFunction<Get>("configuration")(QGuiApplication::platformNativeInterface());
}

void setConfiguration(const QJsonObject& value)
{
    using Set = void(const QJsonObject&, QPlatformNativeInterface*);
    platformFunction<Set>("setConfiguration")(value, QGuiApplication::platformNativeInterface());
}

/// \a configuration with other screens, each with a name of its own.
QJsonObject withScreens(QJsonObject configuration, const QVector<QRect>& screens)
{
    QJsonArray array;
    for (const QRect& screen : screens) {
        array.append(QJsonObject{{QStringLiteral("name"), QString::number(array.size())},
                                 {QStringLiteral("x"), screen.x()},
                                 {QStringLiteral("y"), screen.y()},
                                 {QStringLiteral("width"), screen.width()},
                                 {QStringLiteral("height"), screen.height()}});
    }
    configuration.insert(QStringLiteral("screens"), array);
    return configuration;
}

#endif

} // namespace

#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)

Desktop::Desktop(const QVector<QRect>& screens)
    : m_previous(QApplication::desktop()->geometry())
{
    QApplication::desktop()->setGeometry(around(screens));
}

Desktop::~Desktop()
{
    QApplication::desktop()->setGeometry(m_previous);
}

#else

Desktop::Desktop(const QVector<QRect>& screens)
    : m_previous(configuration())
{
    setConfiguration(withScreens(m_previous, screens));
}

Desktop::~Desktop()
{
    setConfiguration(m_previous);
}

#endif

} // namespace test
