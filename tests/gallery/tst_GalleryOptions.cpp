#include "TestApplication.h"

#include <QDir>
#include <QProcess>
#include <QTemporaryDir>

namespace {

struct Outcome
{
    int exitCode;
    QString output;
    QString error;
};

} // namespace

/// Runs the built program; that its window is right is tested elsewhere.
class tst_GalleryOptions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void help();
    void version();
    void listsPages();
    void listsPagesInGerman();
    void rejects_data();
    void rejects();
    void rejectsMalformedStyleSheet();
    void rendersToDirectory();
    void rendersClasses();
    void rendersOnePage();
    void rendersWithStyleSheet();
    void overridesNoPlatform();
    void rendersWithoutDisplay();
    void opensWindow();
    void reportsUnusableDirectory();

private:
    QProcessEnvironment environment() const;
    Outcome run(const QStringList& arguments) const;
    QString write(const QString& name, const QByteArray& content) const;

    QTemporaryDir m_directory;
};

/// No display and no chosen platform.
QProcessEnvironment tst_GalleryOptions::environment() const
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        variables.remove(QString::fromLatin1(name));
    variables.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_directory.path());
    return variables;
}

Outcome tst_GalleryOptions::run(const QStringList& arguments) const
{
    QProcess process;
    process.setProcessEnvironment(environment());
    process.setWorkingDirectory(m_directory.path());
    process.start(QStringLiteral(GALLERY_PROGRAM), arguments);
    if (!process.waitForFinished(120000) || process.exitStatus() != QProcess::NormalExit)
        return {-1, QString(), process.errorString()};
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardOutput()),
            QString::fromLocal8Bit(process.readAllStandardError())};
}

QString tst_GalleryOptions::write(const QString& name, const QByteArray& content) const
{
    QFile file(m_directory.filePath(name));
    file.open(QIODevice::WriteOnly);
    file.write(content);
    return file.fileName();
}

void tst_GalleryOptions::help()
{
    const Outcome outcome = run({QStringLiteral("--help")});
    QCOMPARE(outcome.exitCode, 0);
    for (const char* option : {"--class-pictures", "--screenshots", "--style-sheet", "--page",
                               "--list-pages", "--version"})
        QVERIFY2(outcome.output.contains(QLatin1String(option)), option);
}

void tst_GalleryOptions::version()
{
    const Outcome outcome = run({QStringLiteral("--version")});
    QCOMPARE(outcome.exitCode, 0);
    QCOMPARE(outcome.output, QStringLiteral("platform-widgets-gallery 1.2\n"));
}

void tst_GalleryOptions::listsPages()
{
    const Outcome outcome = run({QStringLiteral("--list-pages")});
    QCOMPARE(outcome.exitCode, 0);
    QVERIFY(outcome.output.startsWith(QStringLiteral("overview\tOverview\n")));
}

void tst_GalleryOptions::listsPagesInGerman()
{
    QProcess process;
    QProcessEnvironment variables = environment();
    variables.insert(QStringLiteral("LC_ALL"), QStringLiteral("de_DE.UTF-8"));
    process.setProcessEnvironment(variables);
    process.start(QStringLiteral(GALLERY_PROGRAM), {QStringLiteral("--list-pages")});
    QVERIFY(process.waitForFinished(120000));
    QVERIFY(process.readAllStandardOutput().contains("frames\tRahmen\n"));
}

void tst_GalleryOptions::rejects_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("message");

    const auto row = [](const char* name, const QStringList& arguments, const QString& message) {
        QTest::newRow(name) << arguments << message;
    };
    row("unknown option", {QStringLiteral("--bogus")}, QStringLiteral("Unknown option 'bogus'."));
    row("no value", {QStringLiteral("--page")}, QStringLiteral("Missing value after '--page'."));
    row("unknown page", {QStringLiteral("--page"), QStringLiteral("nowhere")},
        QStringLiteral("there is no page \"nowhere\"; the pages are: overview"));
    row("no directory", {QStringLiteral("--screenshots=")},
        QStringLiteral("--screenshots needs the name of a directory"));
    row("no directory for classes", {QStringLiteral("--class-pictures=")},
        QStringLiteral("--class-pictures needs the name of a directory"));
    row("no style sheet", {QStringLiteral("--style-sheet"), QStringLiteral("missing.qss")},
        QStringLiteral("cannot read the style sheet \"missing.qss\""));
    row("no such argument", {QStringLiteral("missing")},
        QStringLiteral("\"missing\" is not a directory"));
}

void tst_GalleryOptions::rejects()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, message);

    const Outcome outcome = run(arguments);
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.error.contains(QStringLiteral("platform-widgets-gallery: ") + message),
             qPrintable(outcome.error));
    QCOMPARE(outcome.output, QString());
}

void tst_GalleryOptions::rejectsMalformedStyleSheet()
{
    const QString path = write(QStringLiteral("bad.qss"), "QLineEdit { color: red");
    const Outcome outcome = run({QStringLiteral("--style-sheet"), path});
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(
        outcome.error.contains(QStringLiteral("\"%1\" is not a well-formed style sheet").arg(path)),
        qPrintable(outcome.error));
}

void tst_GalleryOptions::rendersToDirectory()
{
    const QString path = m_directory.filePath(QStringLiteral("a/b"));
    const Outcome outcome = run({QStringLiteral("--screenshots"), path});
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.error));
    QVERIFY2(!outcome.error.contains(QStringLiteral("There is no display")),
             qPrintable(outcome.error));
    const QStringList paths = outcome.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(paths.size() >= 5);
    QCOMPARE(paths.constFirst(), QDir(path).filePath(QStringLiteral("overview-light.png")));
    QCOMPARE(QDir(path).entryList(QDir::Files).size(), paths.size());
    for (const QString& file : paths)
        QVERIFY2(!QImage(file).isNull(), qPrintable(file));
}

void tst_GalleryOptions::rendersClasses()
{
    const QDir directory(m_directory.filePath(QStringLiteral("classes")));
    const Outcome outcome = run({QStringLiteral("--class-pictures"), directory.path()});
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.error));
    const QStringList paths = outcome.output.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    QVERIFY(paths.contains(directory.filePath(QStringLiteral("Switch.png"))));
    QCOMPARE(directory.entryList(QDir::Files).size(), paths.size());
    for (const QString& file : paths)
        QVERIFY2(!QImage(file).isNull(), qPrintable(file));
}

void tst_GalleryOptions::rendersOnePage()
{
    const QString path = m_directory.filePath(QStringLiteral("one"));
    const Outcome outcome =
        run({QStringLiteral("--page=overview"), QStringLiteral("--screenshots=") + path});
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.error));
    QCOMPARE(outcome.output.count(QLatin1Char('\n')), 5);
}

void tst_GalleryOptions::rendersWithStyleSheet()
{
    const QString styleSheet = write(QStringLiteral("good.qss"), "QWidget { background: #123456 }");
    const QString path = m_directory.filePath(QStringLiteral("styled"));
    const Outcome outcome = run({QStringLiteral("--page=overview"), QStringLiteral("--screenshots"),
                                 path, QStringLiteral("--style-sheet"), styleSheet});
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.error));
    const QImage image(QDir(path).filePath(QStringLiteral("overview-dark.png")));
    QCOMPARE(image.pixelColor(1, 1), QColor(0x12, 0x34, 0x56));
}

void tst_GalleryOptions::overridesNoPlatform()
{
    const Outcome outcome = run({QStringLiteral("--list-pages"), QStringLiteral("-platform"),
                                 QStringLiteral("no-such-platform")});
    QVERIFY(outcome.exitCode != 0);
}

void tst_GalleryOptions::rendersWithoutDisplay()
{
    const Outcome outcome = run({QStringLiteral("--page"), QStringLiteral("overview")});
    QVERIFY2(outcome.exitCode == 0, qPrintable(outcome.error));
    const QDir expected(m_directory.filePath(QStringLiteral("gallery-screenshots")));
    QVERIFY2(outcome.error.contains(
                 QStringLiteral("There is no display. The pages are rendered to \"%1\":")
                     .arg(expected.path())),
             qPrintable(outcome.error));
    QVERIFY(expected.exists(QStringLiteral("overview-light.png")));
    QVERIFY(outcome.output.startsWith(expected.filePath(QStringLiteral("overview-light.png\n"))));
}

void tst_GalleryOptions::opensWindow()
{
    QProcess process;
    QProcessEnvironment variables = environment();
    variables.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    process.setProcessEnvironment(variables);
    process.start(QStringLiteral(GALLERY_PROGRAM),
                  {QStringLiteral("--page"), QStringLiteral("overview"), m_directory.path()});
    QVERIFY(process.waitForStarted());
    QVERIFY(!process.waitForFinished(2000)); // it waits for its user
    process.terminate();
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.readAllStandardOutput(), QByteArray());
}

void tst_GalleryOptions::reportsUnusableDirectory()
{
    const QString file = write(QStringLiteral("file"), "x");
    const Outcome outcome = run({QStringLiteral("--screenshots"), file});
    QCOMPARE(outcome.exitCode, 1);
    QVERIFY2(outcome.error.contains(QStringLiteral("cannot make the directory \"%1\"").arg(file)),
             qPrintable(outcome.error));
}

const test::Registration<tst_GalleryOptions> registration;

#include "tst_GalleryOptions.moc"
