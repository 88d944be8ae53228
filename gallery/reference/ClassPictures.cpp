#include "ClassPictures.h"

#include "Appearance.h"
#include "Screenshots.h"

#include <QBoxLayout>
#include <QCoreApplication>
#include <QDir>
#include <QGridLayout>
#include <QImage>
#include <QLabel>
#include <QTextStream>

namespace {

constexpr int columnSpacing = 12;
constexpr int captionSpacing = 4;
constexpr int captionPixelSize = 12;
constexpr QRgb captionColor = 0xff50555a;

/// Of a row of states: the backbackgrounds, the captions and the space below.
constexpr int gridRows = 3;
constexpr int rowSpacing = 8;
constexpr int backgroundMargin = 16;

/// A parent that fits tightly: a crumb's place in its parent shifts what it paints.
QWidget* hold(QWidget* widget)
{
    auto* holder = new QWidget;
    auto* layout = new QVBoxLayout(holder);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(widget);
    return holder;
}

QLabel* makeCaption(const QString& text)
{
    auto* caption = new QLabel(text);
    QFont font = caption->font();
    font.setPixelSize(captionPixelSize);
    caption->setFont(font);
    QPalette palette = caption->palette();
    palette.setColor(QPalette::WindowText, captionColor);
    caption->setPalette(palette);
    caption->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    caption->setWordWrap(true);
    return caption;
}

void fill(QGridLayout* grid, const StateGallery& gallery)
{
    for (int i = 0; i < gallery.states.size(); ++i) {
        const ClassState& state = gallery.states.at(i);
        const int row = gridRows * (i / gallery.columns);
        const int column = i % gallery.columns;
        grid->addWidget(new StateBackground(state), row, column);
        grid->addWidget(makeCaption(state.caption), row + 1, column);
        grid->setRowMinimumHeight(row + 2, rowSpacing);
        grid->setColumnStretch(column, 1);
    }
}

} // namespace

StateBackground::StateBackground(const ClassState& state, QWidget* parent)
    : QWidget(parent)
{
    setPalette(state.background == ClassState::Dark ? Appearance::darkPalette()
                                                    : Appearance::lightPalette());
    setAutoFillBackground(true);
    setLayoutDirection(state.direction);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(backgroundMargin, backgroundMargin, backgroundMargin,
                               backgroundMargin);
    layout->addWidget(hold(state.make()), 0, Qt::AlignCenter);
}

QImage classPicture(const StateGallery& gallery)
{
    QWidget stage; // a window itself would be kept smaller than the screen
    auto* page = new QWidget(&stage);
    page->setPalette(QPalette(Qt::white));
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(columnSpacing);
    grid->setVerticalSpacing(captionSpacing);
    fill(grid, gallery);
    page->resize(page->sizeHint());
    rendering::showUnseen(&stage);
    return rendering::pictureOf(page, 1.0);
}

bool takeClassPictures(const QVector<StateGallery>& galleries, const QDir& directory,
                       QTextStream& out, QString* error)
{
    const QDir target(directory.absolutePath()); // a state may change the current directory
    for (const StateGallery& gallery : galleries) {
        const QString path = target.filePath(gallery.className + QStringLiteral(".png"));
        if (!classPicture(gallery).save(path)) {
            *error = QCoreApplication::translate("ClassPictures", "cannot write \"%1\"")
                         .arg(QDir::toNativeSeparators(path));
            return false;
        }
        out << QDir::toNativeSeparators(path) << Qt::endl;
    }
    return true;
}

QVector<StateGallery> stategalleries::all()
{
    return {
        animator(),        breadCrumbs(),      loop(),           battery(),
        gridButton(),      roundedFrame(),     clickableLabel(), fileBrowser(),
        fileSystemModel(), keypadLineEdit(),   keypadPopup(),    lineEdit(),
        scrollIndicator(), selectionControl(), switchControl(),
    };
}
