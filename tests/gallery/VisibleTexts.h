#pragma once

#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QImage;
class QWidget;
QT_END_NAMESPACE

namespace test {

/// A text that can be read on a picture.
struct Text
{
    QString name; ///< That of its widget.
    double contrast; ///< To what it stands on.
};

QString nameOf(const QWidget& widget);

/// The texts in \a root, whose picture is \a picture: those of enabled widgets, or those of
/// disabled ones. Items of views and sections of headers are texts by themselves.
QVector<Text> textsIn(const QWidget& root, const QImage& picture, bool enabled = true);

} // namespace test
