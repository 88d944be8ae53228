#include "RealMouse.h"

#include "BrowserParts.h"

#include <QAbstractItemView>
#include <QProcess>

namespace test {

bool tap(const QWidget& widget, const QPoint& position)
{
    const QPoint target = widget.mapToGlobal(position);
    return QProcess::execute(QStringLiteral("xdotool"),
                             {QStringLiteral("mousemove"), QString::number(target.x()),
                              QString::number(target.y()), QStringLiteral("click"),
                              QStringLiteral("1")})
        == 0;
}

bool tap(const QWidget& widget)
{
    return tap(widget, widget.rect().center());
}

bool tapEntry(QAbstractItemView& view, const QString& name)
{
    const QModelIndex index = entry(view, name);
    view.scrollTo(index);
    return index.isValid() && tap(*view.viewport(), view.visualRect(index).center());
}

} // namespace test
