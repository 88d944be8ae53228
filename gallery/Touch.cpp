#include <QAbstractScrollArea>
#include <QScroller>


namespace touch {

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

} // namespace touch
