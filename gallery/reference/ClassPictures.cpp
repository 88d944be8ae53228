#include "ClassPictures.h"

#include "Rendering.h"
#include "StateGround.h"

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

/// Of a row of states: the grounds, the captions and the space below.
constexpr int gridRows = 3;
constexpr int rowSpacing = 8;

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

void fill(QGridLayout* grid, const ClassSheet& sheet)
{
    for (int i = 0; i < sheet.states.size(); ++i) {
        const ClassState& state = sheet.states.at(i);
        const int row = gridRows * (i / sheet.columns);
        const int column = i % sheet.columns;
        grid->addWidget(new StateGround(state), row, column);
        grid->addWidget(makeCaption(state.caption), row + 1, column);
        grid->setRowMinimumHeight(row + 2, rowSpacing);
        grid->setColumnStretch(column, 1);
    }
}

} // namespace

QImage classPicture(const ClassSheet& sheet)
{
    QWidget stage; // a window itself would be kept smaller than the screen
    auto* page = new QWidget(&stage);
    page->setPalette(QPalette(Qt::white));
    auto* grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(columnSpacing);
    grid->setVerticalSpacing(captionSpacing);
    fill(grid, sheet);
    page->resize(page->sizeHint());
    rendering::showUnseen(&stage);
    return rendering::pictureOf(page, 1.0);
}

bool takeClassPictures(const QVector<ClassSheet>& sheets, const QDir& directory, QTextStream& out,
                       QString* error)
{
    const QDir target(directory.absolutePath()); // a state may change the current directory
    for (const ClassSheet& sheet : sheets) {
        const QString path = target.filePath(sheet.className + QStringLiteral(".png"));
        if (!classPicture(sheet).save(path)) {
            *error = QCoreApplication::translate("ClassPictures", "cannot write \"%1\"")
                         .arg(QDir::toNativeSeparators(path));
            return false;
        }
        out << QDir::toNativeSeparators(path) << Qt::endl;
    }
    return true;
}
