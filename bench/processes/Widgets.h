#pragma once

#include <QString>
#include <QVector>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

/// What a process is made of: once of this library, once of what one would use instead.
namespace bench {

using Maker = QWidget* (*)(QWidget* parent);

/// One for each class of widgets but the file browser, in the same order.
QVector<Maker> makers();

QWidget* makeBrowser(const QString& directory);

/// Of the counterparts, a QFileDialog.
QWidget* makeFileDialog(const QString& directory);

/// The settings example, or the same panel.
QWidget* makeSettings();

/// A button with one of the icons, or without.
QWidget* makeIconButton(const QString& icon, QWidget* parent);

} // namespace bench
