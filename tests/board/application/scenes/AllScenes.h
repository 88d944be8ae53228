#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QString;
class QWidget;
QT_END_NAMESPACE

class Journal;

/// A window of the scene \a name, which writes what happens in \a journal; null if there is none.
QWidget* makeScene(const QString& name, Journal& journal);
