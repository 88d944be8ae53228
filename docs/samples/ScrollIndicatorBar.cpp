#include "Samples.h"

#include <ui/ScrollIndicatorBar.h>

#include <QScrollArea>
#include <QScroller>

void samples::scrollIndicator(QWidget* window)
{
    //! [ScrollIndicatorBar]
    auto* area = new QScrollArea(window);
    auto* indicator = new ui::widgets::ScrollIndicatorBar;
    area->setVerticalScrollBar(indicator); // which the area owns from now on

    QScroller::grabGesture(area->viewport(), QScroller::LeftMouseButtonGesture);
    QObject::connect(QScroller::scroller(area->viewport()), &QScroller::stateChanged, indicator,
                     [indicator](QScroller::State state) {
                         indicator->setHighlightBar(state == QScroller::Dragging
                                                    || state == QScroller::Scrolling);
                     });
    //! [ScrollIndicatorBar]
}
