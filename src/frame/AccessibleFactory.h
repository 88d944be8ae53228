#pragma once

#include <QAccessible>

namespace ui {

/// Has Qt ask \a make for accessible interfaces, from install() until the library is unloaded.
class AccessibleFactory
{
public:
    explicit AccessibleFactory(QAccessible::InterfaceFactory make)
        : m_make(make)
    {
    }
    ~AccessibleFactory()
    {
        QAccessible::removeFactory(m_make);
    }
    Q_DISABLE_COPY(AccessibleFactory)

    void install() const
    {
        QAccessible::installFactory(m_make);
    }

private:
    QAccessible::InterfaceFactory m_make;
};

/**
 * What \a make returns for \a object if it is a \a Widget and Qt has come to the base class of
 * that.
 *
 * Qt asks all factories for the object's own class first, then for one base class after the other.
 * An answer for the base class, where Qt's own factory has one as well, leaves the name of \a
 * Widget to any factory that the application installs, whenever it does so. The name alone does not
 * tell what the object is: an application may have a class of its own by that name.
 */
template <typename Widget, QAccessibleInterface* (*make)(Widget* widget)>
QAccessibleInterface* makeAccessible(const QString& className, QObject* object)
{
    if (className != QLatin1String(Widget::staticMetaObject.superClass()->className()))
        return nullptr;
    auto* widget = qobject_cast<Widget*>(object);
    return widget ? make(widget) : nullptr;
}

/**
 * Has assistive technology find what \a make returns for every \a Widget.
 *
 * For the constructors of \a Widget, so that nothing happens when the library is loaded. Each call
 * counts, since an application object that goes takes all factories with it; Qt keeps one only
 * once.
 */
template <typename Widget, QAccessibleInterface* (*make)(Widget* widget)>
void registerAccessible()
{
    static const AccessibleFactory factory(makeAccessible<Widget, make>);
    factory.install();
}

} // namespace ui
