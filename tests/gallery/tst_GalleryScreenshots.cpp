#include "Appearance.h"
#include "SampleWidget.h"
#include "Screenshots.h"
#include "TestApplication.h"

#include <QBoxLayout>
#include <QImage>
#include <QLabel>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

namespace {

template <typename Page>
GalleryPage* make(QWidget* parent)
{
    return new Page(parent);
}

/// A red mark at the start of the upper edge.
class MarkPage : public GalleryPage
{
public:
    explicit MarkPage(QWidget* parent)
        : GalleryPage(parent)
    {
        auto* mark = new QLabel;
        mark->setFixedSize(20, 20);
        mark->setPalette(QPalette(Qt::red));
        mark->setAutoFillBackground(true);
        auto* row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(mark, 0, Qt::AlignTop);
        row->addStretch();
    }
};

/// Red all over as soon as it is ready, which it is not when it is shown.
class LatePage : public GalleryPage
{
public:
    explicit LatePage(QWidget* parent)
        : GalleryPage(parent)
    {
        setAutoFillBackground(true);
        QTimer::singleShot(delay, this, [this] { setPalette(QPalette(Qt::red)); });
    }

    bool isReady() const override
    {
        return palette().color(QPalette::Window) == QColor(Qt::red);
    }

private:
    static constexpr int delay = 30; // milliseconds
};

QVector<PageEntry> testPages()
{
    return {{QStringLiteral("one"), QStringLiteral("One"), make<test::SamplePage>, {}},
            {QStringLiteral("two"), QStringLiteral("Two"), make<MarkPage>, {}}};
}

const QStringList suffixes = {QStringLiteral("light"), QStringLiteral("light@2x"),
                              QStringLiteral("dark"), QStringLiteral("right-to-left"),
                              QStringLiteral("disabled")};

/// The corner belongs to the page's margin in every layout.
QColor backgroundOf(const QImage& image)
{
    return image.pixelColor(1, 1);
}

} // namespace

class tst_GalleryScreenshots : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void printsEveryPath();
    void sizes();
    void palettes();
    void mirrors();
    void disables();
    void appliesStyleSheet();
    void waitsForPage();
    void reportsUnwritableFile();

private:
    QImage image(const QString& suffix) const;

    QTemporaryDir m_directory;
    QString m_printed;
};

void tst_GalleryScreenshots::initTestCase()
{
    QTextStream out(&m_printed);
    QString error;
    QVERIFY2(takeScreenshots(testPages(), m_directory.path(), QString(), out, &error),
             qPrintable(error));
}

QImage tst_GalleryScreenshots::image(const QString& suffix) const
{
    return QImage(m_directory.filePath(QStringLiteral("one-%1.png").arg(suffix)));
}

void tst_GalleryScreenshots::printsEveryPath()
{
    QStringList expected;
    for (const QString& page : {QStringLiteral("one"), QStringLiteral("two")}) {
        for (const QString& suffix : suffixes)
            expected.append(m_directory.filePath(QStringLiteral("%1-%2.png").arg(page, suffix)));
    }
    QCOMPARE(m_printed.split(QLatin1Char('\n'), Qt::SkipEmptyParts), expected);
    for (const QString& path : expected)
        QVERIFY2(!QImage(path).isNull(), qPrintable(path));
}

void tst_GalleryScreenshots::sizes()
{
    const QSize size = image(QStringLiteral("light")).size();
    QVERIFY(size.width() >= 600 && size.height() >= 400);
    QCOMPARE(image(QStringLiteral("light@2x")).size(), 2 * size);
    for (const char* suffix : {"dark", "right-to-left", "disabled"})
        QCOMPARE(image(QString::fromLatin1(suffix)).size(), size);
}

void tst_GalleryScreenshots::palettes()
{
    const QColor light = Appearance::lightPalette().color(QPalette::Window);
    const QColor dark = Appearance::darkPalette().color(QPalette::Window);
    for (const char* suffix : {"light", "light@2x", "right-to-left", "disabled"})
        QCOMPARE(backgroundOf(image(QString::fromLatin1(suffix))), light);
    QCOMPARE(backgroundOf(image(QStringLiteral("dark"))), dark);
}

void tst_GalleryScreenshots::mirrors()
{
    const QImage light(m_directory.filePath(QStringLiteral("two-light.png")));
    const QImage mirrored(m_directory.filePath(QStringLiteral("two-right-to-left.png")));
    const int right = light.width() - 11;
    QCOMPARE(light.pixelColor(10, 10), QColor(Qt::red));
    QVERIFY(light.pixelColor(right, 10) != QColor(Qt::red));
    QCOMPARE(mirrored.pixelColor(right, 10), QColor(Qt::red));
    QVERIFY(mirrored.pixelColor(10, 10) != QColor(Qt::red));
}

void tst_GalleryScreenshots::disables()
{
    const QPoint middle = image(QStringLiteral("light")).rect().center() - QPoint(0, 60);
    const QPalette palette = Appearance::lightPalette();
    QCOMPARE(image(QStringLiteral("light")).pixelColor(middle),
             palette.color(QPalette::Active, QPalette::Highlight));
    QCOMPARE(image(QStringLiteral("disabled")).pixelColor(middle),
             palette.color(QPalette::Disabled, QPalette::Highlight));
}

void tst_GalleryScreenshots::appliesStyleSheet()
{
    const QTemporaryDir directory;
    QString printed;
    QTextStream out(&printed);
    QString error;
    QVERIFY(takeScreenshots(testPages().mid(0, 1), directory.path(),
                            QStringLiteral("#other { background: #123456; border: none; }"), out,
                            &error));
    for (const QString& suffix : suffixes) {
        const QImage image(directory.filePath(QStringLiteral("one-%1.png").arg(suffix)));
        const qreal ratio = suffix.endsWith(QLatin1String("2x")) ? 2.0 : 1.0;
        const QPoint inButton(int(20 * ratio), image.height() - 1 - int(14 * ratio));
        QCOMPARE(image.pixelColor(inButton), QColor(0x12, 0x34, 0x56));
    }
}

void tst_GalleryScreenshots::waitsForPage()
{
    const QTemporaryDir directory;
    QString printed;
    QTextStream out(&printed);
    QString error;
    const QVector<PageEntry> pages = {{QStringLiteral("late"), QString(), make<LatePage>, {}}};
    QVERIFY(takeScreenshots(pages, directory.path(), QString(), out, &error));
    for (const QString& suffix : suffixes) {
        const QImage image(directory.filePath(QStringLiteral("late-%1.png").arg(suffix)));
        QCOMPARE(backgroundOf(image), QColor(Qt::red));
    }
}

void tst_GalleryScreenshots::reportsUnwritableFile()
{
    const QDir nowhere(m_directory.filePath(QStringLiteral("missing")));
    QString printed;
    QTextStream out(&printed);
    QString error;
    QVERIFY(!takeScreenshots(testPages(), nowhere, QString(), out, &error));
    QCOMPARE(error,
             QStringLiteral("cannot write \"%1\"")
                 .arg(nowhere.absoluteFilePath(QStringLiteral("one-light.png"))));
    QVERIFY(printed.isEmpty());
}

const test::Registration<tst_GalleryScreenshots> registration;

#include "tst_GalleryScreenshots.moc"
