#include "GalleryPage.h"
#include "pages/Pages.h"
#include "Screenshots.h"

#include "TestApplication.h"

#include <ui/FileBrowserWidget.h>

#include <QComboBox>
#include <QDir>
#include <QLabel>
#include <QListView>
#include <QScopeGuard>
#include <QScrollBar>
#include <QScroller>
#include <QTemporaryDir>

#include <memory>

class tst_FileBrowserPage : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void homeAndTopByDefault_data();
    void homeAndTopByDefault();
    void namedDirectories();
    void readyOnceSorted();
    void showsTheSelectionAsItChanges();
    void namesAFewOfManyFiles();
    void namesAreNoMarkup();
    void filters();
    void modes();
    void isScrolledByDragging();

private:
    void makeFile(const QString& name) const;
    QStringList roots() const;
    QString selection() const;
    QComboBox* box(const char* name) const;
    QStringList shownNames() const;
    void click(const QString& name, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

    QTemporaryDir m_dir;
    std::unique_ptr<QWidget> m_window;
    GalleryPage* m_page = nullptr;
    QListView* m_view = nullptr;
};

void tst_FileBrowserPage::initTestCase()
{
    QVERIFY(QDir(m_dir.path()).mkpath(QStringLiteral("folder/inside")));
    for (const char* name : {"<b>.txt", "a.txt", "b.txt", "c.png", "d.txt"})
        makeFile(QString::fromLatin1(name));
}

void tst_FileBrowserPage::init()
{
    m_window = std::make_unique<QWidget>();
    m_page = makeFileBrowserPage(m_window.get(), {m_dir.path()});
    m_window->resize(500, 420);
    m_page->setGeometry(m_window->rect());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
    m_view = m_page->findChild<ui::FileBrowserWidget*>()->findChild<QListView*>(
        QString(), Qt::FindDirectChildrenOnly);
    QTRY_COMPARE(shownNames().size(), 6);
}

void tst_FileBrowserPage::cleanup()
{
    m_window.reset();
}

void tst_FileBrowserPage::makeFile(const QString& name) const
{
    QFile file(m_dir.filePath(name));
    QVERIFY(file.open(QIODevice::WriteOnly));
}

QStringList tst_FileBrowserPage::roots() const
{
    const auto* combo = m_page->findChild<ui::FileBrowserWidget*>()->findChild<QComboBox*>();
    QStringList texts;
    for (int i = 0; i < combo->count(); ++i)
        texts.append(combo->itemText(i));
    return texts;
}

QString tst_FileBrowserPage::selection() const
{
    return m_page->findChild<QLabel*>(QStringLiteral("selection"))->text();
}

QComboBox* tst_FileBrowserPage::box(const char* name) const
{
    return m_page->findChild<QComboBox*>(QString::fromLatin1(name));
}

QStringList tst_FileBrowserPage::shownNames() const
{
    QStringList names;
    for (int row = 0; row < m_view->model()->rowCount(m_view->rootIndex()); ++row)
        names.append(m_view->model()->index(row, 0, m_view->rootIndex()).data().toString());
    return names;
}

void tst_FileBrowserPage::click(const QString& name, Qt::KeyboardModifiers modifiers)
{
    const QModelIndex index =
        m_view->model()->index(shownNames().indexOf(name), 0, m_view->rootIndex());
    m_view->scrollTo(index);
    QTest::mouseClick(m_view->viewport(), Qt::LeftButton, modifiers,
                      m_view->visualRect(index).center());
}

void tst_FileBrowserPage::homeAndTopByDefault_data()
{
    QTest::addColumn<QString>("fileAtHome");
    QTest::addColumn<bool>("homeFirst");
    QTest::newRow("a file at home") << "file" << true;
    QTest::newRow("a hidden file at home") << ".file" << false;
}

void tst_FileBrowserPage::homeAndTopByDefault()
{
    QFETCH(QString, fileAtHome);
    QFETCH(bool, homeFirst);
    const QTemporaryDir home;
    QFile file(home.filePath(fileAtHome));
    QVERIFY(file.open(QIODevice::WriteOnly));
    const QByteArray before = qgetenv("HOME");
    const auto restore = qScopeGuard([before] { qputenv("HOME", before); });
    qputenv("HOME", QFile::encodeName(home.path()));

    delete m_page;
    m_page = makeFileBrowserPage(m_window.get());
    const QStringList homeThenTop{home.path(), QDir::rootPath()};
    const QStringList topThenHome{QDir::rootPath(), home.path()};
    QCOMPARE(roots(), homeFirst ? homeThenTop : topThenHome);
}

void tst_FileBrowserPage::namedDirectories()
{
    QCOMPARE(roots(), QStringList{m_dir.path()});
    QCOMPARE(m_page->demoWidgets().size(), 1);
}

/// As a picture is taken then.
void tst_FileBrowserPage::readyOnceSorted()
{
    const std::unique_ptr<GalleryPage> page(makeFileBrowserPage(nullptr, {m_dir.path()}));
    QVERIFY(!page->isReady());
    QVERIFY(rendering::waitUntil([&page] { return page->isReady(); }));
    m_view = page->findChild<ui::FileBrowserWidget*>()->findChild<QListView*>(
        QString(), Qt::FindDirectChildrenOnly);
    QCOMPARE(shownNames(), (QStringList{"folder", "<b>.txt", "a.txt", "b.txt", "c.png", "d.txt"}));
}

void tst_FileBrowserPage::showsTheSelectionAsItChanges()
{
    QCOMPARE(selection(), QStringLiteral("Nothing is selected"));
    click(QStringLiteral("a.txt"));
    QCOMPARE(selection(), QStringLiteral("Selected: a.txt"));
    click(QStringLiteral("folder"));
    QCOMPARE(selection(), QStringLiteral("Selected: folder")); // an opened directory stays selected
    QTRY_COMPARE(shownNames(), QStringList{"inside"});
}

void tst_FileBrowserPage::namesAFewOfManyFiles()
{
    box("modes")->setCurrentIndex(2);
    click(QStringLiteral("a.txt"));
    click(QStringLiteral("b.txt"), Qt::ControlModifier);
    click(QStringLiteral("c.png"), Qt::ControlModifier);
    QCOMPARE(selection(), QStringLiteral("Selected: a.txt, b.txt, c.png"));
    click(QStringLiteral("d.txt"), Qt::ControlModifier);
    QCOMPARE(selection(), QStringLiteral("Selected: a.txt, b.txt, c.png and 1 more"));
}

void tst_FileBrowserPage::namesAreNoMarkup()
{
    click(QStringLiteral("<b>.txt"));
    QCOMPARE(selection(), QStringLiteral("Selected: <b>.txt"));
    QCOMPARE(m_page->findChild<QLabel*>(QStringLiteral("selection"))->textFormat(), Qt::PlainText);
}

void tst_FileBrowserPage::filters()
{
    box("filters")->setCurrentIndex(2);
    QTRY_COMPARE(shownNames(), (QStringList{"folder", "c.png"}));
    box("filters")->setCurrentIndex(1);
    QTRY_COMPARE(shownNames(), (QStringList{"folder", "<b>.txt", "a.txt", "b.txt", "d.txt"}));
    box("filters")->setCurrentIndex(0);
    QTRY_COMPARE(shownNames().size(), 6);
}

void tst_FileBrowserPage::modes()
{
    const auto* browser = m_page->findChild<ui::FileBrowserWidget*>();
    QCOMPARE(box("modes")->currentIndex(), int(browser->selectionMode()));
    for (const int mode : {0, 2, 1}) {
        box("modes")->setCurrentIndex(mode);
        QCOMPARE(int(browser->selectionMode()), mode);
    }
}

void tst_FileBrowserPage::isScrolledByDragging()
{
    for (int number = 0; number < 60; ++number)
        makeFile(QStringLiteral("more%1.txt").arg(number));
    QTRY_COMPARE(shownNames().size(), 66);
    QScrollBar* bar = m_view->horizontalScrollBar();
    QTRY_VERIFY(bar->maximum() > 0);

    // From an entry to the side: nothing is selected, and nothing opened.
    QWindow* window = m_window->windowHandle();
    QPoint point = m_view->viewport()->mapTo(m_window.get(), m_view->viewport()->rect().center());
    QTest::mousePress(window, Qt::LeftButton, {}, point);
    for (int step = 0; step < 8; ++step) {
        point -= QPoint(12, 0);
        QTest::mouseMove(window, point);
        QCoreApplication::processEvents();
    }
    QTRY_VERIFY(bar->value() > 0);
    QTest::mouseRelease(window, Qt::LeftButton, {}, point);
    QTRY_COMPARE(QScroller::scroller(m_view->viewport())->state(), QScroller::Inactive);
    QCOMPARE(selection(), QStringLiteral("Nothing is selected"));
    QCOMPARE(shownNames().size(), 66);

    // A tap still selects.
    const QModelIndex index = m_view->indexAt(m_view->viewport()->rect().center());
    QTest::mouseClick(
        window, Qt::LeftButton, {},
        m_view->viewport()->mapTo(m_window.get(), m_view->visualRect(index).center()));
    QTRY_COMPARE(selection(), QStringLiteral("Selected: ") + index.data().toString());
}

const test::Registration<tst_FileBrowserPage> registration;

#include "tst_FileBrowserPage.moc"
