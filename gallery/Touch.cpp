#include "Touch.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QScroller>
#include <QStyledItemDelegate>
#include <QToolButton>

namespace touch {

namespace {

class TallItemDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return QStyledItemDelegate::sizeHint(option, index).expandedTo(QSize(0, fingerSize));
    }
};

class WheelFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() != QEvent::Wheel)
            return false;
        event->ignore(); // passes it on to the parent
        return true;
    }
};

class TallCheckBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

protected:
    bool hitButton(const QPoint& position) const override
    {
        return rect().contains(position);
    }
};

} // namespace

void makeScrollable(QAbstractScrollArea* area)
{
    // The mouse gesture serves touch screens as well: Qt makes mouse events of unused touches.
    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);

    // Contents that bounce beyond their end leave a gap that a software renderer is slow to close.
    QScroller* scroller = QScroller::scroller(area->viewport());
    QScrollerProperties properties = scroller->scrollerProperties();
    properties.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy,
                               QVariant::fromValue(QScrollerProperties::OvershootAlwaysOff));
    properties.setScrollMetric(QScrollerProperties::HorizontalOvershootPolicy,
                               QVariant::fromValue(QScrollerProperties::OvershootAlwaysOff));
    scroller->setScrollerProperties(properties);
}

void makeItemsTall(QAbstractItemView* view)
{
    view->setItemDelegate(new TallItemDelegate(view));
}

void leaveWheelToScrollArea(QWidget* control)
{
    control->installEventFilter(new WheelFilter(control));
}

void adapt(QComboBox* box)
{
    box->setMinimumHeight(fingerSize);
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    box->setItemDelegate(new TallItemDelegate(box));
    leaveWheelToScrollArea(box);
}

QComboBox* makeComboBox()
{
    auto* box = new QComboBox;
    adapt(box);
    return box;
}

QCheckBox* makeCheckBox(const QString& text)
{
    auto* box = new TallCheckBox(text);
    box->setMinimumSize(fingerSize, fingerSize);
    box->setStyleSheet(QStringLiteral("QCheckBox::indicator { width: 24px; height: 24px; }"));
    return box;
}

QToolButton* makeFoldButton(const QString& text)
{
    auto* button = new QToolButton;
    button->setText(text);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setArrowType(Qt::DownArrow);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setMinimumHeight(fingerSize);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QObject::connect(button, &QToolButton::toggled, button, [button](bool unfolded) {
        button->setArrowType(unfolded ? Qt::UpArrow : Qt::DownArrow);
    });
    return button;
}

} // namespace touch
