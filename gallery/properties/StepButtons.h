#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QAbstractSpinBox;
class QWidget;
QT_END_NAMESPACE

/// Fills \a parent with \a box between a "-" and a "+" button of finger size, in place of the box's own.
/// Typed digits count once the editing is finished.
void layOutWithStepButtons(QAbstractSpinBox* box, QWidget* parent);
