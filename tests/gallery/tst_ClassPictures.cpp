#include "Appearance.h"
#include "OffscreenMessages.h"
#include "reference/AllClassSheets.h"
#include "reference/ClassPictures.h"
#include "reference/StateGround.h"
#include "Rendering.h"
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

ClassSheet sheetOf(const QVector<ClassState>& states)
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
    QVector<StateGround*> grounds;
    for (const ClassState& state : states) {
        grounds.append(new StateGround(state, &stage));
        grounds.constLast()->adjustSize();
    }
    rendering::showUnseen(&stage);
    QVector<QImage> pictures;
    for (StateGround* ground : qAsConst(grounds))
        pictures.append(rendering::pictureOf(ground, 1.0));
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
    void grounds();
    void mirrors();
    void wrapsIntoRows();
    void writesFiles();
    void reportsUnwritableFile();
};

void tst_ClassPictures::initTestCase()
{
    test::dropOffscreenMessages();
}

void tst_ClassPictures::everyClassHasPicture()
{
    QStringList names;
    const QVector<ClassSheet> sheets = allClassSheets();
    for (const ClassSheet& sheet : sheets)
        names.append(sheet.className);
    names.sort();
    QStringList expected = QStringLiteral(PUBLIC_CLASSES).split(QLatin1Char('|'));
    expected.sort();
    QCOMPARE(names, expected);
}

void tst_ClassPictures::everyStateLooksDifferent_data()
{
    QTest::addColumn<int>("index");
    const QVector<ClassSheet> sheets = allClassSheets();
    for (int i = 0; i < sheets.size(); ++i)
        QTest::newRow(qPrintable(sheets.at(i).className)) << i;
}

void tst_ClassPictures::everyStateLooksDifferent()
{
    QFETCH(int, index);
    const ClassSheet sheet = allClassSheets().at(index);
    const QVector<QImage> pictures = picturesOf(sheet.states);
    QVERIFY(pictures.size() > 1);
    for (int i = 0; i < pictures.size(); ++i) {
        for (int j = 0; j < i; ++j) {
            QVERIFY2(pictures.at(i) != pictures.at(j),
                     qPrintable(QStringLiteral("\"%1\" looks as \"%2\"")
                                    .arg(sheet.states.at(i).caption, sheet.states.at(j).caption)));
        }
    }
}

void tst_ClassPictures::grounds()
{
    const QImage picture =
        classPicture(sheetOf({{QString(), makeMark}, {QString(), makeMark, ClassState::Dark}}));
    QCOMPARE(picture.pixelColor(1, 1), Appearance::lightPalette().color(QPalette::Window));
    QCOMPARE(picture.pixelColor(picture.width() - 2, 1),
             Appearance::darkPalette().color(QPalette::Window));
    QCOMPARE(picture.pixelColor(picture.width() / 2, 1), QColor(Qt::white)); // between the two
}

void tst_ClassPictures::mirrors()
{
    const QImage leftToRight = classPicture(sheetOf({{QString(), makeMark}}));
    const QImage rightToLeft =
        classPicture(sheetOf({{QString(), makeMark, ClassState::Light, Qt::RightToLeft}}));
    const int left = firstColumnOf(Qt::red, leftToRight);
    QVERIFY(left >= 0);
    QCOMPARE(firstColumnOf(Qt::red, rightToLeft), left + markWidth - markExtent);
}

void tst_ClassPictures::wrapsIntoRows()
{
    ClassSheet sheet = sheetOf(QVector<ClassState>(4, {QStringLiteral("Mark"), makeMark}));
    const QSize row = classPicture(sheet).size();
    sheet.columns = 2;
    const QSize square = classPicture(sheet).size();
    QVERIFY(square.width() < row.width());
    QVERIFY(square.height() > row.height());
}

void tst_ClassPictures::writesFiles()
{
    const QTemporaryDir directory;
    const ClassSheet sheet = sheetOf({{QString(), makeMark}});
    QString printed;
    QTextStream out(&printed);
    QString error;
    QVERIFY2(takeClassPictures({sheet}, directory.path(), out, &error), qPrintable(error));
    const QString path = directory.filePath(QStringLiteral("Mark.png"));
    QCOMPARE(printed, path + QLatin1Char('\n'));
    QCOMPARE(QImage(path).convertToFormat(QImage::Format_RGB32),
             classPicture(sheet).convertToFormat(QImage::Format_RGB32));
}

void tst_ClassPictures::reportsUnwritableFile()
{
    const QTemporaryDir directory;
    const QDir nowhere(directory.filePath(QStringLiteral("missing")));
    QString printed;
    QTextStream out(&printed);
    QString error;
    QVERIFY(!takeClassPictures({sheetOf({{QString(), makeMark}})}, nowhere, out, &error));
    QCOMPARE(
        error,
        QStringLiteral("cannot write \"%1\"").arg(nowhere.filePath(QStringLiteral("Mark.png"))));
    QVERIFY(printed.isEmpty());
}

int main(int argc, char** argv)
{
    return test::run<tst_ClassPictures>(argc, argv);
}

#include "tst_ClassPictures.moc"
