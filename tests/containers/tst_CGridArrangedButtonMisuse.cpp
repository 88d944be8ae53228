#include "TestApplication.h"

#include <ui/CGridArrangedButton.h>

#include <QGridLayout>
#include <QLabel>

#include <functional>
#include <limits>

using ui::CGridArrangedButton;

namespace {

using Call = std::function<void(CGridArrangedButton&)>;

QGridLayout* gridOf(const CGridArrangedButton& button)
{
    return qobject_cast<QGridLayout*>(button.layout());
}

} // namespace

Q_DECLARE_METATYPE(Call)

class tst_CGridArrangedButtonMisuse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesBadInput_data();
    void refusesBadInput();
    void leavesRefusedWidgetsAlone();
    void refusesToContainItself();
    void survivesAbsurdMeasures();
};

void tst_CGridArrangedButtonMisuse::refusesBadInput_data()
{
    constexpr int huge = std::numeric_limits<int>::max();
    QTest::addColumn<Call>("call");
    QTest::addColumn<QString>("warning");
    const auto row = [](const char* name, const Call& call, const char* warning) {
        QTest::newRow(name)
            << call << QStringLiteral("CGridArrangedButton::").append(QLatin1String(warning));
    };
    const char* nullWidget = "addWidget: cannot add a null widget";
    row(
        "null widget", [](auto& b) { b.addWidget(nullptr, 0, 0); }, nullWidget);
    row(
        "null widget, spans", [](auto& b) { b.addWidget(nullptr, 0, 0, 1, 1); }, nullWidget);
    row(
        "null item", [](auto& b) { b.addItem(nullptr, 0, 0, 1, 1); },
        "addItem: cannot add a null item");

    row(
        "widget, row below",
        [](auto& b) {
            QLabel label;
            b.addWidget(&label, -1, 0);
        },
        "addWidget: no such cells: row -1, column 0, 1 by 1");
    row(
        "widget, column beyond",
        [](auto& b) {
            QLabel label;
            b.addWidget(&label, 0, 1000);
        },
        "addWidget: no such cells: row 0, column 1000, 1 by 1");
    row(
        "widget, span beyond",
        [](auto& b) {
            QLabel label;
            b.addWidget(&label, 2, 0, huge, 1);
        },
        "addWidget: no such cells: row 2, column 0, 2147483647 by 1");
    row(
        "widget, span a little beyond",
        [](auto& b) {
            QLabel label;
            b.addWidget(&label, 0, 999, 1, 2);
        },
        "addWidget: no such cells: row 0, column 999, 1 by 2");
    row(
        "item, row below",
        [](auto& b) {
            QSpacerItem item(1, 1);
            b.addItem(&item, -1, 0, 1, 1);
        },
        "addItem: no such cells: row -1, column 0, 1 by 1");
    row(
        "item, column beyond",
        [](auto& b) {
            QSpacerItem item(1, 1);
            b.addItem(&item, 0, huge, 1, 1);
        },
        "addItem: no such cells: row 0, column 2147483647, 1 by 1");

    row(
        "column width below", [](auto& b) { b.setColumnMinimumWidth(-1, 5); },
        "setColumnMinimumWidth: no such row or column: -1");
    row(
        "column stretch beyond", [](auto& b) { b.setColumnStretch(huge, 5); },
        "setColumnStretch: no such row or column: 2147483647");
    row(
        "row height beyond", [](auto& b) { b.setRowMinimumHeight(1000, 5); },
        "setRowMinimumHeight: no such row or column: 1000");
    row(
        "row stretch below", [](auto& b) { b.setRowStretch(-1, 5); },
        "setRowStretch: no such row or column: -1");
}

void tst_CGridArrangedButtonMisuse::refusesBadInput()
{
    QFETCH(Call, call);
    QFETCH(QString, warning);
    CGridArrangedButton button;
    QTest::ignoreMessage(QtWarningMsg, qPrintable(warning));
    call(button);
    QCOMPARE(gridOf(button)->count(), 0);
    QCOMPARE(gridOf(button)->rowCount(), 1);
    QCOMPARE(gridOf(button)->columnCount(), 1);
    QCOMPARE(button.columnStretch(-1), 0);
    QCOMPARE(button.columnStretch(std::numeric_limits<int>::max()), 0);
}

void tst_CGridArrangedButtonMisuse::leavesRefusedWidgetsAlone()
{
    QWidget parent;
    QLabel label(&parent);
    CGridArrangedButton button;
    QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("no such cells")));
    button.addWidget(&label, -1, 0);
    QCOMPARE(label.parentWidget(), &parent);
}

void tst_CGridArrangedButtonMisuse::refusesToContainItself()
{
    QWidget window;
    QWidget panel(&window);
    CGridArrangedButton button(&panel);
    for (QWidget* widget : {static_cast<QWidget*>(&button), &panel, &window}) {
        QTest::ignoreMessage(QtWarningMsg,
                             "CGridArrangedButton::addWidget: cannot add a widget that"
                             " contains the button");
        button.addWidget(widget, 0, 0);
    }
    QCOMPARE(gridOf(button)->count(), 0);
    QCOMPARE(button.parentWidget(), &panel);
    QCOMPARE(panel.parentWidget(), &window);
}

void tst_CGridArrangedButtonMisuse::survivesAbsurdMeasures()
{
    using Limits = std::numeric_limits<int>;
    QWidget window;
    CGridArrangedButton button(&window);
    button.addWidget(new QLabel(QStringLiteral("Text")), 0, 0);
    button.addWidget(new QLabel(QStringLiteral("Text")), 1, 1, -7, -7);
    button.addWidget(new QLabel(QStringLiteral("Text")), 999, 999);
    button.resize(200, 80);
    window.show();
    for (int value : {Limits::min(), -1, 0, 20000000, Limits::max()}) {
        button.setSpacing(value);
        button.setContentsMargins(value, value, value, value);
        button.setColumnMinimumWidth(0, value);
        button.setRowMinimumHeight(1, value);
        button.setColumnStretch(0, value);
        button.setColumnStretch(1, Limits::max());
        button.setRowStretch(0, value);
        QCoreApplication::processEvents();
        button.sizeHint();
        button.minimumSizeHint();
        QCOMPARE(button.columnStretch(0), value);
    }
}

int main(int argc, char** argv)
{
    return test::run<tst_CGridArrangedButtonMisuse>(argc, argv);
}

#include "tst_CGridArrangedButtonMisuse.moc"
