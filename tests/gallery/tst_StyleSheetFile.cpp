#include "StyleSheetFile.h"
#include "TestApplication.h"

#include <QPushButton>
#include <QTemporaryDir>

class tst_StyleSheetFile : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void acceptsWellFormed_data();
    void acceptsWellFormed();
    void rejectsMalformed_data();
    void rejectsMalformed();
    void rejectsUnreadable();
    void leavesApplicationAlone();
    void exampleIsWellFormed();
    void exampleHasTouchSize();

private:
    QString write(const QByteArray& content);

    QTemporaryDir m_directory;
};

QString tst_StyleSheetFile::write(const QByteArray& content)
{
    QFile file(m_directory.filePath(QStringLiteral("test.qss")));
    file.open(QIODevice::WriteOnly);
    file.write(content);
    return file.fileName();
}

void tst_StyleSheetFile::acceptsWellFormed_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("comment") << QByteArray("/* nothing */");
    QTest::newRow("rule") << QByteArray("QPushButton { color: red; }");
    QTest::newRow("property") << QByteArray("QLineEdit[inputValid=\"false\"] { color: red }");
    QTest::newRow("not ascii") << QByteArray("#\xc3\xa4 { color: red }");
}

void tst_StyleSheetFile::acceptsWellFormed()
{
    QFETCH(QByteArray, content);

    QString error;
    const auto text = readStyleSheet(write(content), &error);
    QVERIFY2(text, qPrintable(error));
    QCOMPARE(*text, QString::fromUtf8(content));
}

void tst_StyleSheetFile::rejectsMalformed_data()
{
    QTest::addColumn<QByteArray>("content");

    QTest::newRow("no end") << QByteArray("QPushButton { color: red");
    QTest::newRow("no braces") << QByteArray("QPushButton color red");
    QTest::newRow("no selector") << QByteArray("color: red");
    QTest::newRow("second rule") << QByteArray("QLabel { color: red } QPushButton { color");
    QTest::newRow("binary") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
}

void tst_StyleSheetFile::rejectsMalformed()
{
    QFETCH(QByteArray, content);

    const QString path = write(content);
    QString error;
    QVERIFY(!readStyleSheet(path, &error));
    QCOMPARE(error, QStringLiteral("\"%1\" is not a well-formed style sheet").arg(path));
}

void tst_StyleSheetFile::rejectsUnreadable()
{
    QString error;
    const QString missing = m_directory.filePath(QStringLiteral("missing.qss"));
    QVERIFY(!readStyleSheet(missing, &error));
    QVERIFY2(error.startsWith(QStringLiteral("cannot read the style sheet \"%1\": ").arg(missing)),
             qPrintable(error));

    error.clear();
    QVERIFY(!readStyleSheet(m_directory.path(), &error));
    QVERIFY2(error.startsWith(QStringLiteral("cannot read the style sheet")), qPrintable(error));
}

void tst_StyleSheetFile::leavesApplicationAlone()
{
    const QString before = QStringLiteral("QPushButton { min-width: 123px; }");
    qApp->setStyleSheet(before);
    QString error;
    QVERIFY(readStyleSheet(write("QPushButton { min-width: 5px; }"), &error));
    QCOMPARE(qApp->styleSheet(), before);
    qApp->setStyleSheet(QString());
}

void tst_StyleSheetFile::exampleIsWellFormed()
{
    QVERIFY(!exampleStyleSheet().isEmpty());
    QString error;
    QVERIFY2(readStyleSheet(write(exampleStyleSheet().toUtf8()), &error), qPrintable(error));
}

void tst_StyleSheetFile::exampleHasTouchSize()
{
    qApp->setStyleSheet(exampleStyleSheet());
    const QPushButton button(QStringLiteral("button"));
    button.ensurePolished();
    QVERIFY(button.minimumSizeHint().height() >= 44);
    qApp->setStyleSheet(QString());
}

const test::Registration<tst_StyleSheetFile> registration;

#include "tst_StyleSheetFile.moc"
