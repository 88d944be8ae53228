#include "BreadCrumbsWidget.h"

#include "BrowserParts.h"
#include "ClickableLabel.h"
#include "EventCounter.h"
#include "PlatformMessages.h"
#include "TestApplication.h"

#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>

#include <memory>

using namespace test;

namespace {

/// Root /data, current directory below it.
std::unique_ptr<BreadCrumbsWidget> barAt(const QString& path)
{
    auto bar = std::make_unique<BreadCrumbsWidget>();
    bar->setRootPath(QStringLiteral("/data"));
    bar->changeDir(path);
    return bar;
}

QStringList directories(const BreadCrumbsWidget& bar)
{
    QStringList paths;
    const QList<ClickableLabel*> labels = crumbLabels(bar);
    for (const ClickableLabel* label : labels)
        paths.append(label->property("directory").toString());
    return paths;
}

/// What each layout item is: the text of a label or button, or "stretch".
QStringList row(const BreadCrumbsWidget& bar)
{
    QStringList items;
    for (int i = 0; i < bar.layout()->count(); ++i) {
        QWidget* widget = bar.layout()->itemAt(i)->widget();
        if (const auto* label = qobject_cast<QLabel*>(widget))
            items.append(label->text());
        else if (const auto* button = qobject_cast<QPushButton*>(widget))
            items.append(button->text());
        else
            items.append(QStringLiteral("stretch"));
    }
    return items;
}

bool isMenuButtonHidden(const BreadCrumbsWidget& bar)
{
    return moreButton(bar)->isHidden();
}

/// Counts the menus that are shown, however soon they are gone again.
class ShownMenus : public QObject
{
public:
    ShownMenus()
    {
        qApp->installEventFilter(this);
    }

    int count = 0;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == QEvent::Show && qobject_cast<QMenu*>(watched) ? 1 : 0;
        return false;
    }
};

} // namespace

class tst_BreadCrumbsWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        dropPlatformMessages();
    }

    void metaObject();
    void construction();
    void nothingButTheButtonBeforeTheFirstPath();
    void refreshShowsTheInitialDirectory();
    void rows_data();
    void rows();
    void cutAtTheFirstDot_data();
    void cutAtTheFirstDot();
    void doubleSlashBelowTheRootDirectory();
    void crumbProperties();
    void separators();
    void setRootPathSetsBoth();
    void changeDirKeepsTheRoot();
    void refreshDeletesTheOldRowAtOnce();
    void pressReportsAtOnce();
    void pressLeavesTheProperties_data();
    void pressLeavesTheProperties();
    void followingInAPressWithinAPress();
    void followingARightPress();
    void followingARightPressDeletesTheOthersAtOnce();
    void followingALeftPressDeletesAllAtOnce();
    void refreshWithTheRightButtonDown();
    void directoryIsReadAtTheClick();
    void barDoesNotChangeByItself();
    void separatorsDoNotReact();
    void followingInTheSlot();
    void deletedInItsOwnSlot();
    void destroyedWithItsChildren();
    void unusualNames();
    void longPath();
};

void tst_BreadCrumbsWidget::metaObject()
{
    const QMetaObject& meta = BreadCrumbsWidget::staticMetaObject;
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("dirChanged(QString)"));
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_BreadCrumbsWidget::construction()
{
    QWidget parent;
    const BreadCrumbsWidget bar(&parent);
    QCOMPARE(bar.parentWidget(), &parent);
    QCOMPARE(bar.windowFlags(), QWidget(&parent).windowFlags());
    QVERIFY(qobject_cast<QHBoxLayout*>(bar.layout()));
    QCOMPARE(bar.layout()->contentsMargins(), QMargins(5, 0, 5, 0));
    QCOMPARE(bar.layout()->spacing(), QHBoxLayout(&parent).spacing());
    QCOMPARE(bar.sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));

    const QPushButton* button = moreButton(bar);
    QCOMPARE(button->text(), QStringLiteral("..."));
    QCOMPARE(button->minimumWidth(), 50);
    QCOMPARE(button->parentWidget(), &bar);
    QVERIFY(button->isHidden());
    QCOMPARE(bar.children().value(0), bar.layout());
    QCOMPARE(bar.children().value(1), button);
}

void tst_BreadCrumbsWidget::nothingButTheButtonBeforeTheFirstPath()
{
    const BreadCrumbsWidget bar;
    QCOMPARE(row(bar), QStringList{QStringLiteral("...")});
    QCOMPARE(bar.layout()->itemAt(0)->alignment(), Qt::Alignment());
}

void tst_BreadCrumbsWidget::refreshShowsTheInitialDirectory()
{
    BreadCrumbsWidget bar; // root "/", current directory "."
    bar.refresh();
    QCOMPARE(row(bar), QString::fromLatin1("... stretch").split(QLatin1Char(' ')));
}

void tst_BreadCrumbsWidget::rows_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("row");
    QTest::addColumn<bool>("buttonHidden");
    QTest::newRow("the root itself") << "/data" << QStringList{"...", "stretch"} << true;
    QTest::newRow("one below") << "/data/a" << QStringList{"...", "/", "a", "stretch"} << true;
    QTest::newRow("two below") << "/data/a/b" << QStringList{"...", "/", "a", "/", "b", "stretch"}
                               << true;
    QTest::newRow("three below") << "/data/a/b/c"
                                 << QStringList{"...", "/", "a", "/", "b", "/", "c", "stretch"}
                                 << true;
    QTest::newRow("four below") << "/data/a/b/c/d"
                                << QStringList{"...", "/", "b", "/", "c", "/", "d", "stretch"}
                                << false;
    QTest::newRow("six below") << "/data/a/b/c/d/e/f"
                               << QStringList{"...", "/", "d", "/", "e", "/", "f", "stretch"}
                               << false;
    QTest::newRow("outside") << "/other/a" << QStringList{"...", "stretch"} << true;
    QTest::newRow("above") << "/" << QStringList{"...", "stretch"} << true;
    QTest::newRow("trailing slash")
        << "/data/a/" << QStringList{"...", "/", "a", "stretch"} << true;
    QTest::newRow("empty") << "" << QStringList{"...", "stretch"} << true;
}

void tst_BreadCrumbsWidget::rows()
{
    QFETCH(QString, path);
    QFETCH(QStringList, row);
    QFETCH(bool, buttonHidden);
    const auto bar = barAt(path);
    QCOMPARE(::row(*bar), row);
    QCOMPARE(isMenuButtonHidden(*bar), buttonHidden);
}

void tst_BreadCrumbsWidget::cutAtTheFirstDot_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QStringList>("crumbs");
    QTest::addColumn<QStringList>("directories");
    QTest::newRow("one character stands before it")
        << "/data/a.b/c" << QStringList{"c"} << QStringList{"/data/c"};
    QTest::newRow("in the last name")
        << "/data/abc/d.e" << QStringList{"c", "d.e"} << QStringList{"/data/c", "/data/c/d.e"};
    QTest::newRow("at the front of a name") << "/data/.hidden" << QStringList() << QStringList();
    QTest::newRow("more stands before it than after")
        << "/data/long.x" << QStringList{"ng.x"} << QStringList{"/data/ng.x"};
    QTest::newRow("the cut falls on a slash")
        << "/data/ab.c/d" << QStringList{"d"} << QStringList{"/data/d"};
}

void tst_BreadCrumbsWidget::cutAtTheFirstDot()
{
    QFETCH(QString, path);
    QFETCH(QStringList, crumbs);
    const auto bar = barAt(path);
    QCOMPARE(test::crumbs(*bar), crumbs);
    QTEST(directories(*bar), "directories");
}

void tst_BreadCrumbsWidget::doubleSlashBelowTheRootDirectory()
{
    BreadCrumbsWidget bar;
    bar.setRootPath(QStringLiteral("/"));
    bar.changeDir(QStringLiteral("/usr/lib"));
    QCOMPARE(directories(bar), (QStringList{"//usr", "//usr/lib"}));
    QSignalSpy changed(&bar, &BreadCrumbsWidget::dirChanged);
    QTest::mousePress(crumb(bar, QStringLiteral("usr")), Qt::LeftButton);
    QCOMPARE(changed.value(0).value(0).toString(), QStringLiteral("//usr"));
}

void tst_BreadCrumbsWidget::crumbProperties()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    QCOMPARE(directories(*bar), (QStringList{"/data/a", "/data/a/b"}));
    const QList<ClickableLabel*> labels = crumbLabels(*bar);
    for (const ClickableLabel* label : labels) {
        QCOMPARE(label->parentWidget(), bar.get());
        QCOMPARE(label->objectName(), QStringLiteral("breadcrumb"));
        QCOMPARE(label->textFormat(), Qt::RichText);
        QCOMPARE(label->textInteractionFlags(), Qt::TextBrowserInteraction);
        QVERIFY(label->openExternalLinks());
        QCOMPARE(label->maximumWidth(), 150);
        QCOMPARE(label->property("directory").userType(), int(QMetaType::QString));
    }
}

void tst_BreadCrumbsWidget::separators()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    for (const int item : {1, 3}) {
        const auto* label = qobject_cast<QLabel*>(bar->layout()->itemAt(item)->widget());
        QCOMPARE(label->metaObject(), &QLabel::staticMetaObject);
        QCOMPARE(label->text(), QStringLiteral("/"));
        QVERIFY(label->objectName().isEmpty());
    }
    const auto* layout = qobject_cast<QHBoxLayout*>(bar->layout());
    QCOMPARE(layout->stretch(layout->count() - 1), 1);
    for (int i = 0; i < layout->count() - 1; ++i)
        QCOMPARE(layout->stretch(i), 0);
}

void tst_BreadCrumbsWidget::setRootPathSetsBoth()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    bar->setRootPath(QStringLiteral("/data/a"));
    QCOMPARE(crumbs(*bar), QStringList());
    bar->changeDir(QStringLiteral("/data/a/b"));
    QCOMPARE(crumbs(*bar), QStringList{"b"});
}

void tst_BreadCrumbsWidget::changeDirKeepsTheRoot()
{
    const auto bar = barAt(QStringLiteral("/data/a"));
    bar->changeDir(QStringLiteral("/data/x/y"));
    QCOMPARE(directories(*bar), (QStringList{"/data/x", "/data/x/y"}));
}

void tst_BreadCrumbsWidget::refreshDeletesTheOldRowAtOnce()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    const QPointer<QWidget> separator(bar->layout()->itemAt(1)->widget());
    const QPointer<QWidget> label(bar->layout()->itemAt(2)->widget());
    const QPointer<QPushButton> button(moreButton(*bar));
    bar->refresh();
    QVERIFY(separator.isNull());
    QVERIFY(label.isNull());
    QCOMPARE(bar->layout()->itemAt(0)->widget(), button.data());
    QCOMPARE(crumbs(*bar), (QStringList{"a", "b"}));
    QCOMPARE(bar->findChildren<QLabel*>().size(), 4);
}

void tst_BreadCrumbsWidget::followingARightPress()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    connect(bar.get(), &BreadCrumbsWidget::dirChanged, bar.get(), &BreadCrumbsWidget::changeDir);
    bar->show();
    QVERIFY(QTest::qWaitForWindowExposed(bar.get()));
    const QPointer<ClickableLabel> pressed(crumb(*bar, QStringLiteral("a")));
    const QPoint position = pressed->mapTo(bar.get(), pressed->rect().center());

    // By the window system's road: Qt has a context menu event for the label after the press.
    const ShownMenus menus;
    QTest::mousePress(bar->windowHandle(), Qt::RightButton, {}, position);
    QCOMPARE(crumbs(*bar), QStringList("a"));
    QVERIFY(!pressed || pressed->isHidden());
    QCOMPARE(menus.count, 0);
    QTest::mouseRelease(bar->windowHandle(), Qt::RightButton, {}, position);
    QTRY_VERIFY(!pressed);
}

void tst_BreadCrumbsWidget::followingARightPressDeletesTheOthersAtOnce()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    const QPointer<QWidget> pressed(bar->layout()->itemAt(2)->widget());
    QVector<QPointer<QWidget>> others;
    for (const int item : {1, 3, 4})
        others.append(bar->layout()->itemAt(item)->widget());
    QVector<bool> gone;
    connect(bar.get(), &BreadCrumbsWidget::dirChanged, this, [&](const QString& path) {
        bar->changeDir(path);
        for (const auto& other : qAsConst(others))
            gone.append(other.isNull());
    });
    QTest::mousePress(pressed.data(), Qt::RightButton);
    QCOMPARE(gone, (QVector<bool>{true, true, true}));
    QCOMPARE(crumbs(*bar), QStringList("a"));
    QCOMPARE(bar->findChildren<QWidget*>(QStringLiteral("breadcrumb")).size(), 1);
    QVERIFY(pressed);
    QVERIFY(pressed->isHidden());
    QTest::mouseRelease(bar.get(), Qt::RightButton);
    QTRY_VERIFY(!pressed);
}

void tst_BreadCrumbsWidget::followingALeftPressDeletesAllAtOnce()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    const QPointer<QWidget> pressed(bar->layout()->itemAt(2)->widget());
    bool gone = false;
    connect(bar.get(), &BreadCrumbsWidget::dirChanged, this, [&](const QString& path) {
        bar->changeDir(path);
        gone = pressed.isNull();
    });
    QTest::mousePress(pressed.data(), Qt::LeftButton);
    QVERIFY(gone);
}

void tst_BreadCrumbsWidget::refreshWithTheRightButtonDown()
{
    const auto bar = barAt(QStringLiteral("/data/a"));
    const QPointer<QWidget> label(bar->layout()->itemAt(2)->widget());
    QTest::mousePress(label.data(), Qt::RightButton);
    bar->refresh(); // the press has been dealt with
    QVERIFY(label.isNull());
    QTest::mouseRelease(bar.get(), Qt::RightButton);
}

void tst_BreadCrumbsWidget::pressReportsAtOnce()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    QSignalSpy changed(bar.get(), &BreadCrumbsWidget::dirChanged);
    ClickableLabel* label = crumb(*bar, QStringLiteral("a"));
    QTest::mousePress(label, Qt::LeftButton);
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.first().first().toString(), QStringLiteral("/data/a"));
    QTest::mouseRelease(label, Qt::LeftButton);
    QCOMPARE(changed.count(), 1);
}

void tst_BreadCrumbsWidget::pressLeavesTheProperties_data()
{
    QTest::addColumn<int>("button");
    QTest::addColumn<bool>("follows");
    QTest::newRow("left") << int(Qt::LeftButton) << false;
    QTest::newRow("right") << int(Qt::RightButton) << false;
    QTest::newRow("right, the bar follows") << int(Qt::RightButton) << true;
}

void tst_BreadCrumbsWidget::pressLeavesTheProperties()
{
    QFETCH(int, button);
    QFETCH(bool, follows);
    const QList<QByteArray> expected{"directory"};
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    const QPointer<ClickableLabel> label(crumb(*bar, QStringLiteral("a")));
    QList<QByteArray> names;
    connect(bar.get(), &BreadCrumbsWidget::dirChanged, this, [&](const QString& path) {
        names = label->dynamicPropertyNames();
        if (follows)
            bar->changeDir(path);
    });
    EventCounter changes(label, QEvent::DynamicPropertyChange);
    QTest::mousePress(label.data(), Qt::MouseButton(button));
    QCOMPARE(names, expected);
    QCOMPARE(label->dynamicPropertyNames(), expected);
    QCOMPARE(changes.take(), 0);
    QTest::mouseRelease(bar.get(), Qt::MouseButton(button));
}

void tst_BreadCrumbsWidget::followingInAPressWithinAPress()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    const QPointer<ClickableLabel> outer(crumb(*bar, QStringLiteral("a")));
    const QPointer<ClickableLabel> inner(crumb(*bar, QStringLiteral("b")));
    const QPointer<QWidget> other(bar->layout()->itemAt(1)->widget());
    connect(bar.get(), &BreadCrumbsWidget::dirChanged, this, [&](const QString& path) {
        if (path == QLatin1String("/data/a"))
            QTest::mousePress(inner.data(), Qt::RightButton); // as in an event loop of the slot
        else
            bar->changeDir(QStringLiteral("/data"));
    });
    QTest::mousePress(outer.data(), Qt::RightButton);
    QVERIFY(other.isNull());
    for (const auto& label : {outer, inner}) { // Qt has a context menu event for both
        QVERIFY(label);
        QVERIFY(label->isHidden());
    }
    QTest::mouseRelease(bar.get(), Qt::RightButton);
    QTRY_VERIFY(outer.isNull() && inner.isNull());
}

void tst_BreadCrumbsWidget::directoryIsReadAtTheClick()
{
    const auto bar = barAt(QStringLiteral("/data/a"));
    QSignalSpy changed(bar.get(), &BreadCrumbsWidget::dirChanged);
    crumb(*bar, QStringLiteral("a"))->setProperty("directory", QStringLiteral("/elsewhere"));
    QTest::mousePress(crumb(*bar, QStringLiteral("a")), Qt::LeftButton);
    QCOMPARE(changed.value(0).value(0).toString(), QStringLiteral("/elsewhere"));
}

void tst_BreadCrumbsWidget::barDoesNotChangeByItself()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    QTest::mousePress(crumb(*bar, QStringLiteral("a")), Qt::LeftButton);
    QCOMPARE(crumbs(*bar), (QStringList{"a", "b"}));
}

void tst_BreadCrumbsWidget::separatorsDoNotReact()
{
    const auto bar = barAt(QStringLiteral("/data/a/b"));
    const QSignalSpy changed(bar.get(), &BreadCrumbsWidget::dirChanged);
    QTest::mouseClick(bar->layout()->itemAt(1)->widget(), Qt::LeftButton);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(crumbs(*bar), (QStringList{"a", "b"}));
}

void tst_BreadCrumbsWidget::followingInTheSlot()
{
    const auto bar = barAt(QStringLiteral("/data/a/b/c/d/e"));
    connect(bar.get(), &BreadCrumbsWidget::dirChanged, bar.get(), &BreadCrumbsWidget::changeDir);
    QTest::mousePress(crumb(*bar, QStringLiteral("d")), Qt::LeftButton);
    QCOMPARE(crumbs(*bar), (QStringList{"b", "c", "d"}));
}

void tst_BreadCrumbsWidget::deletedInItsOwnSlot()
{
    const QPointer<BreadCrumbsWidget> bar(barAt(QStringLiteral("/data/a")).release());
    connect(bar.data(), &BreadCrumbsWidget::dirChanged, this, [&] { delete bar.data(); });
    QTest::mousePress(crumb(*bar, QStringLiteral("a")), Qt::LeftButton);
    QVERIFY(bar.isNull());
}

void tst_BreadCrumbsWidget::destroyedWithItsChildren()
{
    auto bar = barAt(QStringLiteral("/data/a/b/c/d"));
    QStringList order;
    connect(bar->layout(), &QObject::destroyed, this,
            [&] { order.append(QStringLiteral("layout")); });
    connect(moreButton(*bar), &QObject::destroyed, this,
            [&] { order.append(QStringLiteral("button")); });
    connect(crumb(*bar, QStringLiteral("d")), &QObject::destroyed, this,
            [&] { order.append(QStringLiteral("crumb")); });
    bar.reset();
    QCOMPARE(order, (QStringList{"layout", "button", "crumb"}));
}

void tst_BreadCrumbsWidget::unusualNames()
{
    const QStringList names{"with space",           "a&b", "<b>bold</b>", "line\nbreak",
                            QString(QChar(0xfffd)), "~"};
    for (const QString& name : names) {
        const auto bar = barAt("/data/" + name);
        const QStringList expected = name.split(QLatin1Char('/')); // the closing tag holds a slash
        QCOMPARE(crumbs(*bar), expected);
        QCOMPARE(lastCrumbPath(*bar), "/data/" + name);
    }
}

void tst_BreadCrumbsWidget::longPath()
{
    QStringList names;
    for (int i = 0; i < 500; ++i)
        names.append(QStringLiteral("name%1").arg(i));
    const auto bar = barAt("/data/" + names.join(QLatin1Char('/')));
    QCOMPARE(crumbs(*bar), names.mid(497));
}

const test::Registration<tst_BreadCrumbsWidget> registration;

#include "tst_BreadCrumbsWidget.moc"
