#include "TestApplication.h"

#include <ui/CBatteryStatusWidget.h>

#include <QAccessible>
#include <QLabel>

/// An application's own class, by the name of one of the library's.
class Q_DECL_HIDDEN ClickableLabel : public QLabel
{
    Q_OBJECT
};

class tst_AccessibilityOfOthers : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void leavesClassesOfTheSameNameAlone();
};

void tst_AccessibilityOfOthers::leavesClassesOfTheSameNameAlone()
{
    const ui::CBatteryStatusWidget battery; // has the library announce its interfaces
    ClickableLabel label;
    label.setText(QStringLiteral("Own"));
    const QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&label);
    QVERIFY(interface);
    QCOMPARE(interface->role(), QAccessible::StaticText);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Own"));
}

int main(int argc, char** argv)
{
    return test::run<tst_AccessibilityOfOthers>(argc, argv);
}

#include "tst_AccessibilityOfOthers.moc"
