#include "OpenMenu.h"

#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "NextMenu.h"

#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QtTest>

namespace test {

bool withMenu(const BreadCrumbsWidget& bar, const std::function<void(QMenu&)>& inspect)
{
    QObject context;
    QPointer<QMenu> opened;
    bool seen = false;
    whenMenuOpens(&context, [&](QMenu& menu) {
        seen = true;
        opened = &menu;
        inspect(menu);
        if (opened)
            opened->close();
    });
    moreButton(bar)->click(); // returns when the menu is closed
    return QTest::qWaitFor([&] { return opened.isNull(); }) && seen;
}

} // namespace test
