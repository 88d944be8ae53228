#pragma once

#include <QString>
#include <QVector>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// One state of a class, as its picture shows it.
struct ClassState
{
    enum Background { Light, Dark };

    QString caption;
    std::function<QWidget*()> make; ///< A new widget in that state, which the caller owns.
    Background background = Light;
    Qt::LayoutDirection direction = Qt::LeftToRight;
};

/// What the picture of one class in the reference consists of.
struct StateGallery
{
    QString className; ///< Without namespace; the file name stem of the picture.
    int columns;
    QVector<ClassState> states;
};
