#pragma once

#include "StateGallery.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QDir;
class QImage;
class QTextStream;
QT_END_NAMESPACE

/// What a widget stands on in the picture of its class, with the palette of the state.
class StateBackground : public QWidget
{
    Q_OBJECT

public:
    explicit StateBackground(const ClassState& state, QWidget* parent = nullptr);
};

/// The picture of \a gallery: its states side by side in rows, on white.
QImage classPicture(const StateGallery& gallery);

/**
 * Renders the picture of each class to CLASS.png in \a directory, which exists, and prints its path
 * to
 * \a out. Existing files are overwritten. Returns false, with a message in \a error, at the first
 * file that cannot be written.
 */
bool takeClassPictures(const QVector<StateGallery>& galleries, const QDir& directory,
                       QTextStream& out, QString* error);
