#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "ClickableLabel.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileBrowserWidget.h"
#include "ui/FileSystemModel.h"

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <unistd.h>

using namespace test;

namespace {

constexpr uid_t unprivilegedUser = 65534;

/// Gives up the rights of the superuser, to whom every directory is readable, for its lifetime.
class Unprivileged
{
public:
    Unprivileged()
    {
        Q_UNUSED(seteuid(unprivilegedUser))
    }
    ~Unprivileged()
    {
        Q_UNUSED(seteuid(getuid()))
    }
    Q_DISABLE_COPY(Unprivileged)
};

/**
 * Refuses every write to a file for its lifetime, as a full file system does; that another error is
 * given makes no difference to who only reads.
 */
class FullFileSystem
{
public:
    FullFileSystem()
    {
        getrlimit(RLIMIT_FSIZE, &m_former);
        signal(SIGXFSZ, SIG_IGN);
        const rlimit none{0, m_former.rlim_max};
        setrlimit(RLIMIT_FSIZE, &none);
    }
    ~FullFileSystem()
    {
        setrlimit(RLIMIT_FSIZE, &m_former);
    }
    Q_DISABLE_COPY(FullFileSystem)

private:
    rlimit m_former;
};

constexpr int manyEntries = 10000;

} // namespace

/// Directories as they are found in the wild, and as they change under the browser.
class tst_HostileTrees : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void unusualNames_data();
    void unusualNames();
    void unusualNamesInTheListView();
    void namesThatAreNoText();
    void linksThatLoop();
    void linkToNowhere();
    void unreadableDirectory();
    void permissionLostWhileShown();
    void fullFileSystem();
    void directoryFilledWhileShown_data();
    void directoryFilledWhileShown();
    void allowedDirectoryVanishes();
    void directoryRemovedWhileShown();
    void directoryRenamedWhileShown();
    void selectedFileRenamed();
    void fileReplacedByADirectory();
    void deepTree();
    void navigatingWhileLoading();
    void deletedWhileLoading();
    void manyEntriesLoadWhileTheInterfaceAnswers();

private:
    bool shows(const QStringList& names) const;
    bool open(const QString& name);

    std::unique_ptr<Tree> m_tree;
    std::unique_ptr<QWidget> m_window;
    ui::FileBrowserWidget* m_browser = nullptr;
    std::unique_ptr<BrowserParts> m_parts;
};

void tst_HostileTrees::init()
{
    m_tree = std::make_unique<Tree>();
    m_window = std::make_unique<QWidget>();
    m_browser = new ui::FileBrowserWidget(m_window.get());
    m_parts = std::make_unique<BrowserParts>(*m_browser);
    m_window->resize(800, 480);
    m_browser->setGeometry(m_window->rect());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
}

void tst_HostileTrees::cleanup()
{
    m_window.reset();
    m_tree.reset();
}

/// Waits until the tile view shows \a names, in any order.
bool tst_HostileTrees::shows(const QStringList& names) const
{
    QStringList expected = names;
    expected.sort();
    return QTest::qWaitFor([&] {
        QStringList shown = shownNames(*m_parts->tileView);
        shown.sort();
        return shown == expected;
    });
}

/// Selects the directory \a name, once it is there.
bool tst_HostileTrees::open(const QString& name)
{
    if (!QTest::qWaitFor([&] {
            return m_parts->model->isDir(entry(*m_parts->tileView, name))
                && entry(*m_parts->tileView, name).isValid();
        }))
        return false;
    selectEntries(*m_parts->tileView, {name});
    return true;
}

void tst_HostileTrees::unusualNames_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("crumb");
    QTest::newRow("space") << "a b"
                           << "a b";
    QTest::newRow("spaces around") << " a "
                                   << " a ";
    QTest::newRow("ampersand") << "a&b"
                               << "a&b";
    QTest::newRow("markup") << "<b>bold"
                            << "<b>bold";
    QTest::newRow("picture") << "<img width=9999 height=9999>"
                             << "<img width=9999 height=9999>";
    QTest::newRow("entity") << "&lt;"
                            << "&lt;";
    QTest::newRow("line break") << "a\nb"
                                << "a\nb";
    QTest::newRow("tab") << "a\tb"
                         << "a\tb";
    QTest::newRow("backslash") << "a\\b"
                               << "a\\b";
    QTest::newRow("percent") << "%20%1"
                             << "%20%1";
    QTest::newRow("tilde") << "~"
                           << "~";
    QTest::newRow("star") << "*"
                          << "*";
    QTest::newRow("umlaut") << QString::fromUtf8("größe") << QString::fromUtf8("größe");
    QTest::newRow("dot inside") << "long.x"
                                << "ng.x";
    QTest::newRow("dot at the end") << "a."
                                    << ".";
    QTest::newRow("as long as can be") << QString(255, 'x') << QString(255, 'x');
}

void tst_HostileTrees::unusualNames()
{
    QFETCH(QString, name);
    QFETCH(QString, crumb);
    m_tree->makeDir(name + "/inside");
    m_browser->setAllowedDirs({m_tree->path()});
    QVERIFY(open(name));
    QCOMPARE(m_browser->currentPath(), m_tree->path(name));
    QCOMPARE(crumbs(*m_parts->bar), QStringList{crumb});
    QVERIFY(shows({QStringLiteral("inside")}));
    m_window->grab();
}

void tst_HostileTrees::unusualNamesInTheListView()
{
    for (const char* name : {"a b", "a&b", "<b>bold", "a\nb", ".hidden", "x.y.z"}) {
        m_tree->makeDir(QString::fromLatin1(name));
        m_tree->makeFile(QStringLiteral("f") + QString::fromLatin1(name));
    }
    m_browser->setAllowedDirs({m_tree->path()});
    // "f.hidden" begins with no dot.
    QVERIFY(shows({"a b", "a&b", "<b>bold", "a\nb", "x.y.z", "fa b", "fa&b", "f<b>bold", "fa\nb",
                   "f.hidden", "fx.y.z"}));
    m_parts->listButton->click();
    QCOMPARE(shownNames(*m_parts->listView), shownNames(*m_parts->tileView));
    selectEntries(*m_parts->listView, {"fa\nb"});
    QCOMPARE(m_browser->selectedFiles(), QStringList{m_tree->path(QStringLiteral("fa\nb"))});
    m_window->grab();
}

void tst_HostileTrees::namesThatAreNoText()
{
    m_tree->makeDirNamed("dir\xff\xfe");
    m_tree->makeFileNamed("file\xc3\x28");
    m_tree->makeFile(QStringLiteral("plain"));
    m_browser->setAllowedDirs({m_tree->path()});
    QTRY_VERIFY(entry(*m_parts->tileView, QStringLiteral("plain")).isValid());
    m_parts->tileView->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_parts->tileView->selectAll();
    const QStringList names = shownNames(*m_parts->tileView);
    for (const QString& name : names)
        selectEntries(*m_parts->tileView, {name});
    m_window->grab();
    m_browser->setRootPath(m_tree->path());
    QCOMPARE(m_browser->currentPath(), m_tree->path());
}

void tst_HostileTrees::linksThatLoop()
{
    m_tree->makeDir(QStringLiteral("dir"));
    m_tree->makeLink(m_tree->path(), QStringLiteral("dir/up"));
    m_tree->makeLink(m_tree->path(QStringLiteral("self")), QStringLiteral("self"));
    m_tree->makeLink(m_tree->path(QStringLiteral("pong")), QStringLiteral("ping"));
    m_tree->makeLink(m_tree->path(QStringLiteral("ping")), QStringLiteral("pong"));
    m_browser->setAllowedDirs({m_tree->path()});
    for (int iteration = 0; iteration < 5; ++iteration) {
        QVERIFY(open(QStringLiteral("dir")));
        QVERIFY(open(QStringLiteral("up")));
        QCOMPARE(QFileInfo(m_browser->currentPath()).canonicalFilePath(), m_tree->path());
    }
}

void tst_HostileTrees::linkToNowhere()
{
    m_tree->makeFile(QStringLiteral("plain"));
    m_tree->makeLink(m_tree->path(QStringLiteral("missing")), QStringLiteral("nowhere"));
    m_browser->setAllowedDirs({m_tree->path()});
    QVERIFY(shows({QStringLiteral("plain")}));
    m_browser->setRootPath(m_tree->path(QStringLiteral("nowhere")));
    QCOMPARE(m_browser->currentPath(), m_tree->path());
}

void tst_HostileTrees::unreadableDirectory()
{
    m_tree->makeDir(QStringLiteral("locked/secret"));
    m_tree->makeFile(QStringLiteral("plain"));
    QVERIFY(QFile::setPermissions(m_tree->path(), QFile::Permissions(0x7555)));
    QVERIFY(QFile::setPermissions(m_tree->path(QStringLiteral("locked")), QFile::Permissions()));
    QTest::ignoreMessage(QtSystemMsg,
                         QRegularExpression(QStringLiteral("inotify_add_watch.*locked\\)")));
    if (QT_VERSION_MAJOR == 6) // also watches what it cannot see
        QTest::ignoreMessage(QtSystemMsg,
                             QRegularExpression(QStringLiteral("inotify_add_watch.*secret\\)")));
    {
        const Unprivileged user;
        m_browser->setAllowedDirs({m_tree->path()});
        QVERIFY(shows({QStringLiteral("locked"), QStringLiteral("plain")}));
        QVERIFY(open(QStringLiteral("locked")));
        QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("locked")));
        QCOMPARE(crumbs(*m_parts->bar), QStringList{"locked"});
        m_window->grab();
        QCOMPARE(shownNames(*m_parts->tileView), QStringList());
        m_browser->setRootPath(m_tree->path(QStringLiteral("locked/secret")));
        m_browser->setRootPath(m_tree->path());
        QVERIFY(shows({QStringLiteral("locked"), QStringLiteral("plain")}));
    }
    QVERIFY(
        QFile::setPermissions(m_tree->path(QStringLiteral("locked")), QFile::Permissions(0x7000)));
}

void tst_HostileTrees::permissionLostWhileShown()
{
    const QString locked = m_tree->path(QStringLiteral("locked"));
    m_tree->makeDir(QStringLiteral("locked"));
    m_tree->makeFile(QStringLiteral("locked/file"));
    QVERIFY(QFile::setPermissions(m_tree->path(), QFile::Permissions(0x7555)));
    m_browser->setAllowedDirs({m_tree->path()});
    QVERIFY(open(QStringLiteral("locked")));
    QVERIFY(shows({QStringLiteral("file")}));
    QVERIFY(QFile::setPermissions(locked, QFile::Permissions()));
    QTest::ignoreMessage(QtSystemMsg,
                         QRegularExpression(QStringLiteral("inotify_add_watch.*locked")));
    {
        const Unprivileged user;
        QCOMPARE(QDir(locked).entryList(), QStringList());
        selectEntries(*m_parts->tileView, {QStringLiteral("file")});
        m_browser->selectedFiles();
        m_window->grab();
        Q_EMIT m_parts->bar->dirChanged(m_tree->path());
        QVERIFY(shows({QStringLiteral("locked")}));
        QVERIFY(open(QStringLiteral("locked")));
        m_window->grab();
        m_browser->setRootPath(m_tree->path());
        QCOMPARE(m_browser->currentPath(), m_tree->path());
    }
    QVERIFY(QFile::setPermissions(locked, QFile::Permissions(0x7000)));
}

void tst_HostileTrees::fullFileSystem()
{
    m_tree->makeDir(QStringLiteral("dir"));
    m_tree->makeFile(QStringLiteral("dir/file"));
    QFile probe(m_tree->path(QStringLiteral("probe")));
    QVERIFY(probe.open(QIODevice::WriteOnly | QIODevice::Unbuffered));
    {
        const FullFileSystem full;
        QCOMPARE(probe.write("x"), -1);
        m_browser->setAllowedDirs({m_tree->path()});
        QVERIFY(shows({QStringLiteral("dir"), QStringLiteral("probe")}));
        QVERIFY(open(QStringLiteral("dir")));
        QVERIFY(shows({QStringLiteral("file")}));
        selectEntries(*m_parts->tileView, {QStringLiteral("file")});
        QCOMPARE(m_browser->selectedFiles(), QStringList{m_tree->path(QStringLiteral("dir/file"))});
        m_window->grab();
    }
    QCOMPARE(probe.write("x"), 1);
}

void tst_HostileTrees::directoryFilledWhileShown_data()
{
    QTest::addColumn<int>("count");
    QTest::newRow("some") << 50;
    QTest::newRow("thousands") << 3000;
}

void tst_HostileTrees::directoryFilledWhileShown()
{
    QFETCH(int, count);
    m_browser->setAllowedDirs({m_tree->path()});
    const QStringList names = Tree::names(QStringLiteral("f"), count);
    for (const QString& name : names)
        m_tree->makeFile(name);
    QTRY_COMPARE_WITH_TIMEOUT(m_parts->model->rowCount(m_parts->tileView->rootIndex()), count,
                              60000);
    QVERIFY(shows(names));
    m_tree->makeDir(QStringLiteral("late"));
    QVERIFY(open(QStringLiteral("late")));
    QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("late")));
}

void tst_HostileTrees::allowedDirectoryVanishes()
{
    m_tree->makeDir(QStringLiteral("root/dir"));
    m_tree->makeFile(QStringLiteral("root/dir/file"));
    m_tree->makeDir(QStringLiteral("other/inside"));
    m_browser->setAllowedDirs(
        {m_tree->path(QStringLiteral("root")), m_tree->path(QStringLiteral("other"))});
    QVERIFY(open(QStringLiteral("dir")));
    QVERIFY(shows({QStringLiteral("file")}));
    QVERIFY(QDir(m_tree->path(QStringLiteral("root"))).removeRecursively());
    m_parts->listButton->click();
    m_parts->tileButton->click();
    m_window->grab();
    m_browser->selectedFiles();
    m_parts->combo->setCurrentIndex(1);
    QVERIFY(shows({QStringLiteral("inside")}));
    m_parts->combo->setCurrentIndex(0); // is gone: what was shown stays
    m_window->grab();
    m_parts->combo->setCurrentIndex(1);
    QVERIFY(shows({QStringLiteral("inside")}));
}

void tst_HostileTrees::directoryRemovedWhileShown()
{
    m_tree->makeDir(QStringLiteral("dir"));
    m_tree->makeFile(QStringLiteral("dir/file"));
    m_browser->setAllowedDirs({m_tree->path()});
    QVERIFY(open(QStringLiteral("dir")));
    QVERIFY(shows({QStringLiteral("file")}));
    selectEntries(*m_parts->tileView, {QStringLiteral("file")});
    QVERIFY(QDir(m_tree->path(QStringLiteral("dir"))).removeRecursively());
    m_window->grab();
    m_browser->selectedFiles();
    Q_EMIT m_parts->bar->dirChanged(m_tree->path());
    QVERIFY(shows({}));
    m_browser->setRootPath(m_tree->path(QStringLiteral("dir")));
    m_tree->makeDir(QStringLiteral("dir"));
    QVERIFY(shows({QStringLiteral("dir")}));
}

void tst_HostileTrees::directoryRenamedWhileShown()
{
    m_tree->makeDir(QStringLiteral("old/inside"));
    m_browser->setAllowedDirs({m_tree->path()});
    QVERIFY(open(QStringLiteral("old")));
    QVERIFY(shows({QStringLiteral("inside")}));
    QVERIFY(
        QDir().rename(m_tree->path(QStringLiteral("old")), m_tree->path(QStringLiteral("new"))));
    m_window->grab();
    selectEntries(*m_parts->tileView, {QStringLiteral("inside")}); // leads nowhere now
    m_browser->setRootPath(m_tree->path());
    QVERIFY(shows({QStringLiteral("new")}));
    QVERIFY(open(QStringLiteral("new")));
    QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("new")));
    QVERIFY(shows({QStringLiteral("inside")}));
}

void tst_HostileTrees::selectedFileRenamed()
{
    m_tree->makeFile(QStringLiteral("old"));
    m_tree->makeFile(QStringLiteral("other"));
    m_browser->setAllowedDirs({m_tree->path()});
    QVERIFY(shows({QStringLiteral("old"), QStringLiteral("other")}));
    selectEntries(*m_parts->tileView, {QStringLiteral("old")});
    QVERIFY(
        QFile::rename(m_tree->path(QStringLiteral("old")), m_tree->path(QStringLiteral("new"))));
    QVERIFY(shows({QStringLiteral("new"), QStringLiteral("other")}));
    QCOMPARE(m_browser->selectedFiles(), QStringList());
}

void tst_HostileTrees::fileReplacedByADirectory()
{
    m_tree->makeFile(QStringLiteral("entry"));
    m_tree->makeFile(QStringLiteral("other"));
    m_browser->setAllowedDirs({m_tree->path()});
    QVERIFY(shows({QStringLiteral("entry"), QStringLiteral("other")}));
    QVERIFY(QFile::remove(m_tree->path(QStringLiteral("entry"))));
    QVERIFY(shows({QStringLiteral("other")}));
    m_tree->makeDir(QStringLiteral("entry"));
    QVERIFY(open(QStringLiteral("entry")));
    QCOMPARE(m_browser->currentPath(), m_tree->path(QStringLiteral("entry")));
}

void tst_HostileTrees::deepTree()
{
    constexpr int depth = 40;
    const QStringList names = Tree::names(QStringLiteral("level"), depth);
    m_tree->makeDir(names.join(QLatin1Char('/')));
    m_browser->setAllowedDirs({m_tree->path()});
    for (const QString& name : names)
        QVERIFY(open(name));
    QCOMPARE(m_browser->currentPath(), m_tree->path(names.join(QLatin1Char('/'))));
    QCOMPARE(crumbs(*m_parts->bar), names.mid(depth - 3));
}

void tst_HostileTrees::navigatingWhileLoading()
{
    m_tree->makeDir(QStringLiteral("many"));
    const QStringList names = Tree::names(QStringLiteral("many/f"), 2000);
    for (const QString& name : names)
        m_tree->makeFile(name);
    m_tree->makeDir(QStringLiteral("few/inside"));
    for (int iteration = 0; iteration < 5; ++iteration) {
        m_browser->setAllowedDirs(
            {m_tree->path(QStringLiteral("many")), m_tree->path(QStringLiteral("few"))});
        QCoreApplication::processEvents();
        m_parts->combo->setCurrentIndex(1);
        QCoreApplication::processEvents();
    }
    QVERIFY(shows({QStringLiteral("inside")}));
    m_parts->combo->setCurrentIndex(0);
    QTRY_COMPARE(shownNames(*m_parts->tileView).size(), 2000);
}

void tst_HostileTrees::deletedWhileLoading()
{
    const QStringList names = Tree::names(QStringLiteral("f"), 2000);
    for (const QString& name : names)
        m_tree->makeFile(name);
    for (int iteration = 0; iteration < 5; ++iteration) {
        ui::FileBrowserWidget browser;
        browser.setAllowedDirs({m_tree->path()});
        QCoreApplication::processEvents();
    }
}

void tst_HostileTrees::manyEntriesLoadWhileTheInterfaceAnswers()
{
    const QStringList names = Tree::names(QStringLiteral("f"), manyEntries);
    for (const QString& name : names)
        m_tree->makeFile(name);
    const auto rowCount = [this] {
        return m_parts->model->rowCount(m_parts->tileView->rootIndex());
    };
    int ticksWhileLoading = 0;
    QTimer ticker;
    connect(&ticker, &QTimer::timeout, this, [&] {
        if (rowCount() < manyEntries)
            ++ticksWhileLoading;
    });
    ticker.start(0);
    m_browser->setAllowedDirs({m_tree->path()});
    // Nothing is read before the call returns.
    QCOMPARE(rowCount(), 0);
    QTRY_COMPARE_WITH_TIMEOUT(rowCount(), manyEntries, 60000);
    QVERIFY(ticksWhileLoading > 0);
    QTRY_COMPARE(shownNames(*m_parts->tileView).constFirst(), QStringLiteral("f00000"));
}

const test::Registration<tst_HostileTrees> registration;

#include "tst_HostileTrees.moc"
