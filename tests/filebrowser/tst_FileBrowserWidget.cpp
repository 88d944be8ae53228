#include "ui/FileBrowserWidget.h"

#include "BreadCrumbsWidget.h"
#include "BrowserParts.h"
#include "ClickableLabel.h"
#include "TestApplication.h"
#include "Tree.h"
#include "ui/FileSystemModel.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QListView>
#include <QPushButton>
#include <QTreeView>

#include <memory>

using namespace test;

namespace {

/// The order in which widgets are shown and hidden.
class Appearances : public QObject
{
public:
    QStringList log;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        const QString name = QString::fromLatin1(watched->metaObject()->className());
        if (event->type() == QEvent::ShowToParent)
            log.append(name + QStringLiteral(" shows"));
        if (event->type() == QEvent::HideToParent)
            log.append(name + QStringLiteral(" hides"));
        return false;
    }
};

} // namespace

/// How the browser is built, and how navigation keeps its parts in step.
class tst_FileBrowserWidget : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void metaObject();
    void newBrowser();
    void childrenInOrder();
    void layoutsInOrder();
    void layoutBuildersReturnLayoutsWithoutAParent();
    void viewButtons();
    void modelFilter();
    void tildeIsTakenLiterally();
    void tildeThatDoesNotExist();
    void tileView();
    void listView();
    void listViewHeader();
    void switchingViews();
    void switchingViewsInOrder();
    void viewsShareTheModelButNoSelection();
    void destructorDeletesTheModel();
    void destroyedWithoutAModel();
    void choosingARootResetsTheBar();
    void pressingACrumb();
    void openingFromTheBarKeepsItsRoot();
    void setRootPathLeavesTheBar();
    void setRootPath_data();
    void setRootPath();
    void barDeletedInItsOwnSlot();
    void browserDeletedInASlotOfTheBar();
    void modelDeleted();

private:
    Tree m_tree;
    std::unique_ptr<ui::FileBrowserWidget> m_browser;
    std::unique_ptr<BrowserParts> m_parts;
};

void tst_FileBrowserWidget::initTestCase()
{
    m_tree.makeDir(QStringLiteral("music/live/old"));
    m_tree.makeDir(QStringLiteral("pictures"));
    m_tree.makeFile(QStringLiteral("music/song"));
    m_tree.makeFile(QStringLiteral("notes"), QByteArray(3000, 'x'));
}

void tst_FileBrowserWidget::init()
{
    m_browser = std::make_unique<ui::FileBrowserWidget>();
    m_parts = std::make_unique<BrowserParts>(*m_browser);
}

void tst_FileBrowserWidget::cleanup()
{
    m_browser.reset();
}

void tst_FileBrowserWidget::metaObject()
{
    const QMetaObject& meta = ui::FileBrowserWidget::staticMetaObject;
    QCOMPARE(meta.className(), "ui::FileBrowserWidget");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount() - meta.methodOffset(), 1);
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), QByteArray("selectionChanged()"));
    QCOMPARE(meta.method(meta.methodOffset()).methodType(), QMetaMethod::Signal);
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
    QCOMPARE(meta.enumeratorCount(), meta.enumeratorOffset());
}

void tst_FileBrowserWidget::newBrowser()
{
    QCOMPARE(m_browser->objectName(), QStringLiteral("FileBrowser"));
    QCOMPARE(m_parts->combo->count(), 0);
    QCOMPARE(crumbs(*m_parts->bar), QStringList());
    QVERIFY(!m_parts->tileView->isHidden());
    QVERIFY(m_parts->listView->isHidden());
    QCOMPARE(m_browser->selectionMode(), ui::FileBrowserWidget::SingleSelection);
    QCOMPARE(m_browser->selectedFiles(), QStringList());
    QVERIFY(!ui::FileBrowserWidget(m_browser.get()).isWindow());
}

void tst_FileBrowserWidget::childrenInOrder()
{
    QList<const QObject*> children;
    for (const QObject* child : m_browser->children()) {
        if (child->isWidgetType())
            children.append(child);
    }
    QCOMPARE(children,
             (QList<const QObject*>{m_parts->combo, m_parts->tileView, m_parts->listView,
                                    m_parts->bar, m_parts->tileButton, m_parts->listButton}));
}

void tst_FileBrowserWidget::layoutsInOrder()
{
    const auto* outer = qobject_cast<QVBoxLayout*>(m_browser->layout());
    QVERIFY(outer);
    QWidget plain;
    const QVBoxLayout plainLayout(&plain);
    QCOMPARE(outer->contentsMargins(), plainLayout.contentsMargins());
    QCOMPARE(outer->spacing(), plainLayout.spacing());
    QCOMPARE(outer->count(), 2);
    QCOMPARE(outer->stretch(0), 0);
    QCOMPARE(outer->stretch(1), 0);

    const auto* bar = qobject_cast<QHBoxLayout*>(outer->itemAt(0)->layout());
    QVERIFY(bar);
    QCOMPARE(bar->alignment(), Qt::AlignTop);
    QCOMPARE(bar->count(), 5);
    QCOMPARE(bar->itemAt(0)->widget(), m_parts->combo);
    QCOMPARE(bar->itemAt(1)->widget(), m_parts->bar);
    QVERIFY(bar->itemAt(2)->spacerItem());
    QCOMPARE(bar->itemAt(3)->widget(), m_parts->tileButton);
    QCOMPARE(bar->itemAt(4)->widget(), m_parts->listButton);
    for (int i = 0; i < bar->count(); ++i) {
        QCOMPARE(bar->stretch(i), i == 1 ? 1 : 0);
        QCOMPARE(bar->itemAt(i)->alignment(), Qt::Alignment());
    }
    QCOMPARE(m_parts->combo->sizePolicy(), QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum));

    const auto* views = qobject_cast<QVBoxLayout*>(outer->itemAt(1)->layout());
    QVERIFY(views);
    QCOMPARE(views->count(), 2);
    QCOMPARE(views->itemAt(0)->widget(), m_parts->tileView);
    QCOMPARE(views->itemAt(1)->widget(), m_parts->listView);
    QCOMPARE(views->stretch(0), 0);
    QCOMPARE(views->stretch(1), 0);
}

void tst_FileBrowserWidget::layoutBuildersReturnLayoutsWithoutAParent()
{
    const std::unique_ptr<QHBoxLayout> bar(m_browser->createNavBar());
    QVERIFY(!bar->parent());
    const std::unique_ptr<QVBoxLayout> views(m_browser->createFileView());
    QVERIFY(!views->parent());
}

void tst_FileBrowserWidget::viewButtons()
{
    const QVector<QPair<QPushButton*, QString>> buttons{
        {m_parts->tileButton, ":/icons/tile_view.svg"},
        {m_parts->listButton, ":/icons/list_view.svg"}};
    for (const auto& [button, icon] : buttons) {
        QCOMPARE(button->objectName(), QStringLiteral("toolbarButton"));
        QCOMPARE(button->text(), QString());
        QVERIFY(!button->isCheckable());
        QVERIFY(!button->autoExclusive());
        QCOMPARE(button->toolTip(), QString());
        QCOMPARE(button->iconSize(), QPushButton().iconSize());
        QVERIFY(!button->icon().pixmap(22).isNull());
        QCOMPARE(button->icon().pixmap(22).toImage(), QIcon(icon).pixmap(22).toImage());
    }
}

void tst_FileBrowserWidget::modelFilter()
{
    QVERIFY(m_parts->model);
    QVERIFY(!m_parts->model->QObject::parent());
    QCOMPARE(int(m_parts->model->filter()), 0x6402);
    QCOMPARE(m_parts->model->nameFilters(), QStringList());
}

void tst_FileBrowserWidget::tildeIsTakenLiterally()
{
    Tree tree;
    tree.makeDir(QStringLiteral("~/inside"));
    const QString before = QDir::currentPath();
    QVERIFY(QDir::setCurrent(tree.path()));
    const ui::FileBrowserWidget browser;
    QCOMPARE(browser.currentPath(), QStringLiteral("~"));
    QVERIFY(QDir::setCurrent(before));
}

void tst_FileBrowserWidget::tildeThatDoesNotExist()
{
    QVERIFY(!QFile::exists(QStringLiteral("~")));
    QCOMPARE(m_browser->currentPath(), QFileSystemModel().rootPath());
    QVERIFY(m_browser->currentPath() != QDir::homePath());
    QCOMPARE(m_parts->tileView->rootIndex(), m_parts->model->index(m_browser->currentPath()));
    QCOMPARE(m_parts->listView->rootIndex(), m_parts->model->index(m_browser->currentPath()));
}

void tst_FileBrowserWidget::tileView()
{
    const QListView& view = *m_parts->tileView;
    QCOMPARE(view.selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(view.isWrapping());
    QCOMPARE(view.resizeMode(), QListView::Adjust);
    QCOMPARE(view.editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(view.dragDropMode(), QAbstractItemView::NoDragDrop);
    const QListView plain;
    QCOMPARE(view.viewMode(), plain.viewMode());
    QCOMPARE(view.flow(), QListView::TopToBottom);
    QCOMPARE(view.gridSize(), plain.gridSize());
    QCOMPARE(view.iconSize(), plain.iconSize());
    QCOMPARE(view.layoutMode(), plain.layoutMode());
}

void tst_FileBrowserWidget::listView()
{
    const QTreeView& view = *m_parts->listView;
    QCOMPARE(view.model(), m_parts->model);
    QCOMPARE(view.selectionBehavior(), QAbstractItemView::SelectRows);
    QVERIFY(!view.rootIsDecorated());
    QVERIFY(!view.itemsExpandable());
    QVERIFY(view.isSortingEnabled());
    QCOMPARE(view.textElideMode(), Qt::ElideMiddle);
    QCOMPARE(view.editTriggers(), QAbstractItemView::NoEditTriggers);
    QCOMPARE(view.dragDropMode(), QAbstractItemView::NoDragDrop);
    QVERIFY(view.uniformRowHeights());
}

void tst_FileBrowserWidget::listViewHeader()
{
    m_browser->setRootPath(m_tree.path());
    QTRY_COMPARE(shownNames(*m_parts->listView), (QStringList{"music", "pictures", "notes"}));
    const QHeaderView& header = *m_parts->listView->header();
    QCOMPARE(header.sortIndicatorSection(), 0);
    QCOMPARE(header.sortIndicatorOrder(), Qt::AscendingOrder);
    QCOMPARE(header.sectionResizeMode(0), QHeaderView::ResizeToContents);
    QCOMPARE(header.sectionResizeMode(1), QHeaderView::ResizeToContents);
    QVERIFY(header.isSectionHidden(2));
    QCOMPARE(header.sectionResizeMode(3), QHeaderView::Stretch);
    QCOMPARE(header.maximumSectionSize(), 350);
    const QVector<QPair<int, QString>> texts{{0, "Name"}, {1, "Size"}, {3, "Date Modified"}};
    for (const auto& [section, text] : texts) {
        QVERIFY(!header.isSectionHidden(section));
        QCOMPARE(header.model()->headerData(section, Qt::Horizontal).toString(), text);
    }
}

void tst_FileBrowserWidget::switchingViews()
{
    m_parts->listButton->click();
    m_parts->listButton->click();
    QVERIFY(m_parts->tileView->isHidden());
    QVERIFY(!m_parts->listView->isHidden());
    m_parts->tileButton->click();
    QVERIFY(!m_parts->tileView->isHidden());
    QVERIFY(m_parts->listView->isHidden());
}

void tst_FileBrowserWidget::switchingViewsInOrder()
{
    Appearances appearances;
    m_parts->tileView->installEventFilter(&appearances);
    m_parts->listView->installEventFilter(&appearances);
    m_parts->listButton->click();
    QCOMPARE(appearances.log, (QStringList{"QListView hides", "QTreeView shows"}));
    appearances.log.clear();
    m_parts->tileButton->click();
    QCOMPARE(appearances.log, (QStringList{"QListView shows", "QTreeView hides"}));
}

void tst_FileBrowserWidget::viewsShareTheModelButNoSelection()
{
    QCOMPARE(m_parts->tileView->model(), m_parts->model);
    QVERIFY(m_parts->tileView->selectionModel() != m_parts->listView->selectionModel());
    m_browser->setRootPath(m_tree.path());
    QTRY_COMPARE(shownNames(*m_parts->tileView).size(), 3);
    selectEntry(*m_parts->tileView, QStringLiteral("notes"));
    QCOMPARE(selectedNames(*m_parts->listView), QStringList());
}

void tst_FileBrowserWidget::destructorDeletesTheModel()
{
    const QPointer<QFileSystemModel> model(m_parts->model);
    m_browser.reset();
    QVERIFY(model.isNull());
}

void tst_FileBrowserWidget::destroyedWithoutAModel()
{
    delete m_parts->model;
    m_browser.reset();
}

void tst_FileBrowserWidget::choosingARootResetsTheBar()
{
    m_browser->setAllowedDirs({m_tree.path(), m_tree.path(QStringLiteral("music"))});
    m_parts->bar->changeDir(m_tree.path(QStringLiteral("pictures")));
    QCOMPARE(crumbs(*m_parts->bar), QStringList{"pictures"});

    m_parts->combo->setCurrentIndex(1);
    const QString music = m_tree.path(QStringLiteral("music"));
    QCOMPARE(m_browser->currentPath(), music);
    QCOMPARE(m_parts->tileView->rootIndex(), m_parts->model->index(music));
    QCOMPARE(m_parts->listView->rootIndex(), m_parts->model->index(music));
    QCOMPARE(crumbs(*m_parts->bar), QStringList());
    m_parts->bar->changeDir(m_tree.path(QStringLiteral("music/live")));
    QCOMPARE(crumbs(*m_parts->bar), QStringList{"live"});
    QTRY_COMPARE(shownNames(*m_parts->tileView), (QStringList{"live", "song"}));
}

void tst_FileBrowserWidget::pressingACrumb()
{
    m_browser->setAllowedDirs({m_tree.path()});
    m_browser->setRootPath(m_tree.path(QStringLiteral("music/live/old")));
    m_parts->bar->changeDir(m_tree.path(QStringLiteral("music/live/old")));
    QCOMPARE(crumbs(*m_parts->bar), (QStringList{"music", "live", "old"}));

    QTest::mousePress(crumb(*m_parts->bar, QStringLiteral("music")), Qt::LeftButton);
    const QString music = m_tree.path(QStringLiteral("music"));
    QCOMPARE(m_browser->currentPath(), music);
    QCOMPARE(m_parts->tileView->rootIndex(), m_parts->model->index(music));
    QCOMPARE(m_parts->listView->rootIndex(), m_parts->model->index(music));
    QCOMPARE(crumbs(*m_parts->bar), QStringList{"music"});
}

void tst_FileBrowserWidget::openingFromTheBarKeepsItsRoot()
{
    m_browser->setAllowedDirs({m_tree.path()});
    Q_EMIT m_parts->bar->dirChanged(m_tree.path(QStringLiteral("music/live")));
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("music/live")));
    QCOMPARE(crumbs(*m_parts->bar), (QStringList{"music", "live"}));
    QCOMPARE(m_parts->combo->currentText(), m_tree.path());
}

void tst_FileBrowserWidget::setRootPathLeavesTheBar()
{
    m_browser->setAllowedDirs({m_tree.path()});
    m_browser->setRootPath(m_tree.path(QStringLiteral("music")));
    QCOMPARE(crumbs(*m_parts->bar), QStringList());
}

void tst_FileBrowserWidget::setRootPath_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("shown");
    const QString music = m_tree.path(QStringLiteral("music"));
    QTest::newRow("directory") << music << music;
    QTest::newRow("trailing slash") << music + "/" << music;
    QTest::newRow("dots") << music + "/../music/./" << music;
    QTest::newRow("empty") << ""
                           << "";
    QTest::newRow("missing") << m_tree.path(QStringLiteral("missing")) << m_tree.path();
    QTest::newRow("root") << "/"
                          << "/";
    QTest::newRow("two slashes") << "//" + music.mid(1) << music;
}

void tst_FileBrowserWidget::setRootPath()
{
    QFETCH(QString, path);
    QFETCH(QString, shown);
    m_browser->setRootPath(m_tree.path());
    m_browser->setRootPath(path);
    QCOMPARE(m_browser->currentPath(), shown);
    QCOMPARE(m_parts->tileView->rootIndex(), m_parts->model->index(shown));
    QCOMPARE(m_parts->listView->rootIndex(), m_parts->model->index(shown));
}

void tst_FileBrowserWidget::barDeletedInItsOwnSlot()
{
    m_browser->setAllowedDirs({m_tree.path()});
    m_parts->bar->changeDir(m_tree.path(QStringLiteral("music/live")));
    connect(m_parts->bar, &BreadCrumbsWidget::dirChanged, this, [this] { delete m_parts->bar; });
    QTest::mousePress(crumb(*m_parts->bar, QStringLiteral("music")), Qt::LeftButton);
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("music")));

    // The browser does without its bar from then on.
    QTRY_COMPARE(shownNames(*m_parts->tileView), (QStringList{"live", "song"}));
    selectEntry(*m_parts->tileView, QStringLiteral("live"));
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("music/live")));
    m_browser->setAllowedDirs({m_tree.path(QStringLiteral("pictures"))});
    QCOMPARE(m_browser->currentPath(), m_tree.path(QStringLiteral("pictures")));
}

void tst_FileBrowserWidget::browserDeletedInASlotOfTheBar()
{
    m_browser->setAllowedDirs({m_tree.path()});
    m_parts->bar->changeDir(m_tree.path(QStringLiteral("music/live")));
    connect(m_parts->bar, &BreadCrumbsWidget::dirChanged, this, [this] { m_browser.reset(); });
    QTest::mousePress(crumb(*m_parts->bar, QStringLiteral("music")), Qt::LeftButton);
    QVERIFY(!m_browser);
}

void tst_FileBrowserWidget::modelDeleted()
{
    m_browser->setAllowedDirs({m_tree.path()});
    QTRY_COMPARE(shownNames(*m_parts->tileView).size(), 3);
    selectEntry(*m_parts->tileView, QStringLiteral("notes"));
    delete m_parts->model;
    QCOMPARE(m_browser->currentPath(), QString());
    QCOMPARE(m_browser->selectedFiles(), QStringList());
    m_browser->setRootPath(m_tree.path());
    m_browser->setFilters({QStringLiteral("*")});
    m_browser->setSelectionMode(ui::FileBrowserWidget::MultiSelection);
    m_browser->setAllowedDirs({m_tree.path(QStringLiteral("music"))});
    QCOMPARE(m_browser->currentPath(), QString());
}

const test::Registration<tst_FileBrowserWidget> registration;

#include "tst_FileBrowserWidget.moc"
