#include "Crowd.h"

#include "Shown.h"

#include <QCoreApplication>

#include <algorithm>

namespace bench {

namespace {

constexpr int columns = 40;
constexpr QSize place(100, 60);

} // namespace

Crowd::Crowd(Maker maker, int size, Ready ready)
    : m_maker(std::move(maker))
    , m_ready(ready)
    , m_members(size, nullptr)
{
    m_window.resize(columns * place.width(), (size / columns + 1) * place.height());
    m_window.show();
    deliverEvents();
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
    deliverEvents();
    while (!isReady()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        deliverEvents();
    }
}

void Crowd::destroy()
{
    for (QWidget*& member : m_members) {
        delete member;
        member = nullptr;
    }
    deliverEvents();
}

bool Crowd::isReady() const
{
    return !m_ready || std::all_of(m_members.begin(), m_members.end(), m_ready);
}

} // namespace bench
