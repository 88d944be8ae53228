#include "PropertyEditor.h"

#include "PropertyGroup.h"
#include "PropertyList.h"
#include "Touch.h"

#include <ui/KeypadLineEdit.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QEvent>
#include <QMetaMethod>
#include <QScrollArea>
#include <QTimerEvent>

namespace {

/// Milliseconds from the first change to the report: fresh enough to follow, too rare to cost.
constexpr int delay = 100;

/// What a mouse or a timer does comes without a change, or with a painting.
bool mayTellOfChange(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseMove:
    case QEvent::HoverMove:
    case QEvent::Timer:
    case QEvent::MetaCall:
    case QEvent::Enter:
    case QEvent::Leave:
        return false;
    default:
        return true;
    }
}

} // namespace

ObjectWatcher::ObjectWatcher(QObject* parent)
    : QObject(parent)
{
}

void ObjectWatcher::setTarget(QObject* target)
{
    if (target == m_target)
        return;
    if (m_target) {
        m_target->removeEventFilter(this);
        m_target->disconnect(this);
    }
    m_timer.stop();
    m_target = target;
    if (m_target) {
        m_target->installEventFilter(this);
        connectSignals();
    }
}

bool ObjectWatcher::eventFilter(QObject*, QEvent* event)
{
    if (mayTellOfChange(event->type()))
        schedule();
    return false;
}

void ObjectWatcher::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer.timerId())
        return;
    m_timer.stop();
    Q_EMIT changed();
}

void ObjectWatcher::schedule()
{
    if (!m_timer.isActive())
        m_timer.start(delay, this);
}

void ObjectWatcher::connectSignals()
{
    const QMetaObject& meta = *m_target->metaObject();
    const QMetaMethod slot = staticMetaObject.method(staticMetaObject.indexOfSlot("schedule()"));
    for (int index = 0; index < meta.methodCount(); ++index) {
        const QMetaMethod method = meta.method(index);
        if (method.methodType() == QMetaMethod::Signal)
            // NOLINTNEXTLINE(readability-suspicious-call-argument): connect() has this order
            connect(m_target, method, this, slot);
    }
}

PropertyEditor::PropertyEditor(QWidget* parent)
    : QWidget(parent)
    , m_choice(touch::makeComboBox())
    , m_filter(touch::makeField(ui::keyboard::KeyboardType::Text, tr("Part of a name")))
    , m_area(new QScrollArea)
    , m_groupLayout(nullptr)
    , m_dynamicGroup(nullptr)
    , m_watcher(new ObjectWatcher(this))
{
    connect(m_watcher, &ObjectWatcher::changed, this, &PropertyEditor::refresh);
    m_filter->setObjectName(QStringLiteral("filter"));
    m_filter->setPlaceholderText(tr("Filter"));
    connect(m_filter, &QLineEdit::textChanged, this, &PropertyEditor::applyFilter);
    m_choice->setObjectName(QStringLiteral("widgetChoice"));
    connect(m_choice, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &PropertyEditor::showDemoWidget);

    m_area->setFrameShape(QFrame::NoFrame);
    m_area->setWidgetResizable(true);
    m_area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    touch::makeScrollable(m_area);

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(4, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(m_choice);
    column->addWidget(m_filter);
    column->addWidget(m_area, 1);
}

void PropertyEditor::setDemoWidgets(const QList<GalleryPage::DemoWidget>& demoWidgets)
{
    m_choice->clear();
    m_widgets.clear();
    for (const GalleryPage::DemoWidget& demoWidget : demoWidgets) {
        m_widgets.append(demoWidget.widget);
        m_choice->addItem(demoWidget.name); // the first one becomes the current one
    }
    if (demoWidgets.isEmpty())
        showDemoWidget(-1);
}

QWidget* PropertyEditor::target() const
{
    return m_target;
}

void PropertyEditor::setTarget(QWidget* widget)
{
    const int index = m_widgets.indexOf(widget);
    if (index >= 0)
        m_choice->setCurrentIndex(index);
}

void PropertyEditor::refresh()
{
    if (!m_target) {
        makeGroups();
        return;
    }
    updateDynamicGroup();
    for (PropertyGroup* group : qAsConst(m_groups))
        group->refresh();
}

void PropertyEditor::showEvent(QShowEvent*)
{
    refresh();
    m_watcher->setTarget(m_target);
    Q_EMIT targetShown(m_target);
}

void PropertyEditor::hideEvent(QHideEvent*)
{
    m_watcher->setTarget(nullptr);
    Q_EMIT targetShown(nullptr);
}

void PropertyEditor::showDemoWidget(int index)
{
    m_target = m_widgets.value(index);
    makeGroups();
    if (isVisible()) {
        m_watcher->setTarget(m_target);
        Q_EMIT targetShown(m_target);
    }
}

void PropertyEditor::makeGroups()
{
    for (const PropertyGroup* group : qAsConst(m_groups))
        m_unfolded.insert(group->title(), group->isUnfolded());
    m_groups.clear();
    m_dynamicGroup = nullptr;

    auto* contents = new QWidget;
    m_groupLayout = new QVBoxLayout(contents);
    m_groupLayout->setContentsMargins(0, 0, 0, 0);
    m_groupLayout->setSpacing(0);
    m_groupLayout->addStretch();
    if (m_target) {
        const QVector<ClassProperties> classes = propertiesByClass(*m_target);
        for (const ClassProperties& properties : classes)
            addGroup(m_groups.size(), properties);
        updateDynamicGroup();
    }
    replaceContents(contents);
}

void PropertyEditor::replaceContents(QWidget* contents)
{
    touch::stopScrolling(m_area);
    // The old contents may be what is just reporting an edit.
    if (QWidget* old = m_area->takeWidget()) {
        old->hide();
        old->deleteLater();
    }
    m_area->setWidget(contents);
}

PropertyGroup* PropertyEditor::addGroup(int position, const ClassProperties& properties)
{
    auto* group = new PropertyGroup(properties.className, m_target, properties.names);
    m_groups.insert(position, group);
    m_groupLayout->insertWidget(position, group);
    connect(group, &PropertyGroup::edited, this, &PropertyEditor::refresh);

    // The rows of the framework's classes are many, and made only when asked for.
    group->setUnfolded(m_unfolded.value(properties.className, position == 0));
    if (!m_filter->text().isEmpty())
        group->setFilter(m_filter->text());
    return group;
}

void PropertyEditor::updateDynamicGroup()
{
    const QVector<QByteArray> names = dynamicProperties(*m_target);
    if (names == (m_dynamicGroup ? m_dynamicGroup->names() : QVector<QByteArray>()))
        return;
    if (m_dynamicGroup) {
        m_groups.removeOne(m_dynamicGroup);
        m_dynamicGroup->hide();
        m_dynamicGroup->deleteLater();
        m_dynamicGroup = nullptr;
    }
    if (!names.isEmpty())
        m_dynamicGroup = addGroup(0, {tr("Dynamic properties"), names});
}

void PropertyEditor::applyFilter()
{
    touch::stopScrolling(m_area);
    for (PropertyGroup* group : qAsConst(m_groups))
        group->setFilter(m_filter->text());
}
