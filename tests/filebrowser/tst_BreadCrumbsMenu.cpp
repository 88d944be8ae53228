#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "ClickableLabel.h"
#include "OpenMenu.h"
#include "TestApplication.h"

#include <QMenu>
#include <QPushButton>

using namespace test;

namespace {

QStringList entries(const BreadCrumbsWidget& bar)
{
    QStringList texts{QStringLiteral("no menu")};
    withMenu(bar, [&](QMenu& menu) {
        texts.clear();
        const QList<QAction*> actions = menu.actions();
        for (const QAction* action : actions)
            texts.append(action->text());
    });
    return texts;
}

void clickFirstEntry(QMenu& menu)
{
    QTest::mouseClick(menu.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      menu.actionGeometry(menu.actions().constFirst()).center());
}

} // namespace

/// The "..." button, whose menu needs a platform with pop-ups.
class tst_BreadCrumbsMenu : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void onlyTheHiddenCrumbs_data();
    void onlyTheHiddenCrumbs();
    void paths();
    void pathsBelowTheRootDirectory();
    void pathIsThatOfTheTimeOfTheClick();
    void deletesItself();
    void entryReports();
    void following();
    void unusualNames();
    void manyEntries();
    void barDeletedLaterInTheSlot();
    void barDeletedLaterWithTheMenuOpen();

private:
    QPointer<QWidget> m_window;
    QPointer<BreadCrumbsWidget> m_bar;
};

void tst_BreadCrumbsMenu::init()
{
    m_window = new QWidget;
    m_bar = new BreadCrumbsWidget(m_window);
    m_bar->setRootPath(QStringLiteral("/data"));
    m_bar->changeDir(QStringLiteral("/data/a/b/c/d/e"));
    m_window->resize(600, 100);
    m_bar->setGeometry(m_window->rect());
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void tst_BreadCrumbsMenu::cleanup()
{
    delete m_window;
}

void tst_BreadCrumbsMenu::onlyTheHiddenCrumbs_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("entries");
    QTest::newRow("four below") << "/data/a/b/c/d" << QStringList{"a"};
    QTest::newRow("six below") << "/data/a/b/c/d/e/f" << QStringList{"a", "b", "c"};
    QTest::newRow("three below") << "/data/a/b/c" << QStringList();
}

void tst_BreadCrumbsMenu::onlyTheHiddenCrumbs()
{
    QFETCH(QString, path);
    m_bar->changeDir(path);
    if (moreButton(*m_bar)->isHidden())
        return; // nothing to tap
    QTEST(entries(*m_bar), "entries");
}

void tst_BreadCrumbsMenu::paths()
{
    QSignalSpy changed(m_bar, &BreadCrumbsWidget::dirChanged);
    QVERIFY(withMenu(*m_bar, [](QMenu& menu) {
        const QList<QAction*> actions = menu.actions();
        for (QAction* action : actions)
            action->trigger();
    }));
    const QString separator = QDir::separator();
    QCOMPARE(changed.count(), 2);
    QCOMPARE(changed.at(0).first().toString(), "/data" + separator + "a");
    QCOMPARE(changed.at(1).first().toString(), "/data" + separator + "a" + separator + "b");
}

void tst_BreadCrumbsMenu::pathsBelowTheRootDirectory()
{
    m_bar->setRootPath(QStringLiteral("/"));
    m_bar->changeDir(QStringLiteral("/a/b/c/d"));
    QSignalSpy changed(m_bar, &BreadCrumbsWidget::dirChanged);
    QVERIFY(withMenu(*m_bar, [](QMenu& menu) { menu.actions().constFirst()->trigger(); }));
    QCOMPARE(changed.value(0).value(0).toString(), QStringLiteral("//a"));
}

void tst_BreadCrumbsMenu::pathIsThatOfTheTimeOfTheClick()
{
    QSignalSpy changed(m_bar, &BreadCrumbsWidget::dirChanged);
    QVERIFY(withMenu(*m_bar, [this](QMenu& menu) {
        m_bar->setRootPath(QStringLiteral("/elsewhere"));
        menu.actions().constFirst()->trigger();
    }));
    QCOMPARE(changed.value(0).value(0).toString(), QStringLiteral("/data/a"));
}

void tst_BreadCrumbsMenu::deletesItself()
{
    QPointer<QMenu> first;
    QVERIFY(withMenu(*m_bar, [&](QMenu& menu) {
        first = &menu;
        QCOMPARE(menu.parentWidget(), m_bar.data());
        QCOMPARE(moreButton(*m_bar)->menu(), &menu);
    }));
    QVERIFY(first.isNull());
    QVERIFY(!moreButton(*m_bar)->menu());
    QVERIFY(m_bar->findChildren<QMenu*>().isEmpty());
    QCOMPARE(entries(*m_bar), (QStringList{"a", "b"})); // and again
}

void tst_BreadCrumbsMenu::entryReports()
{
    QSignalSpy changed(m_bar, &BreadCrumbsWidget::dirChanged);
    QVERIFY(withMenu(*m_bar, clickFirstEntry));
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("/data/a"));
    QCOMPARE(crumbs(*m_bar), (QStringList{"c", "d", "e"}));
}

void tst_BreadCrumbsMenu::following()
{
    connect(m_bar, &BreadCrumbsWidget::dirChanged, m_bar, &BreadCrumbsWidget::changeDir);
    QVERIFY(withMenu(*m_bar, clickFirstEntry));
    QCOMPARE(crumbs(*m_bar), QStringList{"a"});
    QVERIFY(moreButton(*m_bar)->isHidden());
}

void tst_BreadCrumbsMenu::unusualNames()
{
    m_bar->changeDir(QStringLiteral("/data/a&b/<i>/line\nbreak/c/d/e"));
    QCOMPARE(entries(*m_bar), (QStringList{"a&b", "<i>", "line\nbreak"}));
}

void tst_BreadCrumbsMenu::manyEntries()
{
    QStringList names;
    for (int i = 0; i < 300; ++i)
        names.append(QStringLiteral("name%1").arg(i));
    m_bar->changeDir("/data/" + names.join(QLatin1Char('/')));
    QCOMPARE(entries(*m_bar), names.mid(0, 297));
}

void tst_BreadCrumbsMenu::barDeletedLaterInTheSlot()
{
    connect(m_bar, &BreadCrumbsWidget::dirChanged, m_bar, &QObject::deleteLater);
    QVERIFY(withMenu(*m_bar, clickFirstEntry));
    QTRY_VERIFY(m_bar.isNull());
}

void tst_BreadCrumbsMenu::barDeletedLaterWithTheMenuOpen()
{
    QVERIFY(withMenu(*m_bar, [this](QMenu&) { m_bar->deleteLater(); }));
    QTRY_VERIFY(m_bar.isNull());
}

const test::Registration<tst_BreadCrumbsMenu> registration;

#include "tst_BreadCrumbsMenu.moc"
