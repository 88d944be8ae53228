#include "AllClasses.h"
#include "TestApplication.h"

#include <Switch.h>

#include <QMetaProperty>

namespace {

/// A row of the table of properties in the comment of a class.
struct Row
{
    QString name;
    QString getter;
    QString setter;
    QString defaultValue;
    QString inStyleSheet;
};

QString headerOf(const char* className)
{
    for (const char* folder : {"/", "/ui/"}) {
        QFile file(QStringLiteral(HEADER_FOLDER) + QLatin1String(folder) + QLatin1String(className)
                   + QLatin1String(".h"));
        if (file.open(QIODevice::ReadOnly))
            return QString::fromUtf8(file.readAll());
    }
    return QString();
}

QVector<Row> rowsOf(const QString& header)
{
    static const QRegularExpression row(QStringLiteral(
        R"(\* \| \\c (\w+) \| (\w+)\(\) \| (\w+)\(\) \| ([^|]+) \| (none|`qproperty-\w+`) \|\n)"));
    QVector<Row> rows;
    auto matches = row.globalMatch(header);
    while (matches.hasNext()) {
        const auto match = matches.next();
        rows.append({match.captured(1), match.captured(2), match.captured(3), match.captured(4),
                     match.captured(5)});
    }
    return rows;
}

/// Whether the words \a said describe the value that \a property has at first in \a object.
bool describes(const QString& said, const QMetaProperty& property, const QObject& object)
{
    const QVariant value = property.read(&object);
    if (value.userType() == qMetaTypeId<Style::Animation>()) {
        const int duration = value.value<Style::Animation>().duration;
        return said.endsWith(QStringLiteral(", %1 ms").arg(duration));
    }
    if (property.isEnumType())
        return said == QLatin1String(property.enumerator().valueToKey(value.toInt()));
    if (value.userType() == QMetaType::QColor)
        return said.startsWith(QLatin1String("invalid")) == !value.value<QColor>().isValid();
    if (value.userType() == QMetaType::QString)
        return (said == QLatin1String("empty")) == value.toString().isEmpty();
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return !isNumber || said == QString::number(number);
}

/// Of the class itself; one without Q_OBJECT has its base's meta-object, and no properties of its
/// own.
int ownPropertyCount(const test::ClassInfo& info)
{
    const QMetaObject& meta = *info.metaObject;
    const bool own = QByteArray(meta.className()).endsWith(QByteArray(":") + info.name)
        || QByteArray(meta.className()) == info.name;
    return own ? meta.propertyCount() - meta.propertyOffset() : 0;
}

bool isForStyleSheets(const QMetaProperty& property)
{
    return property.userType() != qMetaTypeId<Style::Animation>()
        && property.userType() != QMetaType::QObjectStar;
}

} // namespace

/// The tables of properties in the reference say what the classes have.
class tst_PropertyTables : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void agree_data();
    void agree();
};

void tst_PropertyTables::agree_data()
{
    QTest::addColumn<test::ClassInfo>("info");
    for (const test::ClassInfo& info : test::allClasses())
        QTest::newRow(info.name) << info;
}

void tst_PropertyTables::agree()
{
    QFETCH(test::ClassInfo, info);
    const QString header = headerOf(info.name);
    QVERIFY(!header.isEmpty());
    const QVector<Row> rows = rowsOf(header);
    const QMetaObject& meta = *info.metaObject;
    QCOMPARE(rows.size(), ownPropertyCount(info));

    QWidget parent;
    const QObject* object = info.create(&parent);
    for (int i = 0; i < rows.size(); ++i) {
        const Row& row = rows.at(i);
        const QMetaProperty property = meta.property(meta.propertyOffset() + i);
        QCOMPARE(row.name, QString::fromLatin1(property.name()));
        const QRegularExpression declaration(
            QStringLiteral("Q_PROPERTY\\(\\s*\\S+ %1 READ %2 WRITE %3\\)")
                .arg(row.name, row.getter, row.setter));
        QVERIFY2(header.contains(declaration), qPrintable(row.name));
        QVERIFY2(describes(row.defaultValue, property, *object), qPrintable(row.name));
        QCOMPARE(row.inStyleSheet,
                 isForStyleSheets(property) ? QStringLiteral("`qproperty-%1`").arg(row.name)
                                            : QStringLiteral("none"));
    }
}

const test::Registration<tst_PropertyTables> registration;

#include "tst_PropertyTables.moc"
