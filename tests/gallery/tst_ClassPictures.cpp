#include "AllClasses.h"
#include "Appearance.h"
#include "PlatformMessages.h"
#include "reference/ClassPictures.h"
#include "Screenshots.h"
#include "TestApplication.h"

#include <QBoxLayout>
#include <QDir>
#include <QLabel>
#include <QTemporaryDir>
#include <QTextStream>

namespace {

constexpr int markExtent = 20;
constexpr int markWidth = 60;

/// A red mark at the start of a line.
QWidget* makeMark()
{
    auto* mark = new QLabel;
    mark->setFixedSize(markExtent, markExtent);
    mark->setPalette(QPalette(Qt::red));
    mark->setAutoFillBackground(true);
    auto* line = new QWidget;
    line->setFixedWidth(markWidth);
    auto* row = new QHBoxLayout(line);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(mark);
    row->addStretch();
    return line;
}

StateGallery galleryOf(const QVector<ClassState>& states)
{
    return {QStringLiteral("Mark"), int(states.size()), states};
}

/// From the left edge; -1 if there is none.
int firstColumnOf(const QColor& color, const QImage& image)
{
    for (int x = 0; x < image.width(); ++x) {
        for (int y = 0; y < image.height(); ++y) {
            if (image.pixelColor(x, y) == color)
                return x;
        }
    }
    return -1;
}

QVector<QImage> picturesOf(const QVector<ClassState>& states)
{
    QWidget stage;
    QVector<StateBackground*> backgrounds;
    for (const ClassState& state : states) {
        backgrounds.append(new StateBackground(state, &stage));
        backgrounds.constLast()->adjustSize();
    }
    rendering::showUnseen(&stage);
    QVector<QImage> pictures;
    for (StateBackground* background : qAsConst(backgrounds))
        pictures.append(rendering::pictureOf(background, 1.0));
    return pictures;
}

} // namespace

class tst_ClassPictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyClassHasPicture();
    void everyStateLooksDifferent_data();
    void everyStateLooksDifferent();
    void backgrounds();
    void mirrors();
    void wrapsIntoRows();
    void writesFiles();
    void reportsUnwritableFile();
};

void tst_ClassPictures::initTestCase()
{
    test::dropPlatformMessages();
}

void tst_ClassPictures::everyClassHasPicture()
{
    QStringList names;
    const QVector<StateGallery> galleries = stategalleries::all();
    for (const StateGallery& gallery : galleries)
        names.append(gallery.className);
    QCOMPARE(test::uncovered(names), QString());
}

void tst_ClassPictures::everyStateLooksDifferent_data()
{
    QTest::addColumn<int>("index");
    const QVector<StateGallery> galleries = stategalleries::all();
    for (int i = 0; i < galleries.size(); ++i)
        QTest::newRow(qPrintable(galleries.at(i).className)) << i;
}

void tst_ClassPictures::everyStateLooksDifferent()
{
    QFETCH(int, index);
    const StateGallery gallery = stategalleries::all().at(index);
    const QVector<QImage> pictures = picturesOf(gallery.states);
    QVERIFY(pictures.size() > 1);
    for (int i = 0; i < pictures.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            QVERIFY2(
                pictures.at(i) != pictures.at(j),
                qPrintable(QStringLiteral("\"%1\" looks as \"%2\"")
                               .arg(gallery.states.at(i).caption, gallery.states.at(j).caption)));
        }
    }
}

void tst_ClassPictures::backgrounds()
{
    const QImage picture =
        classPicture(galleryOf({{QString(), makeMark}, {QString(), makeMark, ClassState::Dark}}));
    QCOMPARE(picture.pixelColor(1, 1), Appearance::lightPalette().color(QPalette::Window));
    QCOMPARE(picture.pixelColor(picture.width() - 2, 1),
             Appearance::darkPalette().color(QPalette::Window));
    QCOMPARE(picture.pixelColor(picture.width() / 2, 1), QColor(Qt::white)); // between the two
}

void tst_ClassPictures::mirrors()
{
    const QImage leftToRight = classPicture(galleryOf({{QString(), makeMark}}));
    const QImage rightToLeft =
        classPicture(galleryOf({{QString(), makeMark, ClassState::Light, Qt::RightToLeft}}));
    const int left = firstColumnOf(Qt::red, leftToRight);
    QVERIFY(left >= 0);
    QCOMPARE(firstColumnOf(Qt::red, rightToLeft), left + markWidth - markExtent);
}

void tst_ClassPictures::wrapsIntoRows()
{
    StateGallery gallery = galleryOf(QVector<ClassState>(4, {QStringLiteral("Mark"), makeMark}));
    const QSize row = classPicture(gallery).size();
    gallery.columns = 2;
    const QSize square = classPicture(gallery).size();
    QVERIFY(square.width() < row.width());
    QVERIFY(square.height() > row.height());
}

void tst_ClassPictures::writesFiles()
{
    const QTemporaryDir directory;
    const StateGallery gallery = galleryOf({{QString(), makeMark}});
    QString printed;
    QTextStream out(&printed);
    QString error;
    QVERIFY2(takeClassPictures({gallery}, directory.path(), out, &error), qPrintable(error));
    const QString path = directory.filePath(QStringLiteral("Mark.png"));
    QCOMPARE(printed, path + QLatin1Char('\n'));
    QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB32),
             classPicture(gallery).convertToFormat(QImage::Format_RGB32));
}

void tst_ClassPictures::reportsUnwritableFile()
{
    const QTemporaryDir directory;
    const QDir nowhere(directory.filePath(QStringLiteral("missing")));
    QString printed;
    QTextStream out(&printed);
    QString error;
    QVERIFY(!takeClassPictures({galleryOf({{QString(), makeMark}})}, nowhere, out, &error));
    QCOMPARE(
        error,
        QStringLiteral("cannot write \"%1\"").arg(nowhere.filePath(QStringLiteral("Mark.png"))));
    QVERIFY(printed.isEmpty());
}

const test::Registration<tst_ClassPictures> registration;

#include "tst_ClassPictures.moc"
