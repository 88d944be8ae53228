#pragma once

#include <QtGlobal>

class Switch;

QT_BEGIN_NAMESPACE
class QColor;
class QString;
QT_END_NAMESPACE

/// A labelled switch in colours that suit a light and a dark background, with \a accent when it is
/// on.
Switch* makeColouredSwitch(const QString& text, const QColor& accent, bool on);
