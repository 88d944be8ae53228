#include "AllClasses.h"
#include "TestApplication.h"

#include <QPointer>

using test::ClassInfo;

/// The table that the tests by theme go over.
class tst_AllClasses : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void row_data();
    void row();
    void uncovered();
};

void tst_AllClasses::row_data()
{
    QTest::addColumn<ClassInfo>("info");
    for (const ClassInfo& info : test::allClasses())
        QTest::newRow(info.name) << info;
}

void tst_AllClasses::row()
{
    QFETCH(ClassInfo, info);
    const QString className = QString::fromLatin1(info.metaObject->className());
    // One class has no meta-object of its own, but one of a base that is named nearly the same.
    QVERIFY2(className.endsWith(QLatin1String(info.name)), info.name);

    auto* parent = new QWidget;
    const QPointer<QObject> object = info.createTypical(parent);
    QCOMPARE(object->metaObject(), info.metaObject);
    QCOMPARE(info.isWidget(), object->isWidgetType());
    delete parent;
    QVERIFY(!object);
}

void tst_AllClasses::uncovered()
{
    QStringList names;
    for (const ClassInfo& info : test::allClasses())
        names.append(QString::fromLatin1(info.name));
    QCOMPARE(test::uncovered(names), QString());
    names.replace(names.indexOf("Switch"), "Swatch");
    QCOMPARE(test::uncovered(names), QString("Switch Swatch"));
}

const test::Registration<tst_AllClasses> registration;

#include "tst_AllClasses.moc"
