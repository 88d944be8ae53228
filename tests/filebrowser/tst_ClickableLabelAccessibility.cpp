#include "ClickableLabel.h"
#include "TestApplication.h"

#include <BreadCrumbsWidget.h>

#include <QAccessible>
#include <QLineEdit>

namespace {

QAccessibleInterface* interfaceOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget);
}

} // namespace

/// What assistive technology learns of a label, in a process that starts with no other class.
class tst_ClickableLabelAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isALink();
    void crumbIsALink();
    void takesTheApplicationsWords();
    void isPressed();
    void deletedByItsPress();
    void disabledIsNotPressed();
    void isReadOnly();
    void hasNoValue();
    void tellsItsBuddy_data();
    void tellsItsBuddy();
    void keepsTheRelationsOfAWidget();
};

void tst_ClickableLabelAccessibility::isALink()
{
    ClickableLabel label;
    label.setText(QStringLiteral("music"));
    const QAccessibleInterface* interface = interfaceOf(&label);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Link);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("music"));
}

void tst_ClickableLabelAccessibility::crumbIsALink()
{
    BreadCrumbsWidget crumbs(nullptr);
    crumbs.setRootPath(QStringLiteral("/data"));
    crumbs.changeDir(QStringLiteral("/data/a"));
    auto* crumb = crumbs.findChild<ClickableLabel*>();
    QVERIFY(crumb);
    QAccessibleInterface* interface = interfaceOf(crumb);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::Link);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("a"));
    QVERIFY(interface->actionInterface()->actionNames().contains(
        QAccessibleActionInterface::pressAction()));
}

void tst_ClickableLabelAccessibility::takesTheApplicationsWords()
{
    ClickableLabel label;
    label.setText(QStringLiteral("music"));
    const QAccessibleInterface* interface = interfaceOf(&label);
    QCOMPARE(interface->text(QAccessible::Description), QString());
    label.setAccessibleName(QStringLiteral("Folder music"));
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Folder music"));
}

void tst_ClickableLabelAccessibility::isPressed()
{
    ClickableLabel label(nullptr);
    const QSignalSpy spy(&label, &ClickableLabel::clicked);
    QAccessibleActionInterface* actions = interfaceOf(&label)->actionInterface();
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(spy.size(), 1);
    QVERIFY(!label.focusWidget());
    actions->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(spy.size(), 1);
    QCOMPARE(label.focusWidget(), &label);
}

void tst_ClickableLabelAccessibility::deletedByItsPress()
{
    auto* label = new ClickableLabel(nullptr);
    connect(label, &ClickableLabel::clicked, label, [label] { delete label; });
    interfaceOf(label)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
}

void tst_ClickableLabelAccessibility::disabledIsNotPressed()
{
    ClickableLabel label(nullptr);
    label.setEnabled(false);
    const QSignalSpy spy(&label, &ClickableLabel::clicked);
    interfaceOf(&label)->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCOMPARE(spy.size(), 0);
}

void tst_ClickableLabelAccessibility::isReadOnly()
{
    ClickableLabel label;
    QVERIFY(interfaceOf(&label)->state().readOnly);
    QVERIFY(interfaceOf(&label)->state().invisible); // as any hidden widget
}

void tst_ClickableLabelAccessibility::hasNoValue()
{
    ClickableLabel label;
    QVERIFY(!interfaceOf(&label)->valueInterface());
}

void tst_ClickableLabelAccessibility::tellsItsBuddy_data()
{
    QTest::addColumn<int>("match");
    QTest::newRow("all") << int(QAccessible::AllRelations);
    QTest::newRow("what it labels") << int(QAccessible::Labelled);
    QTest::newRow("its label") << int(QAccessible::Label);
    QTest::newRow("both") << int(QAccessible::Label | QAccessible::Labelled);
    QTest::newRow("its controller") << int(QAccessible::Controller);
}

/// As Qt's own label tells it, with a buddy and without.
void tst_ClickableLabelAccessibility::tellsItsBuddy()
{
    QFETCH(int, match);
    QLineEdit field;
    QLabel plain;
    ClickableLabel clickable;
    const auto relations = [match](QLabel& label) {
        return interfaceOf(&label)->relations(QAccessible::Relation(match));
    };
    QVERIFY(relations(clickable).isEmpty());
    plain.setBuddy(&field);
    clickable.setBuddy(&field);
    QCOMPARE(relations(clickable), relations(plain));
    clickable.setBuddy(nullptr);
    QVERIFY(relations(clickable).isEmpty());
}

void tst_ClickableLabelAccessibility::keepsTheRelationsOfAWidget()
{
    QWidget window;
    QLabel heading(&window);
    ClickableLabel label(&window);
    heading.setBuddy(&label);
    const auto relations = interfaceOf(&label)->relations();
    QCOMPARE(relations.size(), 1);
    QCOMPARE(relations.first().first, interfaceOf(&heading));
    QCOMPARE(relations.first().second, QAccessible::Relation(QAccessible::Label));
}

const test::Registration<tst_ClickableLabelAccessibility> registration;

#include "tst_ClickableLabelAccessibility.moc"
