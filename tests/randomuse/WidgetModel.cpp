#include "WidgetModel.h"

#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace test {

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

TestWindows::TestWindows()
    : m_windows{newWindow(false), newWindow(true)}
{
}

TestWindows::~TestWindows()
{
    for (const QPointer<QWidget>& window : m_windows)
        delete window;
}

QWidget* TestWindows::window(bool withLayout) const
{
    return m_windows[withLayout ? 1 : 0];
}

QWidget* TestWindows::neighbour(bool withLayout, bool button) const
{
    return window(withLayout)->findChild<QWidget*>(button ? buttonName() : fieldName());
}

void TestWindows::replaceWindow(bool withLayout)
{
    QPointer<QWidget>& window = m_windows[withLayout ? 1 : 0];
    delete window;
    window = newWindow(withLayout);
}

void TestWindows::place(QWidget* widget, bool withLayout) const
{
    widget->setParent(window(withLayout));
    if (withLayout)
        widget->parentWidget()->layout()->addWidget(widget);
}

WidgetModel::WidgetModel(const std::shared_ptr<TestWindows>& windows)
    : m_windows(windows)
{
}

WidgetModel::~WidgetModel()
{
    delete m_widget;
}

void WidgetModel::prepare()
{
    widget();
}

void WidgetModel::check()
{
    prepare();
    checkState();
}

bool WidgetModel::expectsWarning(const QString& warning) const
{
    return warning.startsWith(QLatin1String("Could not parse stylesheet"))
        || warning == QLatin1String("Broken filename passed to function"); // a null character in it
}

QWidget* WidgetModel::widget()
{
    if (!m_widget) {
        m_widget = create();
        m_windows->place(m_widget, false);
        m_widget->resize(120, 60);
        m_widget->show();
    }
    return m_widget;
}

TestWindows& WidgetModel::windows() const
{
    return *m_windows;
}

void addAllCommands(WidgetModel& model)
{
    addPlacement(model);
    addAppearance(model);
    addPointer(model);
    addKeyboard(model);
}

} // namespace test
