#include "Crowd.h"

#include <QCoreApplication>
#include <QEvent>

namespace bench {

namespace {

constexpr int columns = 40;
constexpr QSize place(100, 60);

} // namespace

Crowd::Crowd(Maker maker, int size)
    : m_maker(std::move(maker))
    , m_members(size, nullptr)
{
    m_window.resize(columns * place.width(), (size / columns + 1) * place.height());
    m_window.show();
    QCoreApplication::processEvents();
}

void Crowd::make()
{
    for (QWidget*& member : m_members)
        member = m_maker(&m_window);
}

void Crowd::show()
{
    int index = 0;
    for (QWidget* member : qAsConst(m_members)) {
        const QPoint corner(index % columns * place.width(), index / columns * place.height());
        member->setGeometry(QRect(corner, place));
        member->show();
        ++index;
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    m_window.repaint();
}

void Crowd::destroy()
{
    for (QWidget*& member : m_members) {
        delete member;
        member = nullptr;
    }
}

} // namespace bench
