#include "Shown.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QListView>
#include <QMouseEvent>

#include <algorithm>

namespace bench {

void deliverEvents()
{
    while (QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents)) { }
}

void click(QWidget& widget)
{
    const QPoint place(10, widget.height() / 2);
    for (const auto type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        QMouseEvent event(type, place, widget.mapToGlobal(place), Qt::LeftButton, held,
                          Qt::NoModifier);
        QCoreApplication::sendEvent(&widget, &event);
        deliverEvents();
    }
}

bool showsFiles(const QWidget& browser, int count)
{
    const auto views = browser.findChildren<QListView*>();
    return std::any_of(views.begin(), views.end(), [count](const QListView* view) {
        return view->model() && view->model()->rowCount(view->rootIndex()) == count;
    });
}

} // namespace bench
