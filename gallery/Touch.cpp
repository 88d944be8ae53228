#include "Touch.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QMouseEvent>
#include <QScroller>
#include <QSlider>
#include <QStyledItemDelegate>
#include <QStyleOption>
#include <QStylePainter>
#include <QToolButton>

namespace touch {

namespace {

/// Between a text and what surrounds it.
constexpr int margin = 8;

class TallItemDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const QSize hint = QStyledItemDelegate::sizeHint(option, index) + QSize(2 * margin, 0);
        return hint.expandedTo(QSize(0, touchSize));
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override
    {
        QStyleOptionViewItem inset = option;
        initStyleOption(&inset, index);
        const QStyle* style = inset.widget ? inset.widget->style() : QApplication::style();
        style->drawPrimitive(QStyle::PE_PanelItemViewItem, &inset, painter, inset.widget);
        inset.rect.adjust(margin, 0, -margin, 0);
        style->drawControl(QStyle::CE_ItemViewItem, &inset, painter, inset.widget);
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

/// The style's indicator is as small as a mouse pointer is precise.
class TallCheckBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

    QSize sizeHint() const override
    {
        const int textWidth =
            text().isEmpty() ? 0 : fontMetrics().horizontalAdvance(text()) + margin;
        return QSize(touchSize + textWidth, touchSize);
    }

protected:
    bool hitButton(const QPoint& position) const override
    {
        return rect().contains(position);
    }

    void paintEvent(QPaintEvent*) override
    {
        QStyleOptionButton option;
        initStyleOption(&option);
        QStylePainter painter(this);

        const QRect text = option.rect.adjusted(touchSize, 0, 0, 0);
        painter.drawItemText(
            QStyle::visualRect(option.direction, rect(), text),
            int(Qt::AlignVCenter | QStyle::visualAlignment(option.direction, Qt::AlignLeft)),
            option.palette, isEnabled(), option.text, QPalette::WindowText);

        QRect indicator(0, 0, indicatorSize, indicatorSize);
        indicator.moveCenter(QRect(0, 0, touchSize, height()).center());
        option.rect = QStyle::visualRect(option.direction, rect(), indicator);
        painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
    }

private:
    static constexpr int indicatorSize = 24;
};

/// Goes where it is pressed, since its handle is too small to be hit.
class TouchSlider : public QSlider
{
public:
    using QSlider::QSlider;

protected:
    void mousePressEvent(QMouseEvent* event) override
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        const int handle = style()->pixelMetric(QStyle::PM_SliderLength, &option, this);
        setValue(QStyle::sliderValueFromPosition(minimum(), maximum(), event->x() - handle / 2,
                                                 width() - handle, option.upsideDown));
        QSlider::mousePressEvent(event); // takes hold of the handle, which is there now
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

void stopScrolling(QAbstractScrollArea* area)
{
    QScroller::scroller(area->viewport())->stop();
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
    box->setMinimumHeight(touchSize);
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
    box->setMinimumSize(touchSize, touchSize);
    return box;
}

QSlider* makeSlider()
{
    auto* slider = new TouchSlider(Qt::Horizontal);
    slider->setMinimumHeight(touchSize);
    leaveWheelToScrollArea(slider);
    return slider;
}

QToolButton* makeFoldButton(const QString& text)
{
    auto* button = new QToolButton;
    button->setText(text);
    button->setCheckable(true);
    button->setAutoRaise(true);
    button->setArrowType(Qt::DownArrow);
    button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    button->setMinimumHeight(touchSize);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QObject::connect(button, &QToolButton::toggled, button, [button](bool unfolded) {
        button->setArrowType(unfolded ? Qt::UpArrow : Qt::DownArrow);
    });
    return button;
}

} // namespace touch
