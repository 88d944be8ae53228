#include "TestApplication.h"

#include <ui/CGridArrangedButton.h>

#include <QGridLayout>
#include <QLabel>

#include <array>
#include <functional>
#include <limits>

using ui::CGridArrangedButton;

namespace {

constexpr int largestStretch = std::numeric_limits<int>::max() / 1000; // rows or columns

using Call = std::function<void(CGridArrangedButton&)>;
/// Finds an item in a button or in a widget.
using Find = std::function<QLayoutItem*(CGridArrangedButton&, QWidget&)>;

QGridLayout* gridOf(const CGridArrangedButton& button)
{
    return qobject_cast<QGridLayout*>(button.layout());
}

} // namespace

Q_DECLARE_METATYPE(Call)
Q_DECLARE_METATYPE(Find)

class tst_CGridArrangedButtonMisuse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void refusesBadInput_data();
    void refusesBadInput();
    void leavesRefusedWidgetsAlone();
    void refusesToContainItself();
    void refusesItemsWithOwners_data();
    void refusesItemsWithOwners();
    void survivesLossOfItsGrid_data();
    void survivesLossOfItsGrid();
    void survivesAbsurdMeasures();
    void survivesAbsurdStretches();
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

        QWidgetItem item(widget);
        QTest::ignoreMessage(QtWarningMsg,
                             "CGridArrangedButton::addItem: cannot add an item that contains the"
                             " button");
        button.addItem(&item, 0, 0);
    }
    QCOMPARE(gridOf(button)->count(), 0);
    QCOMPARE(button.parentWidget(), &panel);
    QCOMPARE(panel.parentWidget(), &window);
}

void tst_CGridArrangedButtonMisuse::refusesItemsWithOwners_data()
{
    QTest::addColumn<Find>("find");
    QTest::newRow("in the grid already")
        << Find([](CGridArrangedButton& button, QWidget&) { return gridOf(button)->itemAt(0); });
    QTest::newRow("layout in the grid already")
        << Find([](CGridArrangedButton& button, QWidget&) { return gridOf(button)->itemAt(1); });
    QTest::newRow("layout in a layout of the grid")
        << Find([](CGridArrangedButton& button, QWidget&) {
               return gridOf(button)->itemAt(1)->layout()->itemAt(0);
           });
    QTest::newRow("the grid itself")
        << Find([](CGridArrangedButton& button, QWidget&) { return button.layout(); });
    QTest::newRow("layout of a widget")
        << Find([](CGridArrangedButton&, QWidget& widget) { return widget.layout(); });
    QTest::newRow("layout in a layout")
        << Find([](CGridArrangedButton&, QWidget& widget) { return widget.layout()->itemAt(0); });
}

void tst_CGridArrangedButtonMisuse::refusesItemsWithOwners()
{
    QFETCH(const Find, find);
    CGridArrangedButton button;
    button.addItem(new QSpacerItem(1, 1), 0, 0);
    auto* nested = new QHBoxLayout;
    nested->setParent(gridOf(button));
    nested->addLayout(new QHBoxLayout);
    button.addItem(nested, 0, 1);
    QWidget widget;
    auto* column = new QVBoxLayout(&widget);
    column->addLayout(new QHBoxLayout);

    QTest::ignoreMessage(QtWarningMsg,
                         "CGridArrangedButton::addItem: cannot add an item that has an owner");
    button.addItem(find(button, widget), 1, 1);
    QCOMPARE(gridOf(button)->count(), 2);
    button.addItem(new QHBoxLayout, 1, 1); // this one has none
    QCOMPARE(gridOf(button)->count(), 3);
}

void tst_CGridArrangedButtonMisuse::survivesLossOfItsGrid_data()
{
    QTest::addColumn<Call>("lose");
    QTest::newRow("deleted") << Call([](auto& button) { delete button.layout(); });
    QTest::newRow("moved") << Call([](auto& button) { QWidget().setLayout(button.layout()); });
    QTest::newRow("replaced by a column") << Call([](auto& button) {
        delete button.layout();
        button.setLayout(new QVBoxLayout);
    });
}

void tst_CGridArrangedButtonMisuse::survivesLossOfItsGrid()
{
    QFETCH(const Call, lose);
    const QHash<QString, Call> calls = {
        {QStringLiteral("addItem"), [](auto& b) { b.addItem(nullptr, 0, 0); }},
        {QStringLiteral("setColumnMinimumWidth"), [](auto& b) { b.setColumnMinimumWidth(0, 5); }},
        {QStringLiteral("setColumnStretch"), [](auto& b) { b.setColumnStretch(0, 5); }},
        {QStringLiteral("setRowMinimumHeight"), [](auto& b) { b.setRowMinimumHeight(0, 5); }},
        {QStringLiteral("setRowStretch"), [](auto& b) { b.setRowStretch(0, 5); }},
        {QStringLiteral("setSpacing"), [](auto& b) { b.setSpacing(5); }},
        {QStringLiteral("setHorizontalSpacing"), [](auto& b) { b.setHorizontalSpacing(5); }},
        {QStringLiteral("setVerticalSpacing"), [](auto& b) { b.setVerticalSpacing(5); }},
        {QStringLiteral("setContentsMargins"), [](auto& b) { b.setContentsMargins(5, 5, 5, 5); }},
    };
    QWidget parent;
    QLabel label(&parent);
    CGridArrangedButton button(QStringLiteral("Text"));
    button.setColumnStretch(0, 5);
    lose(button);

    const QString warning = QStringLiteral("CGridArrangedButton::%1: the button has lost its grid");
    for (auto call = calls.begin(); call != calls.end(); ++call) {
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning.arg(call.key())));
        call.value()(button);
    }
    for (int i = 0; i < 2; ++i)
        QTest::ignoreMessage(QtWarningMsg, qPrintable(warning.arg(QStringLiteral("addWidget"))));
    button.addWidget(&label, 0, 0);
    button.addWidget(&label, 0, 0, 1, 1);
    QCOMPARE(label.parentWidget(), &parent);
    QCOMPARE(button.columnStretch(0), 0);
    QVERIFY(button.sizeHint().isValid());
    QVERIFY(button.minimumSizeHint().isValid());
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
        QCOMPARE(button.columnStretch(0), qBound(-largestStretch, value, largestStretch));
    }
}

/// In QGridLayout three such rows are more than an int can add up, and it looks for room for ever.
void tst_CGridArrangedButtonMisuse::survivesAbsurdStretches()
{
    using Limits = std::numeric_limits<int>;
    QWidget window;
    CGridArrangedButton button(&window);
    for (int i = 0; i < 3; ++i)
        button.addWidget(new QLabel(QStringLiteral("Text")), i, i);
    window.show();
    for (const auto& stretches : {std::array<int, 3>{Limits::max(), Limits::max(), 5},
                                  {Limits::max(), Limits::max(), Limits::max()},
                                  {Limits::min(), Limits::min(), -5},
                                  {Limits::min(), Limits::max(), 1}}) {
        for (int i = 0; i < 3; ++i) {
            button.setRowStretch(i, stretches[i]);
            button.setColumnStretch(i, stretches[i]);
        }
        for (const QSize& size : {QSize(1000, 1000), QSize(20, 20), QSize(0, 0)}) {
            button.resize(size);
            button.layout()->activate();
        }
        QCOMPARE(button.columnStretch(0), qBound(-largestStretch, stretches[0], largestStretch));
    }
}

const test::Registration<tst_CGridArrangedButtonMisuse> registration;

#include "tst_CGridArrangedButtonMisuse.moc"
