#include "properties/PropertyGroup.h"
#include "properties/SimpleEditors.h"
#include "properties/ValueEditor.h"
#include "SampleWidget.h"
#include "TestApplication.h"
#include "TouchStyle.h"

#include <Switch.h>
#include <ui/KeypadLineEdit.h>

#include <QComboBox>
#include <QFontComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMargins>
#include <QSlider>
#include <QSpinBox>
#include <QToolButton>

using ui::KeypadLineEdit;

Q_DECLARE_METATYPE(QMargins)

namespace {

/// The control number \a index of a kind, in the order of their making.
template <typename Widget>
Widget* control(const PropertyRow& row, int index = 0)
{
    return row.findChildren<Widget*>().value(index);
}

/// The first button takes edits back.
QToolButton* foldButton(const PropertyRow& row)
{
    return row.editor()->findChild<QToolButton*>();
}

void unfold(const PropertyRow& row)
{
    foldButton(row)->click();
}

void type(QLineEdit* edit, const QString& text)
{
    edit->selectAll();
    QTest::keyClicks(edit, text);
}

/// With OK, as a keypad has it.
void enter(KeypadLineEdit* field, const QString& text)
{
    type(field, text);
    QTest::keyClick(field, Qt::Key_Return);
}

/// Presses the button of the number \a index.
void step(const PropertyRow& row, const char* button, int index = 0)
{
    row.findChildren<QToolButton*>(QString::fromLatin1(button)).value(index)->click();
}

int shownNumber(const PropertyRow& row, int index = 0)
{
    return control<KeypadLineEdit>(row, index)->text().toInt();
}

QString summaryOf(const PropertyRow& row)
{
    return foldButton(row)->text();
}

} // namespace

class tst_ValueEditors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void editorOfType_data();
    void editorOfType();
    void everyPropertyOfWidgets();
    void editsBool();
    void editsInt();
    void showsWhatBecameOfAnInt();
    void keepsDigitsThatAreTyped();
    void editsDouble();
    void showsIgnoredDouble();
    void editsText();
    void keepsCursorOfText();
    void editsColorByName();
    void editsColorByChannels();
    void leavesUnfinishedColorNameAlone();
    void showsNoColor();
    void editsFont();
    void fontSizeKeepsItsUnit();
    void editsEnum();
    void showsNoChoiceForUnknownEnumValue();
    void editsFlags();
    void editsFlagsOfAnotherClass();
    void editsPoint();
    void editsSize();
    void editsRect();
    void editsEasingCurve();
    void editsAnimation();
    void showsReadOnlyValues_data();
    void showsReadOnlyValues();
    void shortensLongText();
    void editsDynamicProperty();
    void survivesItsTarget();
};

void tst_ValueEditors::initTestCase()
{
    TouchStyle::install();
}

void tst_ValueEditors::editorOfType_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QByteArray>("editor");

    const auto row = [](const char* property, const char* editor) {
        QTest::newRow(property) << QByteArray(property) << QByteArray(editor);
    };
    row("marked", "BoolEditor");
    row("level", "IntEditor");
    row("fraction", "DoubleEditor");
    row("caption", "TextEditor");
    row("color", "ColorEditor");
    row("captionFont", "FontEditor");
    row("mood", "EnumEditor");
    row("sides", "FlagsEditor");
    row("alignment", "FlagsEditor");
    row("origin", "TupleEditor");
    row("extent", "TupleEditor");
    row("area", "TupleEditor");
    row("curve", "EasingCurveEditor");
    row("companion", "ReadOnlyValue");
    row("answer", "ReadOnlyValue"); // an int without a setter
    row("palette", "PaletteEditor");
    row("sizePolicy", "SizePolicyEditor");
    row("cursor", "ReadOnlyValue"); // a type without an editor
}

void tst_ValueEditors::editorOfType()
{
    QFETCH(QByteArray, property);
    QFETCH(QByteArray, editor);

    test::SampleWidget sample;
    const PropertyRow row(&sample, property);
    QCOMPARE(row.editor()->metaObject()->className(), editor.constData());
}

void tst_ValueEditors::everyPropertyOfWidgets()
{
    QSpinBox spinBox;
    QLineEdit lineEdit;
    QToolButton button;
    QSlider slider;
    for (QWidget* widget : std::initializer_list<QWidget*>{&spinBox, &lineEdit, &button, &slider}) {
        const QMetaObject* meta = widget->metaObject();
        for (int i = 0; i < meta->propertyCount(); ++i) {
            PropertyRow row(widget, meta->property(i).name());
            row.refresh();
        }
    }
}

void tst_ValueEditors::editsBool()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "marked");
    auto* box = control<Switch>(row);
    QVERIFY(!box->isChecked());

    row.resize(200, 60);
    box->resize(60, 60);
    QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(2, 58)); // it can be hit all over
    QCOMPARE(sample.property("marked"), QVariant(true));

    sample.setProperty("marked", false);
    row.refresh();
    QVERIFY(!box->isChecked());
}

void tst_ValueEditors::editsInt()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "level");
    const QSignalSpy edits(&row, &PropertyRow::edited);
    step(row, "stepDown");
    QCOMPARE(sample.level(), 49);
    step(row, "stepUp");
    step(row, "stepUp");
    QCOMPARE(sample.level(), 51);
    enter(control<KeypadLineEdit>(row), QStringLiteral("7"));
    QCOMPARE(sample.level(), 7);
    QCOMPARE(edits.count(), 4);

    sample.setLevel(8);
    row.refresh();
    QCOMPARE(shownNumber(row), 8);
    QCOMPARE(edits.count(), 4);
}

void tst_ValueEditors::showsWhatBecameOfAnInt()
{
    test::SampleWidget sample;
    sample.setLevel(100);
    PropertyRow row(&sample, "level");
    step(row, "stepUp");
    QCOMPARE(shownNumber(row), 100);
    enter(control<KeypadLineEdit>(row), QStringLiteral("-2147483648"));
    QCOMPARE(sample.level(), 0);
    QCOMPARE(shownNumber(row), 0);
}

void tst_ValueEditors::keepsDigitsThatAreTyped()
{
    test::SampleWidget sample;
    for (const char* name : {"level", "fraction"}) {
        PropertyRow row(&sample, name);
        auto* box = control<KeypadLineEdit>(row);
        box->selectAll();
        QTest::keyClicks(box, QStringLiteral("0"));
        row.editor()->setValue(sample.property(name)); // nothing has changed
        QCOMPARE(box->text(), QStringLiteral("0"));
    }
}

void tst_ValueEditors::editsDouble()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "fraction");
    step(row, "stepUp");
    QCOMPARE(sample.fraction(), 0.55);
    enter(control<KeypadLineEdit>(row), QLocale().toString(0.125));
    QCOMPARE(sample.fraction(), 0.125);
}

void tst_ValueEditors::showsIgnoredDouble()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "fraction");
    enter(control<KeypadLineEdit>(row), QStringLiteral("7"));
    QCOMPARE(sample.fraction(), 0.5);
    QCOMPARE(control<KeypadLineEdit>(row)->text(), QLocale().toString(0.5));
}

void tst_ValueEditors::editsText()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "caption");
    type(control<QLineEdit>(row), QStringLiteral("new"));
    QCOMPARE(sample.property("caption"), QVariant(QStringLiteral("new")));
}

void tst_ValueEditors::keepsCursorOfText()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "caption");
    auto* edit = control<QLineEdit>(row);
    edit->setCursorPosition(3);
    QTest::keyClicks(edit, QStringLiteral("--"));
    row.refresh();
    QCOMPARE(sample.property("caption"), QVariant(QStringLiteral("cap--tion")));
    QCOMPARE(edit->cursorPosition(), 5);
}

void tst_ValueEditors::editsColorByName()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "color");
    QCOMPARE(summaryOf(row), QStringLiteral("#280a141e"));
    unfold(row);
    type(control<QLineEdit>(row), QStringLiteral("steelblue"));
    QCOMPARE(sample.property("color").value<QColor>(), QColor(70, 130, 180));
    QCOMPARE(summaryOf(row), QStringLiteral("#ff4682b4"));
    QCOMPARE(control<QLineEdit>(row)->text(), QStringLiteral("steelblue"));
    QCOMPARE(control<QSlider>(row, 1)->value(), 130);
}

void tst_ValueEditors::editsColorByChannels()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "color");
    unfold(row);
    for (int channel = 0; channel < 4; ++channel)
        control<QSlider>(row, channel)->setValue(50 + channel);
    QCOMPARE(sample.property("color").value<QColor>(), QColor(50, 51, 52, 53));
    QCOMPARE(control<QLineEdit>(row)->text(), QStringLiteral("#35323334"));

    auto* red = control<QSlider>(row);
    red->resize(200, 44);
    QTest::mouseClick(red, Qt::LeftButton, {}, QPoint(199, 22)); // it goes where it is pressed
    QCOMPARE(sample.property("color").value<QColor>().red(), 255);
}

void tst_ValueEditors::leavesUnfinishedColorNameAlone()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "color");
    unfold(row);
    type(control<QLineEdit>(row), QStringLiteral("steel"));
    row.refresh();
    QCOMPARE(sample.property("color").value<QColor>(), QColor(10, 20, 30, 40));
    QCOMPARE(control<QLineEdit>(row)->text(), QStringLiteral("steel"));
}

void tst_ValueEditors::showsNoColor()
{
    test::SampleWidget sample;
    sample.setProperty("color", QColor());
    PropertyRow row(&sample, "color");
    unfold(row);
    QCOMPARE(summaryOf(row), QStringLiteral("none"));
    QCOMPARE(control<QLineEdit>(row)->text(), QString());
    control<QSlider>(row)->setValue(9);
    QCOMPARE(sample.property("color").value<QColor>(), QColor(9, 0, 0));
}

void tst_ValueEditors::editsFont()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "captionFont");
    QCOMPARE(summaryOf(row), QStringLiteral("DejaVu Sans, 12 pt"));
    unfold(row);
    step(row, "stepUp");
    for (int index = 0; index < 3; ++index)
        control<Switch>(row, index)->click();

    QFont expected(QStringLiteral("DejaVu Sans"), 13);
    expected.setBold(true);
    expected.setItalic(true);
    expected.setUnderline(true);
    QCOMPARE(sample.property("captionFont").value<QFont>(), expected);

    enter(control<KeypadLineEdit>(row), QStringLiteral("-5"));
    QCOMPARE(sample.property("captionFont").value<QFont>().pointSize(), 1);

    auto* family = control<QFontComboBox>(row);
    const int other = (family->currentIndex() + 1) % family->count();
    family->setCurrentIndex(other);
    QCOMPARE(sample.property("captionFont").value<QFont>().family(), family->itemText(other));
}

void tst_ValueEditors::fontSizeKeepsItsUnit()
{
    test::SampleWidget sample;
    QFont font;
    font.setPixelSize(20);
    sample.setProperty("captionFont", font);
    PropertyRow row(&sample, "captionFont");
    QVERIFY(summaryOf(row).endsWith(QStringLiteral(", 20 px")));
    unfold(row);
    step(row, "stepDown");
    QCOMPARE(sample.property("captionFont").value<QFont>().pixelSize(), 19);
}

void tst_ValueEditors::editsEnum()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "mood");
    auto* box = control<QComboBox>(row);
    QCOMPARE(box->count(), 3);
    QCOMPARE(box->currentText(), QStringLiteral("Calm"));
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(sample.property("mood").toInt(), 4);
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(sample.property("mood").toInt(), -2);
    QCOMPARE(box->currentText(), QStringLiteral("Grumpy"));
}

void tst_ValueEditors::showsNoChoiceForUnknownEnumValue()
{
    EnumEditor editor(QMetaEnum::fromType<test::SampleWidget::Mood>());
    editor.setValue(77);
    QCOMPARE(editor.findChild<QComboBox*>()->currentIndex(), -1);
}

void tst_ValueEditors::editsFlags()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "sides");
    QCOMPARE(summaryOf(row), QStringLiteral("Left")); // "Start" is the same bit
    unfold(row);
    QCOMPARE(row.findChildren<Switch*>().size(), 3); // neither the alias nor the combinations
    control<Switch>(row, 2)->click();
    QCOMPARE(sample.sides(), test::SampleWidget::Left | test::SampleWidget::Top);
    QCOMPARE(summaryOf(row), QStringLiteral("Left | Top"));
    control<Switch>(row, 0)->click();
    control<Switch>(row, 2)->click();
    QCOMPARE(sample.sides(), test::SampleWidget::Sides());
    QCOMPARE(summaryOf(row), QStringLiteral("none"));
}

void tst_ValueEditors::editsFlagsOfAnotherClass()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "alignment");
    unfold(row);
    for (Switch* box : row.findChildren<Switch*>()) {
        if (box->text() == QLatin1String("AlignVCenter"))
            box->click();
    }
    QCOMPARE(sample.property("alignment").toInt(), int(Qt::AlignLeft | Qt::AlignVCenter));
}

void tst_ValueEditors::editsPoint()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "origin");
    QCOMPARE(summaryOf(row), QStringLiteral("1, 2"));
    unfold(row);
    step(row, "stepUp", 1);
    QCOMPARE(sample.property("origin").toPoint(), QPoint(1, 3));
}

void tst_ValueEditors::editsSize()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "extent");
    QCOMPARE(summaryOf(row), QStringLiteral("3 \u00d7 4"));
    unfold(row);
    step(row, "stepUp", 0);
    QCOMPARE(sample.property("extent").toSize(), QSize(4, 4));
}

void tst_ValueEditors::editsRect()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "area");
    QCOMPARE(summaryOf(row), QStringLiteral("7 \u00d7 8 at 5, 6"));
    unfold(row);
    for (int index = 0; index < 4; ++index)
        enter(control<KeypadLineEdit>(row, index), QString::number(20 + index));
    QCOMPARE(sample.property("area").toRect(), QRect(20, 21, 22, 23));
}

void tst_ValueEditors::editsEasingCurve()
{
    test::SampleWidget sample;
    PropertyRow row(&sample, "curve");
    auto* box = control<QComboBox>(row);
    QCOMPARE(box->currentText(), QStringLiteral("Linear"));
    QCOMPARE(box->findText(QStringLiteral("Custom")), -1); // its type does not define it
    QTest::keyClicks(box, QStringLiteral("OutBounce"));
    QCOMPARE(sample.property("curve").toEasingCurve().type(), QEasingCurve::OutBounce);
}

void tst_ValueEditors::editsAnimation()
{
    Switch target;
    target.setThumbPosAnimation({QEasingCurve::InQuad, 100});
    PropertyRow row(&target, "thumbPosAnimation");
    QCOMPARE(summaryOf(row), QStringLiteral("InQuad, 100 ms"));
    unfold(row);
    QTest::keyClicks(control<QComboBox>(row), QStringLiteral("OutBounce"));
    enter(control<KeypadLineEdit>(row), QStringLiteral("250"));
    QCOMPARE(target.thumbPosAnimation(), (Style::Animation{QEasingCurve::OutBounce, 250}));
    QCOMPARE(summaryOf(row), QStringLiteral("OutBounce, 250 ms"));

    target.setThumbPosAnimation({QEasingCurve::Linear, 7});
    row.refresh();
    QCOMPARE(control<QComboBox>(row)->currentText(), QStringLiteral("Linear"));
    QCOMPARE(shownNumber(row), 7);
}

void tst_ValueEditors::showsReadOnlyValues_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("nothing") << QVariant() << QStringLiteral("none");
    QTest::newRow("null object") << QVariant::fromValue<QObject*>(nullptr)
                                 << QStringLiteral("none");
    QTest::newRow("object") << QVariant::fromValue<QObject*>(this)
                            << QStringLiteral("tst_ValueEditors");
    const auto list = QLatin1String(QT_VERSION_MAJOR == 6 ? "QList" : ""); // Qt 6 names it
    QTest::newRow("list") << QVariant(QVariantList{1, 2})
                          << list + QStringLiteral("(QVariant(int, 1), QVariant(int, 2))");
    QTest::newRow("type without a text")
        << QVariant::fromValue(Style::Animation()) << QStringLiteral("Style::Animation");
    QTest::newRow("line") << QVariant(QLine(1, 2, 3, 4))
                          << QStringLiteral("QLine(QPoint(1,2),QPoint(3,4))");
    QTest::newRow("uint") << QVariant(7u) << QStringLiteral("7");
}

void tst_ValueEditors::showsReadOnlyValues()
{
    QFETCH(QVariant, value);
    QFETCH(QString, text);

    ReadOnlyValue display;
    display.setValue(value);
    QCOMPARE(display.findChild<QLabel*>()->text(), text);
}

void tst_ValueEditors::shortensLongText()
{
    ReadOnlyValue display;
    display.setValue(QString(1000, QLatin1Char('x')));
    QCOMPARE(display.findChild<QLabel*>()->text(), QString(79, QLatin1Char('x')) + QChar(0x2026));
}

void tst_ValueEditors::editsDynamicProperty()
{
    QWidget widget;
    widget.setStyleSheet(QStringLiteral("[inputValid=\"false\"] { max-width: 77px; }"));
    widget.setProperty("inputValid", true);
    widget.ensurePolished();
    QVERIFY(widget.maximumWidth() != 77);

    PropertyRow row(&widget, "inputValid");
    control<Switch>(row)->click();
    QCOMPARE(widget.property("inputValid"), QVariant(false));
    QCOMPARE(widget.maximumWidth(), 77); // the style sheet has been asked again
}

void tst_ValueEditors::survivesItsTarget()
{
    auto* sample = new test::SampleWidget;
    PropertyRow row(sample, "level");
    delete sample;
    row.refresh();
    step(row, "stepUp");
    QCOMPARE(shownNumber(row), 50); // what it was told last
}

const test::Registration<tst_ValueEditors> registration;

#include "tst_ValueEditors.moc"
