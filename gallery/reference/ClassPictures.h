#pragma once

#include <QString>
#include <QVector>
#include <QWidget>

#include <functional>

QT_BEGIN_NAMESPACE
class QDir;
class QImage;
class QTextStream;
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

/// What the picture of every class of the library shows.
namespace stategalleries {

StateGallery animator();
StateGallery battery();
StateGallery breadCrumbs();
StateGallery clickableLabel();
StateGallery fileBrowser();
StateGallery fileSystemModel();
StateGallery gridButton();
StateGallery keypadLineEdit();
StateGallery keypadPopup();
StateGallery lineEdit();
StateGallery loop();
StateGallery roundedFrame();
StateGallery scrollIndicator();
StateGallery selectionControl();
StateGallery switchControl();

/// Each of them, by class name.
QVector<StateGallery> all();

} // namespace stategalleries

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
