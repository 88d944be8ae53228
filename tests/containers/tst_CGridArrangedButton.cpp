#include "Painting.h"
#include "TestApplication.h"

#include <ui/CGridArrangedButton.h>

#include <QGridLayout>
#include <QLabel>
#include <QMetaMethod>
#include <QSignalSpy>

#include <memory>

using ui::CGridArrangedButton;

namespace {

QGridLayout* gridOf(const CGridArrangedButton& button)
{
    return qobject_cast<QGridLayout*>(button.layout());
}

/// The row, column and spans of the only item in the grid.
QRect onlyCell(const CGridArrangedButton& button)
{
    int row = -1;
    int column = -1;
    int rowSpan = -1;
    int columnSpan = -1;
    gridOf(button)->getItemPosition(0, &row, &column, &rowSpan, &columnSpan);
    return QRect(column, row, columnSpan, rowSpan);
}

QIcon redIcon()
{
    QPixmap pixmap(16, 16);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

/// A button with a size hint of its own, to see who asks for it.
class WideButton : public CGridArrangedButton
{
public:
    using CGridArrangedButton::CGridArrangedButton;
    QSize sizeHint() const override
    {
        return QSize(321, 12);
    }
};

} // namespace

class tst_CGridArrangedButton : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void constructors();
    void addsNothingToItsMetaObject();
    void ownsItsGrid();

    void hintsAtItsOwnContent();
    void hintsAtItsGrid();
    void minimumAsksForTheSizeHint();

    void addsWidget();
    void addsWidgetOverSpans();
    void takesWidgetFromItsParent();
    void addsItem();
    void addsNestedLayout();
    void nestedLayoutDeletedFirst();
    void forwardsColumns();
    void forwardsRows();
    void forwardsSpacings();
    void setsMarginsOfTheGrid();

    void clicksThroughItsWidgets();
    void paintsItsContentAsPushButton();
    void paintsItsContentBeneathItsWidgets();
};

void tst_CGridArrangedButton::constructors()
{
    QWidget parent;
    const QIcon icon = redIcon();
    auto* plain = new CGridArrangedButton(&parent);
    auto* titled = new CGridArrangedButton(QStringLiteral("Title"), &parent);
    auto* decorated = new CGridArrangedButton(icon, QStringLiteral("Title"), &parent);
    QCOMPARE(plain->text(), QString());
    QCOMPARE(titled->text(), QStringLiteral("Title"));
    QVERIFY(titled->icon().isNull());
    QCOMPARE(decorated->text(), QStringLiteral("Title"));
    QCOMPARE(decorated->icon().cacheKey(), icon.cacheKey());
    for (const CGridArrangedButton* button : {plain, titled, decorated}) {
        QCOMPARE(button->parentWidget(), &parent);
        QVERIFY(gridOf(*button));
        QCOMPARE(gridOf(*button)->count(), 0);
    }
    QVERIFY(!CGridArrangedButton().parent());
    QVERIFY(!CGridArrangedButton(QStringLiteral("Title")).parent());
    QVERIFY(!CGridArrangedButton(icon, QStringLiteral("Title")).parent());
}

void tst_CGridArrangedButton::addsNothingToItsMetaObject()
{
    const QMetaObject& meta = CGridArrangedButton::staticMetaObject;
    QCOMPARE(meta.className(), "ui::CGridArrangedButton");
    QCOMPARE(meta.superClass(), &QPushButton::staticMetaObject);
    QCOMPARE(meta.methodCount(), meta.methodOffset());
    QCOMPARE(meta.propertyCount(), meta.propertyOffset());
}

void tst_CGridArrangedButton::ownsItsGrid()
{
    QPointer<QGridLayout> grid;
    QPointer<QLabel> label;
    {
        CGridArrangedButton button;
        grid = gridOf(button);
        QCOMPARE(grid->parent(), &button);
        label = new QLabel;
        button.addWidget(label, 0, 0);
    }
    QVERIFY(!grid);
    QVERIFY(!label);
}

void tst_CGridArrangedButton::hintsAtItsOwnContent()
{
    const QString text = QStringLiteral("A rather long caption of the button");
    CGridArrangedButton button(text);
    button.setContentsMargins(0, 0, 0, 0);
    const QPushButton reference(text);
    QCOMPARE(button.sizeHint(), reference.sizeHint());
    QCOMPARE(button.minimumSizeHint(), reference.minimumSizeHint());
}

void tst_CGridArrangedButton::hintsAtItsGrid()
{
    CGridArrangedButton button(QStringLiteral("A rather long caption of the button"));
    const int ownWidth = button.sizeHint().width();
    button.setContentsMargins(1, 2, 3, 4);
    QLabel tall;
    tall.setFixedSize(10, 200);
    button.addWidget(&tall, 0, 0);
    QCOMPARE(button.sizeHint(),
             QSize(ownWidth, 206)); // the width of the one, the height of the other
    QCOMPARE(button.minimumSizeHint(), QSize(ownWidth, 206));

    QLabel wide;
    wide.setMinimumSize(700, 10);
    button.addWidget(&wide, 0, 1);
    button.setHorizontalSpacing(5);
    QCOMPARE(button.sizeHint(), QSize(719, 206));
    QCOMPARE(button.minimumSizeHint(), QSize(719, 206));
}

void tst_CGridArrangedButton::minimumAsksForTheSizeHint()
{
    WideButton button(QStringLiteral("Text"));
    QCOMPARE(button.minimumSizeHint().width(), 321);
    QLabel tall;
    tall.setFixedSize(10, 200);
    button.setContentsMargins(0, 0, 0, 0);
    button.addWidget(&tall, 0, 0);
    QCOMPARE(button.minimumSizeHint(), QSize(321, 200));
}

void tst_CGridArrangedButton::addsWidget()
{
    CGridArrangedButton button;
    auto* label = new QLabel;
    button.addWidget(label, 2, 3, Qt::AlignRight | Qt::AlignTop);
    QCOMPARE(label->parentWidget(), &button);
    QCOMPARE(gridOf(button)->itemAtPosition(2, 3)->widget(), label);
    QCOMPARE(gridOf(button)->itemAt(0)->alignment(), Qt::AlignRight | Qt::AlignTop);
    QCOMPARE(onlyCell(button), QRect(3, 2, 1, 1));

    button.addWidget(new QLabel, 0, 0);
    QCOMPARE(gridOf(button)->itemAt(1)->alignment(), Qt::Alignment());
}

void tst_CGridArrangedButton::addsWidgetOverSpans()
{
    CGridArrangedButton button;
    auto* label = new QLabel;
    button.addWidget(label, 1, 2, 3, 4, Qt::AlignBottom);
    QCOMPARE(label->parentWidget(), &button);
    QCOMPARE(onlyCell(button), QRect(2, 1, 4, 3));
    QCOMPARE(gridOf(button)->itemAt(0)->alignment(), Qt::Alignment(Qt::AlignBottom));

    CGridArrangedButton open;
    open.addWidget(new QLabel, 0, 0, 1, -1);
    open.addWidget(new QLabel, 1, 4);
    QCOMPARE(onlyCell(open), QRect(0, 0, 5, 1)); // reaches to the last column
}

void tst_CGridArrangedButton::takesWidgetFromItsParent()
{
    QWidget former;
    auto* layout = new QVBoxLayout(&former);
    auto* label = new QLabel(&former);
    auto* other = new QLabel(&former);
    layout->addWidget(label);
    layout->addWidget(other);
    CGridArrangedButton button;
    button.addWidget(label, 0, 0);
    button.addWidget(other, 1, 0, 1, 2);
    QCOMPARE(label->parentWidget(), &button);
    QCOMPARE(other->parentWidget(), &button);
    QCOMPARE(layout->count(), 0);
    QCOMPARE(gridOf(button)->count(), 2);
}

void tst_CGridArrangedButton::addsItem()
{
    CGridArrangedButton button;
    auto* spacer = new QSpacerItem(40, 50);
    button.addItem(spacer, 1, 2, 3, 4, Qt::AlignLeft);
    QCOMPARE(gridOf(button)->itemAt(0), spacer);
    QCOMPARE(onlyCell(button), QRect(2, 1, 4, 3));
    QCOMPARE(spacer->alignment(), Qt::Alignment(Qt::AlignLeft));

    QWidget parent;
    QLabel label(&parent);
    button.addItem(new QWidgetItem(&label), 0, 0);
    QCOMPARE(label.parentWidget(), &parent);
}

/// As QGridLayout::addLayout() leaves it: a child of the grid, which deletes it once.
void tst_CGridArrangedButton::addsNestedLayout()
{
    auto button = std::make_unique<CGridArrangedButton>();
    QPointer<QHBoxLayout> nested(new QHBoxLayout);
    nested->setParent(gridOf(*button));
    QPointer<QLabel> label(new QLabel(QStringLiteral("nested")));
    nested->addWidget(label);
    button->addItem(nested, 2, 1, 1, 2);
    QCOMPARE(gridOf(*button)->count(), 1);
    QCOMPARE(gridOf(*button)->itemAt(0)->layout(), nested.data());
    QCOMPARE(onlyCell(*button), QRect(1, 2, 2, 1));
    QCOMPARE(nested->parent(), gridOf(*button));
    QCOMPARE(label->parentWidget(), button.get());

    label->setFixedSize(300, 200);
    QVERIFY(button->sizeHint().width() >= 300);
    button->resize(button->sizeHint());
    gridOf(*button)->activate();
    QCOMPARE(label->size(), QSize(300, 200));

    button.reset();
    QVERIFY(!nested);
    QVERIFY(!label);
}

void tst_CGridArrangedButton::nestedLayoutDeletedFirst()
{
    CGridArrangedButton button;
    auto* nested = new QVBoxLayout;
    nested->setParent(gridOf(button));
    button.addItem(nested, 0, 0);
    delete nested;
    QCOMPARE(gridOf(button)->count(), 0);
    button.addItem(new QSpacerItem(1, 1), 0, 0);
    QCOMPARE(gridOf(button)->count(), 1);
}

void tst_CGridArrangedButton::forwardsColumns()
{
    CGridArrangedButton button;
    QCOMPARE(button.columnStretch(0), 0);
    button.setColumnStretch(2, 7);
    button.setColumnMinimumWidth(3, 60);
    QCOMPARE(gridOf(button)->columnStretch(2), 7);
    QCOMPARE(button.columnStretch(2), 7);
    QCOMPARE(button.columnStretch(1), 0);
    QCOMPARE(gridOf(button)->columnMinimumWidth(3), 60);
    gridOf(button)->setColumnStretch(2, 9);
    QCOMPARE(button.columnStretch(2), 9);
}

void tst_CGridArrangedButton::forwardsRows()
{
    CGridArrangedButton button;
    button.setRowStretch(2, 7);
    button.setRowMinimumHeight(3, 60);
    QCOMPARE(gridOf(button)->rowStretch(2), 7);
    QCOMPARE(gridOf(button)->rowMinimumHeight(3), 60);
}

void tst_CGridArrangedButton::forwardsSpacings()
{
    CGridArrangedButton button;
    button.setSpacing(3);
    QCOMPARE(gridOf(button)->horizontalSpacing(), 3);
    QCOMPARE(gridOf(button)->verticalSpacing(), 3);
    button.setHorizontalSpacing(4);
    QCOMPARE(gridOf(button)->horizontalSpacing(), 4);
    QCOMPARE(gridOf(button)->verticalSpacing(), 3);
    button.setVerticalSpacing(5);
    QCOMPARE(gridOf(button)->horizontalSpacing(), 4);
    QCOMPARE(gridOf(button)->verticalSpacing(), 5);

    QWidget widget;
    const QGridLayout reference(&widget);
    button.setSpacing(-1);
    QCOMPARE(gridOf(button)->horizontalSpacing(), reference.horizontalSpacing());
}

void tst_CGridArrangedButton::setsMarginsOfTheGrid()
{
    CGridArrangedButton button;
    button.setContentsMargins(1, 2, 3, 4);
    QCOMPARE(gridOf(button)->contentsMargins(), QMargins(1, 2, 3, 4));
    QCOMPARE(button.contentsMargins(), QMargins());
    button.QWidget::setContentsMargins(5, 6, 7, 8);
    QCOMPARE(button.contentsMargins(), QMargins(5, 6, 7, 8));
}

void tst_CGridArrangedButton::clicksThroughItsWidgets()
{
    QWidget window;
    CGridArrangedButton button(&window);
    auto* label = new QLabel(QStringLiteral("Value"));
    button.addWidget(label, 0, 0);
    QSignalSpy clicked(&button, &QPushButton::clicked);
    button.resize(200, 80);
    window.show();
    QVERIFY(QTest::qWaitForWindowExposed(&window));

    const QPoint point = label->mapTo(&window, label->rect().center());
    QTest::mousePress(window.windowHandle(), Qt::LeftButton, {}, point);
    QVERIFY(button.isDown());
    QTest::mouseRelease(window.windowHandle(), Qt::LeftButton, {}, point);
    QVERIFY(!button.isDown());
    QCOMPARE(clicked.count(), 1);
}

void tst_CGridArrangedButton::paintsItsContentAsPushButton()
{
    const QString text = QStringLiteral("Title");
    QPushButton reference(redIcon(), text);
    CGridArrangedButton button(redIcon(), text);
    button.addWidget(new QLabel(QStringLiteral("Value")), 0, 0);
    button.resize(200, 80);
    reference.resize(200, 80);
    for (bool down : {false, true}) {
        button.setDown(down);
        reference.setDown(down);
        QVERIFY(test::sameImage(test::paintedBy(button), test::paintedBy(reference)));
    }
}

void tst_CGridArrangedButton::paintsItsContentBeneathItsWidgets()
{
    CGridArrangedButton button(QStringLiteral("A rather long caption of the button"));
    button.setContentsMargins(0, 0, 0, 0);
    auto* cover = new QWidget;
    cover->setAutoFillBackground(true);
    cover->setPalette(QColor(Qt::green));
    button.addWidget(cover, 0, 0);
    button.resize(button.sizeHint());

    QImage green(button.size(), QImage::Format_RGB32);
    green.fill(cover->palette().color(QPalette::Window));
    QCOMPARE(button.grab().toImage().convertToFormat(green.format()), green);
}

const test::Registration<tst_CGridArrangedButton> registration;

#include "tst_CGridArrangedButton.moc"
