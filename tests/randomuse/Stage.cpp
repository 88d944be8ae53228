#include "Stage.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace soak {

namespace {

QString fieldName()
{
    return QStringLiteral("neighbouring field");
}

QString buttonName()
{
    return QStringLiteral("neighbouring button");
}

QWidget* newWindow(bool withLayout)
{
    auto* window = new QWidget;
    window->resize(600, 500);
    auto* field = new QLineEdit(window);
    field->setObjectName(fieldName());
    auto* button = new QPushButton(window);
    button->setObjectName(buttonName());
    if (withLayout) {
        auto* layout = new QVBoxLayout(window);
        // However large the widgets want to be: a window's pixels take memory.
        layout->setSizeConstraint(QLayout::SetNoConstraint);
        layout->addWidget(field);
        layout->addWidget(button);
    } else {
        field->setGeometry(0, 460, 200, 40);
        button->setGeometry(200, 460, 200, 40);
    }
    window->show();
    return window;
}

} // namespace

Stage::Stage()
    : m_windows{newWindow(false), newWindow(true)}
{
}

Stage::~Stage()
{
    for (const QPointer<QWidget>& window : m_windows)
        delete window;
}

QWidget* Stage::window(bool withLayout) const
{
    return m_windows[withLayout ? 1 : 0];
}

QWidget* Stage::neighbour(bool withLayout, bool button) const
{
    return window(withLayout)->findChild<QWidget*>(button ? buttonName() : fieldName());
}

void Stage::replaceWindow(bool withLayout)
{
    QPointer<QWidget>& window = m_windows[withLayout ? 1 : 0];
    delete window;
    window = newWindow(withLayout);
}

void Stage::place(QWidget* widget, bool withLayout) const
{
    widget->setParent(window(withLayout));
    if (withLayout)
        widget->parentWidget()->layout()->addWidget(widget);
}

void turnEventLoop()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace soak
