#include "KeypadArea.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>
#include <ui/ScrollIndicatorBar.h>

#include <QApplication>
#include <QScreen>
#include <QScroller>
#include <QVBoxLayout>

namespace {

constexpr int margin = 12;

ui::KeypadLineEdit* fieldIn(const QWidget& area, QWidget* widget)
{
    auto* field = qobject_cast<ui::KeypadLineEdit*>(widget);
    return field && area.isAncestorOf(field) ? field : nullptr;
}

} // namespace

//! [KeypadArea]
KeypadArea::KeypadArea(QWidget* parent)
    : QScrollArea(parent)
    , m_column(new QVBoxLayout)
{
    auto* content = new QWidget;
    content->setObjectName("column");
    auto* layout = new QVBoxLayout(content);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(m_column);
    layout->addStretch();
    setWidget(content);
    setWidgetResizable(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* indicator = new ui::widgets::ScrollIndicatorBar;
    setVerticalScrollBar(indicator); // which the area owns from now on

    // The mouse gesture serves touch screens as well: Qt makes mouse events of unused touches.
    QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);
    connect(QScroller::scroller(viewport()), &QScroller::stateChanged, indicator,
            [indicator](QScroller::State state) {
                indicator->setHighlightBar(state == QScroller::Dragging
                                           || state == QScroller::Scrolling);
            });
    connect(qApp, &QApplication::focusChanged, this, &KeypadArea::followFocus);
}

void KeypadArea::followFocus(QWidget* old, QWidget* now)
{
    if (fieldIn(*this, old))
        takeRoomBack();
    if (ui::KeypadLineEdit* field = fieldIn(*this, now)) {
        // The keypad takes the rest of the gesture: the scroller would wait for its end for ever.
        QScroller::scroller(viewport())->stop();
        // Before the keypad is shown, as a long subtitle widens it, and is placed beside the field.
        field->keypad()->setSubtitleLabel(field->accessibleName());
        makeRoom(field);
    }
}

void KeypadArea::makeRoom(ui::KeypadLineEdit* field)
{
    // ensureWidgetVisible() is content with the cursor of the field.
    const QPoint center = field->mapTo(widget(), field->rect().center());
    ensureVisible(center.x(), center.y(), 0, field->height() / 2 + margin);
    const int keypad = field->keypad()->sizeHint().height();
    const int top = field->mapToGlobal(QPoint(0, 0)).y();
    const int missing = top + field->height() + keypad - screen()->size().height();
    if (missing <= 0 || top >= keypad) // under the field, or above it
        return;
    // The content grows, in case it ends before the field can be as high as that.
    QScrollBar* bar = verticalScrollBar();
    widget()->setMinimumHeight(bar->value() + missing + viewport()->height());
    QCoreApplication::sendPostedEvents(viewport(), QEvent::LayoutRequest);
    bar->setValue(bar->value() + missing);
}

void KeypadArea::takeRoomBack()
{
    widget()->setMinimumHeight(0);
}
//! [KeypadArea]

QVBoxLayout* KeypadArea::column() const
{
    return m_column;
}
