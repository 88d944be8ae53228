#include "properties/PropertyEditor.h"
#include "properties/PropertyGroup.h"
#include "properties/PropertyList.h"
#include "SampleWidget.h"
#include "TestApplication.h"

#include <Switch.h>
#include <ui/KeypadLineEdit.h>

#include <QBoxLayout>
#include <QComboBox>
#include <QPushButton>
#include <QToolButton>

namespace {

QList<PropertyGroup*> groupsOf(const PropertyEditor& editor)
{
    QList<PropertyGroup*> groups;
    for (PropertyGroup* group : editor.findChildren<PropertyGroup*>()) {
        if (!group->isHidden() && !group->parentWidget()->isHidden())
            groups.append(group);
    }
    std::sort(groups.begin(), groups.end(), [](const QWidget* a, const QWidget* b) {
        return a->parentWidget()->layout()->indexOf(const_cast<QWidget*>(a))
            < b->parentWidget()->layout()->indexOf(const_cast<QWidget*>(b));
    });
    return groups;
}

QStringList titlesOf(const PropertyEditor& editor)
{
    QStringList titles;
    for (const PropertyGroup* group : groupsOf(editor))
        titles.append(group->title());
    return titles;
}

PropertyGroup* groupOf(const PropertyEditor& editor, const QString& title)
{
    for (PropertyGroup* group : groupsOf(editor)) {
        if (group->title() == title)
            return group;
    }
    return nullptr;
}

PropertyRow* rowOf(const PropertyEditor& editor, const QByteArray& name)
{
    for (const PropertyGroup* group : groupsOf(editor)) {
        for (PropertyRow* row : group->findChildren<PropertyRow*>()) {
            if (row->name() == name)
                return row;
        }
    }
    return nullptr;
}

int shownLevel(const PropertyEditor& editor)
{
    return rowOf(editor, "level")->findChild<ui::KeypadLineEdit*>()->text().toInt();
}

const QString sampleClass = QStringLiteral("test::SampleWidget");
const QString dynamicTitle = QStringLiteral("Dynamic properties");

} // namespace

class tst_PropertyEditor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void listsPropertiesByClass();
    void listsDynamicProperties();
    void groupsInClassOrder();
    void leavesOutClassesWithoutProperties();
    void unfoldsFirstGroup();
    void rowsInOrderOfDeclaration();
    void choosesDemoWidget();
    void keepsFoldsForNextDemoWidget();
    void ignoresStrangeTargets();
    void refreshesEveryRowAfterEdit();
    void followsChangesWhileVisible();
    void rowsOfFoldedGroupsCatchUp();
    void dynamicPropertiesComeAndGo();
    void clearsWhenTargetDies();
    void clearsWithoutDemoWidgets();
};

void tst_PropertyEditor::listsPropertiesByClass()
{
    const test::SampleWidget sample;
    const QVector<ClassProperties> classes = propertiesByClass(sample);
    QCOMPARE(classes.size(), 3);
    QCOMPARE(classes.at(0).className, sampleClass);
    QCOMPARE(classes.at(1).className, QStringLiteral("QWidget"));
    QCOMPARE(classes.at(2).className, QStringLiteral("QObject"));
    QCOMPARE(classes.at(2).names, QVector<QByteArray>{"objectName"});
    QVERIFY(!classes.at(0).names.contains("secret")); // cannot be read
    QVERIFY(classes.at(0).names.contains("height"));
    QVERIFY(!classes.at(1).names.contains("height")); // declared again by the class derived from it
    QVERIFY(classes.at(1).names.contains("width"));
}

void tst_PropertyEditor::listsDynamicProperties()
{
    QObject object;
    QVERIFY(dynamicProperties(object).isEmpty());
    object.setProperty("inputValid", true);
    object.setProperty("_q_private", 1);
    QCOMPARE(dynamicProperties(object), QVector<QByteArray>{"inputValid"});
}

void tst_PropertyEditor::groupsInClassOrder()
{
    PropertyEditor editor;
    QPushButton button;
    button.setProperty("inputValid", true);
    editor.setDemoWidgets({{&button, QStringLiteral("button")}});
    QCOMPARE(
        titlesOf(editor),
        QStringList({dynamicTitle, QStringLiteral("QPushButton"), QStringLiteral("QAbstractButton"),
                     QStringLiteral("QWidget"), QStringLiteral("QObject")}));
}

void tst_PropertyEditor::leavesOutClassesWithoutProperties()
{
    PropertyEditor editor;
    test::EmptyPage page;
    editor.setDemoWidgets({{&page, QStringLiteral("page")}});
    QCOMPARE(titlesOf(editor), QStringList({QStringLiteral("QWidget"), QStringLiteral("QObject")}));
}

void tst_PropertyEditor::unfoldsFirstGroup()
{
    PropertyEditor editor;
    test::SampleWidget sample;
    editor.setDemoWidgets({{&sample, QStringLiteral("sample")}});
    QVERIFY(groupOf(editor, sampleClass)->isUnfolded());
    QVERIFY(!groupOf(editor, QStringLiteral("QWidget"))->isUnfolded());
    QVERIFY(!rowOf(editor, "windowTitle")); // not even made
    groupOf(editor, QStringLiteral("QWidget"))->setUnfolded(true);
    QVERIFY(rowOf(editor, "windowTitle"));
}

void tst_PropertyEditor::rowsInOrderOfDeclaration()
{
    QWidget stage;
    PropertyEditor editor(&stage);
    test::SampleWidget sample;
    editor.setDemoWidgets({{&sample, QStringLiteral("sample")}});
    editor.resize(250, 400);
    stage.show();
    const QVector<QByteArray> names = propertiesByClass(sample).at(0).names;
    QCOMPARE(names.size(), 16);
    int bottom = 0;
    for (const QByteArray& name : names) {
        const PropertyRow* row = rowOf(editor, name);
        QVERIFY2(row, name.constData());
        const int top = row->mapTo(&editor, QPoint()).y();
        QVERIFY2(top >= bottom, name.constData());
        bottom = top + row->height();
    }
}

void tst_PropertyEditor::choosesDemoWidget()
{
    PropertyEditor editor;
    test::SamplePage page;
    editor.setDemoWidgets(page.demoWidgets());
    auto* choice = editor.findChild<QComboBox*>(QStringLiteral("widgetChoice"));
    QWidget* first = page.demoWidgets().at(0).widget;
    QWidget* second = page.demoWidgets().at(1).widget;
    QCOMPARE(choice->count(), 2);
    QCOMPARE(choice->currentText(), QStringLiteral("first"));
    QCOMPARE(editor.target(), first);

    choice->setCurrentIndex(1);
    QCOMPARE(editor.target(), second);
    rowOf(editor, "level")->findChild<QToolButton*>(QStringLiteral("stepUp"))->click();
    QCOMPARE(first->property("level").toInt(), 50);
    QCOMPARE(second->property("level").toInt(), 51);

    editor.setTarget(first);
    QCOMPARE(choice->currentText(), QStringLiteral("first"));
    QCOMPARE(shownLevel(editor), 50);
}

void tst_PropertyEditor::keepsFoldsForNextDemoWidget()
{
    PropertyEditor editor;
    test::SamplePage page;
    editor.setDemoWidgets(page.demoWidgets());
    groupOf(editor, sampleClass)->setUnfolded(false);
    groupOf(editor, QStringLiteral("QObject"))->setUnfolded(true);
    editor.setTarget(page.demoWidgets().at(1).widget);
    QVERIFY(!groupOf(editor, sampleClass)->isUnfolded());
    QVERIFY(!groupOf(editor, QStringLiteral("QWidget"))->isUnfolded());
    QVERIFY(groupOf(editor, QStringLiteral("QObject"))->isUnfolded());
}

void tst_PropertyEditor::ignoresStrangeTargets()
{
    PropertyEditor editor;
    test::SamplePage page;
    editor.setDemoWidgets(page.demoWidgets());
    editor.setTarget(nullptr);
    editor.setTarget(&page);
    QCOMPARE(editor.target(), page.demoWidgets().at(0).widget);
}

void tst_PropertyEditor::refreshesEveryRowAfterEdit()
{
    PropertyEditor editor;
    test::SampleWidget sample;
    editor.setDemoWidgets({{&sample, QStringLiteral("sample")}});
    sample.setLevel(12);
    QCOMPARE(shownLevel(editor), 50); // not visible
    rowOf(editor, "marked")->findChild<Switch*>()->click();
    QCOMPARE(shownLevel(editor), 12);
}

void tst_PropertyEditor::followsChangesWhileVisible()
{
    QWidget stage;
    PropertyEditor editor(&stage);
    test::SampleWidget sample;
    editor.setDemoWidgets({{&sample, QStringLiteral("sample")}});
    stage.show();
    sample.setLevel(12);
    QTRY_COMPARE(shownLevel(editor), 12);

    editor.hide();
    sample.setLevel(13);
    editor.show();
    QCOMPARE(shownLevel(editor), 13);
}

void tst_PropertyEditor::rowsOfFoldedGroupsCatchUp()
{
    PropertyEditor editor;
    test::SampleWidget sample;
    editor.setDemoWidgets({{&sample, QStringLiteral("sample")}});
    groupOf(editor, sampleClass)->setUnfolded(false);
    sample.setLevel(14);
    editor.refresh();
    QCOMPARE(shownLevel(editor), 50);
    groupOf(editor, sampleClass)->setUnfolded(true);
    QCOMPARE(shownLevel(editor), 14);
}

void tst_PropertyEditor::dynamicPropertiesComeAndGo()
{
    PropertyEditor editor;
    test::SampleWidget sample;
    editor.setDemoWidgets({{&sample, QStringLiteral("sample")}});
    QVERIFY(!groupOf(editor, dynamicTitle));

    sample.setProperty("inputValid", true);
    editor.refresh();
    QCOMPARE(titlesOf(editor).constFirst(), dynamicTitle);
    rowOf(editor, "inputValid")->findChild<Switch*>()->click();
    QCOMPARE(sample.property("inputValid"), QVariant(false));

    sample.setProperty("directory", QStringLiteral("/data"));
    editor.refresh();
    QVERIFY(rowOf(editor, "directory"));
    QCOMPARE(titlesOf(editor).count(dynamicTitle), 1);

    sample.setProperty("inputValid", QVariant());
    sample.setProperty("directory", QVariant());
    editor.refresh();
    QVERIFY(!groupOf(editor, dynamicTitle));
}

void tst_PropertyEditor::clearsWhenTargetDies()
{
    PropertyEditor editor;
    auto* sample = new test::SampleWidget;
    editor.setDemoWidgets({{sample, QStringLiteral("sample")}});
    delete sample;
    editor.refresh();
    QVERIFY(!editor.target());
    QVERIFY(titlesOf(editor).isEmpty());
}

void tst_PropertyEditor::clearsWithoutDemoWidgets()
{
    PropertyEditor editor;
    test::SamplePage page;
    editor.setDemoWidgets(page.demoWidgets());
    editor.setDemoWidgets({});
    QVERIFY(!editor.target());
    QVERIFY(titlesOf(editor).isEmpty());
    QCOMPARE(editor.findChild<QComboBox*>(QStringLiteral("widgetChoice"))->count(), 0);
}

const test::Registration<tst_PropertyEditor> registration;

#include "tst_PropertyEditor.moc"
