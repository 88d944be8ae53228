#include "Appearance.h"
#include "GalleryPage.h"
#include "GalleryWindow.h"
#include "properties/PropertyEditor.h"
#include "properties/PropertyGroup.h"
#include "SampleWidget.h"
#include "TestApplication.h"
#include "XPointer.h"

#include <Switch.h>

#include <QAbstractItemView>
#include <QComboBox>
#include <QListWidget>
#include <QScrollArea>
#include <QToolButton>

using test::XPointer;

namespace {

GalleryPage* makeSampleWidgets(QWidget* parent)
{
    return new test::SamplePage(parent);
}

GalleryPage* makeTall(QWidget* parent)
{
    auto* page = new test::EmptyPage(parent);
    page->setMinimumHeight(2000);
    return page;
}

} // namespace

/// A visit to the gallery with the clicks and drags of a real X server.
class tst_GalleryClicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();
    void dragsPage();
    void choosesPage();
    void switchesAppearance();
    void picksDemoWidgetAndEditsIt();
    void dragsProperties();
    void choosesFromCombo();

private:
    PropertyRow* row(const QByteArray& name) const;

    GalleryWindow* m_window = nullptr;
    PropertyEditor* m_properties = nullptr;
};

PropertyRow* tst_GalleryClicks::row(const QByteArray& name) const
{
    for (PropertyRow* row : m_properties->findChildren<PropertyRow*>()) {
        if (row->name() == name && row->isVisible())
            return row;
    }
    return nullptr;
}

void tst_GalleryClicks::initTestCase()
{
    m_window = new GalleryWindow(
        {{QStringLiteral("tall"), QStringLiteral("Tall"), makeTall, {}},
         {QStringLiteral("samples"), QStringLiteral("SampleWidgets"), makeSampleWidgets, {}}});
    m_properties = m_window->findChild<PropertyEditor*>();
    m_window->show();
    QVERIFY(QTest::qWaitForWindowActive(m_window));
}

void tst_GalleryClicks::cleanupTestCase()
{
    delete m_window;
}

void tst_GalleryClicks::dragsPage()
{
    const QWidget* area = m_window->page()->parentWidget()->parentWidget();
    const QPoint start(area->width() / 2, area->height() - 20);
    const QPoint end = area->mapToGlobal(start - QPoint(0, 250));
    QVERIFY(XPointer::drag(area->mapToGlobal(start), end));
    QTRY_VERIFY(m_window->page()->parentWidget()->y() < -150);
}

void tst_GalleryClicks::choosesPage()
{
    const auto* list = m_window->findChild<QListWidget*>(QStringLiteral("pageList"));
    QVERIFY(XPointer::tap(*list->viewport(), list->visualItemRect(list->item(1)).center()));
    QTRY_VERIFY(qobject_cast<test::SamplePage*>(m_window->page()));
    QTRY_VERIFY(m_properties->isVisible());
}

void tst_GalleryClicks::switchesAppearance()
{
    const auto* dark = m_window->findChild<Switch*>(QStringLiteral("darkSwitch"));
    QVERIFY(XPointer::tap(*dark));
    QTRY_COMPARE(m_window->palette().color(QPalette::Window),
                 Appearance::darkPalette().color(QPalette::Window));
    const auto* mirrored = m_window->findChild<Switch*>(QStringLiteral("rightToLeftSwitch"));
    QVERIFY(XPointer::tap(*mirrored));
    QTRY_COMPARE(m_window->layoutDirection(), Qt::RightToLeft);
    QTRY_VERIFY(m_properties->mapTo(m_window, QPoint()).x() < m_window->width() / 2);
    QVERIFY(XPointer::tap(*mirrored));
    QTRY_VERIFY(m_properties->mapTo(m_window, QPoint()).x() > m_window->width() / 2);
}

void tst_GalleryClicks::picksDemoWidgetAndEditsIt()
{
    QWidget* second = m_window->page()->demoWidgets().at(1).widget;
    QVERIFY(XPointer::tap(*second));
    QTRY_COMPARE(m_properties->target(), second);
    QTRY_VERIFY(row("level"));
    QVERIFY(XPointer::tap(*row("level")->findChild<QToolButton*>(QStringLiteral("stepUp"))));
    QTRY_COMPARE(second->property("level").toInt(), 51);
    QVERIFY(XPointer::tap(*row("marked")->findChild<Switch*>()));
    QTRY_COMPARE(second->property("marked"), QVariant(true));
}

void tst_GalleryClicks::dragsProperties()
{
    const auto* area = m_properties->findChild<QScrollArea*>();
    const QPoint start(area->width() / 2, area->height() - 20);
    const int level = m_properties->target()->property("level").toInt();
    const QPoint end = area->mapToGlobal(start - QPoint(0, 250));
    QVERIFY(XPointer::drag(area->mapToGlobal(start), end));
    QTRY_VERIFY(area->widget()->y() < -150);
    QCOMPARE(m_properties->target()->property("level").toInt(), level); // no button was hit
}

void tst_GalleryClicks::choosesFromCombo()
{
    const auto* choice = m_properties->findChild<QComboBox*>(QStringLiteral("widgetChoice"));
    QVERIFY(XPointer::tap(*choice));
    QTRY_VERIFY(QApplication::activePopupWidget());
    const QAbstractItemView* items = choice->view();
    QTRY_VERIFY(items->isVisible());
    QVERIFY(XPointer::tap(*items->viewport(),
                          items->visualRect(choice->model()->index(0, 0)).center()));
    QTRY_COMPARE(m_properties->target(), m_window->page()->demoWidgets().at(0).widget);
}

const test::Registration<tst_GalleryClicks> registration;

#include "tst_GalleryClicks.moc"
