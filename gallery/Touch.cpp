#include "Touch.h"

#include "properties/HiddenValues.h"

#include <Switch.h>
#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QScrollArea>
#include <QScroller>
#include <QSlider>
#include <QStyle>
#include <QToolButton>

using ui::KeypadLineEdit;
using ui::widgets::ScrollIndicatorBar;

namespace touch {

namespace {

constexpr int textMargin = 6;

/// Of a switch, which makes its track 16 pixels high and 44 wide.
constexpr QMargins switchMargins(10, 12, 10, 12);

/// Seconds that a press on an item may last before it becomes one: longer than any drag takes to
/// begin.
constexpr double longestPress = 5.0;

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

class PaletteFollower : public QObject
{
public:
    explicit PaletteFollower(Switch* control)
        : QObject(control)
        , m_control(control)
    {
        control->installEventFilter(this);
        follow();
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::PaletteChange)
            follow();
        return false;
    }

private:
    void follow()
    {
        QPalette palette = m_control->palette();
        const QBrush label = QApplication::palette().windowText();
        if (palette.buttonText() == label)
            return;
        palette.setBrush(QPalette::ButtonText, label);
        m_control->setPalette(palette);
    }

    Switch* m_control;
};

/// Brings a field into view as soon as it has the focus, and stops what is still moving it later
/// on.
class FieldKeeper : public QObject
{
public:
    explicit FieldKeeper(KeypadLineEdit* field)
        : QObject(field)
        , m_field(field)
    {
        field->installEventFilter(this);
        connect(field, &KeypadLineEdit::startKeypad, this, &FieldKeeper::stopScrollers);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::FocusIn)
            bringIntoView();
        return false;
    }

private:
    void bringIntoView()
    {
        for (QWidget* widget = m_field->parentWidget(); widget; widget = widget->parentWidget()) {
            if (auto* area = qobject_cast<QScrollArea*>(widget))
                area->ensureWidgetVisible(m_field);
        }
    }

    void stopScrollers()
    {
        for (QWidget* widget = m_field->parentWidget(); widget; widget = widget->parentWidget()) {
            if (QScroller::hasScroller(widget))
                QScroller::scroller(widget)->stop();
        }
    }

    KeypadLineEdit* m_field;
};

/// QLabel aligns a text by the direction of its language, which may not be that of the layout.
class MirroredLabel : public QLabel
{
public:
    explicit MirroredLabel(const QString& text)
        : QLabel(text)
    {
        setTextFormat(Qt::PlainText);
        align();
    }

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::LayoutDirectionChange)
            align();
        QLabel::changeEvent(event);
    }

private:
    void align()
    {
        setAlignment((layoutDirection() == Qt::RightToLeft ? Qt::AlignRight : Qt::AlignLeft)
                     | Qt::AlignAbsolute | Qt::AlignVCenter);
    }
};

class ElidedLabel : public MirroredLabel
{
public:
    using MirroredLabel::MirroredLabel;

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, width());
        style()->drawItemText(&painter, rect(), int(alignment()), palette(), isEnabled(), shown,
                              foregroundRole());
    }
};

void addIndicators(QAbstractScrollArea* area)
{
    auto* vertical = new ScrollIndicatorBar(Qt::Vertical);
    auto* horizontal = new ScrollIndicatorBar(Qt::Horizontal);
    area->setVerticalScrollBar(vertical);
    area->setHorizontalScrollBar(horizontal);
    QObject::connect(QScroller::scroller(area->viewport()), &QScroller::stateChanged, area,
                     [vertical, horizontal](QScroller::State state) {
                         const bool moves =
                             state == QScroller::Dragging || state == QScroller::Scrolling;
                         hiddenvalues::set(vertical, "highlightBar", moves);
                         hiddenvalues::set(horizontal, "highlightBar", moves);
                     });
}

} // namespace

void makeScrollable(QAbstractScrollArea* area)
{
    // The mouse gesture serves touch screens as well: Qt makes mouse events of unused touches.
    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    addIndicators(area);

    // Contents that bounce beyond their end leave a gap that a software renderer is slow to close.
    QScroller* scroller = QScroller::scroller(area->viewport());
    QScrollerProperties properties = scroller->scrollerProperties();
    properties.setScrollMetric(QScrollerProperties::VerticalOvershootPolicy,
                               QVariant::fromValue(QScrollerProperties::OvershootAlwaysOff));
    properties.setScrollMetric(QScrollerProperties::HorizontalOvershootPolicy,
                               QVariant::fromValue(QScrollerProperties::OvershootAlwaysOff));
    if (auto* view = qobject_cast<QAbstractItemView*>(area)) {
        view->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
        view->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
        properties.setScrollMetric(QScrollerProperties::MousePressEventDelay, longestPress);
    }
    scroller->setScrollerProperties(properties);
}

void stopScrolling(QAbstractScrollArea* area)
{
    QScroller::scroller(area->viewport())->stop();
}

void leaveWheelToScrollArea(QWidget* control)
{
    control->installEventFilter(new WheelFilter(control));
}

void adapt(QComboBox* box)
{
    box->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    leaveWheelToScrollArea(box);
}

QComboBox* makeComboBox()
{
    auto* box = new QComboBox;
    adapt(box);
    return box;
}

Switch* makeSwitch(const QString& text)
{
    auto* control = new Switch(text, QColor(33, 150, 243));
    setQuietColours(control);
    control->setHeight(targetSize);
    control->setIndicatorMargin(switchMargins);
    followPalette(control);
    return control;
}

void setQuietColours(Switch* control)
{
    control->setThumbOffBrush(QColor(250, 250, 250));
    control->setTrackOffBrush(Qt::gray);
    control->setTrackOffOpacity(0.6);
    control->setThumbDisabled(QColor(190, 190, 190));
    control->setTrackDisabled(Qt::gray);
    control->setTrackDisabledOpacity(0.3);
}

void followPalette(Switch* control)
{
    new PaletteFollower(control);
}

QLabel* makeLabel(const QString& text)
{
    auto* label = new MirroredLabel(text);
    label->setWordWrap(true);
    return label;
}

QLabel* makeHeading(const QString& text)
{
    QLabel* label = makeLabel(text);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    return label;
}

QLabel* makeElidedLabel(const QString& text)
{
    auto* label = new ElidedLabel(text);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    return label;
}

QSlider* makeSlider()
{
    auto* slider = new QSlider(Qt::Horizontal);
    slider->setMinimumHeight(targetSize);
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
    button->setMinimumHeight(targetSize);
    button->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QObject::connect(button, &QToolButton::toggled, button, [button](bool unfolded) {
        button->setArrowType(unfolded ? Qt::UpArrow : Qt::DownArrow);
    });
    return button;
}

KeypadLineEdit* makeField(ui::keyboard::KeyboardType type, const QString& title)
{
    auto* field = new KeypadLineEdit(nullptr, type);
    field->setAccessibleName(title);
    field->setMinimumHeight(targetSize);
    field->setTextMargins(textMargin, 0, textMargin, 0);
    QObject::connect(field, &KeypadLineEdit::startKeypad, field,
                     [field, title] { field->keypad()->setSubtitleLabel(title); });
    prepareForScrolling(field);
    return field;
}

void prepareForScrolling(KeypadLineEdit* field)
{
    new FieldKeeper(field);
}

} // namespace touch
