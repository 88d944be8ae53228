#pragma once

#include <QtGlobal>

#include <functional>

QT_BEGIN_NAMESPACE
class QMenu;
class QObject;
QT_END_NAMESPACE

namespace test {

/// Calls \a use, once, with the next menu that opens, from within the event loop.
void whenMenuOpens(QObject* context, const std::function<void(QMenu&)>& use);

} // namespace test
