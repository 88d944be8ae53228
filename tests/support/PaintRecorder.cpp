#include "PaintRecorder.h"

#include <QCoreApplication>
#include <QPaintEvent>
#include <QWidget>

#include <utility>

namespace test {

PaintRecorder::PaintRecorder(QWidget* widget)
{
    widget->installEventFilter(this);
}

QVector<QRegion> PaintRecorder::takeRegions()
{
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
    return std::exchange(m_regions, {});
}

bool PaintRecorder::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Paint)
        m_regions.append(static_cast<QPaintEvent*>(event)->region());
    return false;
}

} // namespace test
