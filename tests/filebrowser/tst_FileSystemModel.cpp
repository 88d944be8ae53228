#include "ui/FileSystemModel.h"

#include "QtVersions.h"
#include "TestApplication.h"
#include "Tree.h"

#include <QAbstractItemModelTester>
#include <QTranslator>

#include <memory>

using test::Tree;
using ui::FileSystemModel;

namespace {

/// Loads nothing outside one tree: the model tester would have it walk the whole file system.
class ConfinedModel : public FileSystemModel
{
public:
    explicit ConfinedModel(const QString& path)
        : m_path(path)
    {
    }

    bool canFetchMore(const QModelIndex& index) const override
    {
        return isInside(index) && FileSystemModel::canFetchMore(index);
    }

    void fetchMore(const QModelIndex& index) override
    {
        if (isInside(index))
            FileSystemModel::fetchMore(index);
    }

private:
    bool isInside(const QModelIndex& index) const
    {
        return filePath(index).startsWith(m_path);
    }

    QString m_path;
};

} // namespace

class tst_FileSystemModel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void headerTexts_data();
    void headerTexts();
    void headerTextsAreStrings();
    void verticalHeaderIsTheBaseClass();
    void headerAlignment();
    void headerRolesPassThrough();
    void dateIsAlignedRightWithoutAVerticalFlag();
    void dataPassesThrough();
    void invalidIndex();
    void hasNoMetaObjectOfItsOwn();
    void ownedByItsParent();
    void germanHeaderTextsComeFromQt();
    void staysConsistentWhileTheTreeChanges();

private:
    QModelIndex entry(const QString& name, int column = 0) const;

    std::unique_ptr<Tree> m_tree;
    std::unique_ptr<FileSystemModel> m_model;
    std::unique_ptr<QFileSystemModel> m_base;
};

void tst_FileSystemModel::init()
{
    m_tree = std::make_unique<Tree>();
    m_tree->makeDir(QStringLiteral("directory"));
    m_tree->makeFile(QStringLiteral("file.txt"), QByteArray(2048, 'x'));
    m_model = std::make_unique<FileSystemModel>();
    m_base = std::make_unique<QFileSystemModel>();
    m_model->setRootPath(m_tree->path());
    m_base->setRootPath(m_tree->path());
    QTRY_COMPARE(m_model->rowCount(m_model->index(m_tree->path())), 2);
    QTRY_COMPARE(m_base->rowCount(m_base->index(m_tree->path())), 2);
}

void tst_FileSystemModel::cleanup()
{
    m_model.reset();
    m_base.reset();
    m_tree.reset();
}

QModelIndex tst_FileSystemModel::entry(const QString& name, int column) const
{
    return m_model->index(m_tree->path(name), column);
}

void tst_FileSystemModel::headerTexts_data()
{
    QTest::addColumn<int>("section");
    QTest::addColumn<QString>("text");
    QTest::newRow("name") << 0 << "Name";
    QTest::newRow("size") << 1 << "Size";
    QTest::newRow("type") << 2 << "";
    QTest::newRow("date") << 3 << "Date Modified";
    QTest::newRow("beyond") << 4 << "";
    QTest::newRow("far beyond") << 4000 << "";
    QTest::newRow("before") << -1 << "";
}

void tst_FileSystemModel::headerTexts()
{
    QFETCH(int, section);
    QFETCH(QString, text);
    QCOMPARE(m_model->headerData(section, Qt::Horizontal, Qt::DisplayRole).toString(), text);
    QCOMPARE(m_model->headerData(section, Qt::Horizontal).toString(), text);
}

void tst_FileSystemModel::headerTextsAreStrings()
{
    for (int section = 0; section < 6; ++section)
        QCOMPARE(m_model->headerData(section, Qt::Horizontal).userType(), int(QMetaType::QString));
}

void tst_FileSystemModel::verticalHeaderIsTheBaseClass()
{
    for (int section = 0; section < 5; ++section) {
        const QVariant number = m_model->headerData(section, Qt::Vertical, Qt::DisplayRole);
        QCOMPARE(number, m_base->headerData(section, Qt::Vertical, Qt::DisplayRole));
        QCOMPARE(number.toInt(), section + 1);
    }
}

void tst_FileSystemModel::headerAlignment()
{
    for (const Qt::Orientation orientation : {Qt::Horizontal, Qt::Vertical}) {
        const QVariant date = m_model->headerData(3, orientation, Qt::TextAlignmentRole);
        QCOMPARE(date.userType(), int(QMetaType::Int));
        QCOMPARE(date.toInt(), 2);
        for (const int section : {0, 1, 2, 4}) {
            QCOMPARE(m_model->headerData(section, orientation, Qt::TextAlignmentRole),
                     m_base->headerData(section, orientation, Qt::TextAlignmentRole));
        }
    }
}

void tst_FileSystemModel::headerRolesPassThrough()
{
    for (const int role : {int(Qt::DecorationRole), int(Qt::EditRole), int(Qt::ToolTipRole),
                           int(Qt::SizeHintRole)}) {
        for (int section = 0; section < 5; ++section) {
            const QVariant actual = m_model->headerData(section, Qt::Horizontal, role);
            const QVariant expected = m_base->headerData(section, Qt::Horizontal, role);
            QCOMPARE(actual.userType(), expected.userType());
            if (expected.canConvert<QString>())
                QCOMPARE(actual.toString(), expected.toString());
        }
    }
}

void tst_FileSystemModel::dateIsAlignedRightWithoutAVerticalFlag()
{
    const QVariant alignment =
        m_model->data(entry(QStringLiteral("file.txt"), 3), Qt::TextAlignmentRole);
    QCOMPARE(alignment.userType(), int(QMetaType::Int));
    QCOMPARE(alignment.toInt(), 2);
    QVERIFY(m_base
                ->data(m_base->index(m_tree->path(QStringLiteral("file.txt")), 3),
                       Qt::TextAlignmentRole)
                .toInt()
            != 2);
}

void tst_FileSystemModel::dataPassesThrough()
{
    const QVector<int> roles{Qt::DisplayRole,
                             Qt::EditRole,
                             Qt::ToolTipRole,
                             Qt::TextAlignmentRole,
                             QFileSystemModel::FilePathRole,
                             QFileSystemModel::FileNameRole,
                             QFileSystemModel::FilePermissions};
    for (const QString& name : {QStringLiteral("directory"), QStringLiteral("file.txt")}) {
        for (int column = 0; column < 4; ++column) {
            for (const int role : roles) {
                if (column == 3 && role == Qt::TextAlignmentRole)
                    continue;
                QCOMPARE(m_model->data(entry(name, column), role),
                         m_base->data(m_base->index(m_tree->path(name), column), role));
            }
        }
        const QIcon icon = m_model->data(entry(name), Qt::DecorationRole).value<QIcon>();
        const QIcon baseIcon =
            m_base->data(m_base->index(m_tree->path(name)), Qt::DecorationRole).value<QIcon>();
        QCOMPARE(icon.pixmap(16).toImage(), baseIcon.pixmap(16).toImage());
    }
    QCOMPARE(m_model->data(entry(QStringLiteral("file.txt"), 1), Qt::TextAlignmentRole).toInt(),
             int(Qt::AlignTrailing | Qt::AlignVCenter));
}

void tst_FileSystemModel::invalidIndex()
{
    QVERIFY(!m_model->data(QModelIndex(), Qt::TextAlignmentRole).isValid());
    QVERIFY(!m_model->data(QModelIndex(), Qt::DisplayRole).isValid());
}

void tst_FileSystemModel::hasNoMetaObjectOfItsOwn()
{
    QCOMPARE(m_model->metaObject(), &QFileSystemModel::staticMetaObject);
}

void tst_FileSystemModel::ownedByItsParent()
{
    auto parent = std::make_unique<QObject>();
    const QPointer<FileSystemModel> model(new FileSystemModel(parent.get()));
    QCOMPARE(model->QObject::parent(), parent.get());
    parent.reset();
    QVERIFY(model.isNull());
    QVERIFY(!m_model->QObject::parent());
}

void tst_FileSystemModel::germanHeaderTextsComeFromQt()
{
    QTranslator german;
    QVERIFY(german.load(QStringLiteral("qtbase_de"), test::qtTranslations()));
    QVERIFY(QCoreApplication::installTranslator(&german));
    QCOMPARE(m_model->headerData(0, Qt::Horizontal).toString(), QStringLiteral("Name"));
    QCOMPARE(m_model->headerData(1, Qt::Horizontal).toString(), QString::fromUtf8("Größe"));
    QCOMPARE(m_model->headerData(2, Qt::Horizontal).toString(), QString());
    QCOMPARE(m_model->headerData(3, Qt::Horizontal).toString(),
             QString::fromUtf8("Änderungsdatum"));
    QCoreApplication::removeTranslator(&german);
    QCOMPARE(m_model->headerData(1, Qt::Horizontal).toString(), QStringLiteral("Size"));
}

void tst_FileSystemModel::staysConsistentWhileTheTreeChanges()
{
    ConfinedModel model(m_tree->path());
    const QAbstractItemModelTester tester(&model,
                                          QAbstractItemModelTester::FailureReportingMode::QtTest);
    const QPersistentModelIndex root = model.setRootPath(m_tree->path());
    QTRY_COMPARE(model.rowCount(root), 2);

    const auto names = [&] {
        QStringList result;
        for (int row = 0; row < model.rowCount(root); ++row)
            result.append(model.index(row, 0, root).data().toString());
        return result;
    };
    m_tree->makeFile(QStringLiteral("another"));
    QTRY_COMPARE(names(), (QStringList{"directory", "another", "file.txt"}));
    QVERIFY(QFile::rename(m_tree->path(QStringLiteral("another")),
                          m_tree->path(QStringLiteral("renamed"))));
    QTRY_COMPARE(names(), (QStringList{"directory", "file.txt", "renamed"}));
    QVERIFY(QFile::remove(m_tree->path(QStringLiteral("file.txt"))));
    QTRY_COMPARE(names(), (QStringList{"directory", "renamed"}));
    model.sort(0, Qt::DescendingOrder);
    QTRY_COMPARE(names(), (QStringList{"renamed", "directory"}));
    model.setNameFilters({QStringLiteral("*.txt")});
    model.setNameFilterDisables(false);
    QTRY_COMPARE(names(), QStringList{"directory"});
}

const test::Registration<tst_FileSystemModel> registration;

#include "tst_FileSystemModel.moc"
