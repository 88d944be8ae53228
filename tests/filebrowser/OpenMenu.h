#pragma once

#include <QtGlobal>

#include <functional>

class BreadCrumbsWidget;
QT_BEGIN_NAMESPACE
class QMenu;
QT_END_NAMESPACE

namespace test {

/**
 * Clicks the "..." button of \a bar, calls \a inspect while its menu is open, and closes the menu
 * if it is still there. Returns when the menu has been deleted; false if none was opened.
 */
bool withMenu(const BreadCrumbsWidget& bar, const std::function<void(QMenu&)>& inspect);

} // namespace test
