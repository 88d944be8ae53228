#include "FieldLog.h"
#include "TestApplication.h"

#include <ui/KeypadLineEdit.h>
#include <ui/LineEdit.h>

#include <QAccessibleWidget>
#include <QLabel>
#include <QProxyStyle>
#include <QScopedValueRollback>
#include <QStyleFactory>
#include <QValidator>

#include <memory>
#include <new>

namespace {

bool isListening = true;

/// What assistive technology has been told: which descriptions have changed, and to what.
QStringList& announcements()
{
    static QStringList instance;
    return instance;
}

/// Where announcements are noted among all else that happens, if somewhere.
test::FieldLog* timeline = nullptr;

QString descriptionOf(QWidget* widget)
{
    return QAccessible::queryAccessibleInterface(widget)->text(QAccessible::Description);
}

/// A field for two digits.
class NumberEdit : public ui::LineEdit
{
public:
    NumberEdit()
    {
        setValidator(&m_validator);
    }

private:
    QIntValidator m_validator{10, 99};
};

/// Types \a key at the end of the text.
void type(QLineEdit& field, Qt::Key key)
{
    field.end(false);
    QTest::keyClick(&field, key);
}

/// Adds to a log when a widget is polished.
class LoggingStyle : public QProxyStyle
{
public:
    explicit LoggingStyle(test::FieldLog& log)
        : QProxyStyle(QStyleFactory::create(QStringLiteral("fusion")))
        , m_log(log)
    {
    }

    using QProxyStyle::polish;
    void polish(QWidget* widget) override
    {
        m_log.add(QStringLiteral("polish"));
        QProxyStyle::polish(widget);
    }

private:
    test::FieldLog& m_log;
};

/// An application's own interface, which there are as many of as are in use.
class OwnInterface : public QAccessibleWidget
{
public:
    explicit OwnInterface(QWidget* widget)
        : QAccessibleWidget(widget, QAccessible::Clock)
    {
        ++count;
    }
    ~OwnInterface() override
    {
        --count;
    }
    Q_DISABLE_COPY(OwnInterface)

    static int count;
};

int OwnInterface::count = 0;

/// For line edits of the name "own"; installed before there is a field of the library.
QAccessibleInterface* makeForNamed(const QString& className, QObject* object)
{
    const bool isAsked =
        className == QLatin1String("QLineEdit") && object->objectName() == QLatin1String("own");
    return isAsked ? new OwnInterface(qobject_cast<QWidget*>(object)) : nullptr;
}

template <typename Class>
QAccessibleInterface* makeOwn(const QString& className, QObject* object)
{
    const bool isAsked = className == QLatin1String(Class::staticMetaObject.className());
    return isAsked ? new OwnInterface(qobject_cast<QWidget*>(object)) : nullptr;
}

/// An application's own interface for a class, while it exists.
class OwnFactory
{
public:
    explicit OwnFactory(QAccessible::InterfaceFactory factory)
        : m_factory(factory)
    {
        QAccessible::installFactory(factory);
    }
    ~OwnFactory()
    {
        QAccessible::removeFactory(m_factory);
    }
    Q_DISABLE_COPY(OwnFactory)

private:
    QAccessible::InterfaceFactory m_factory;
};

/// What a screen reader can ask about the text of a field.
QStringList textOf(QLineEdit& field)
{
    QAccessibleTextInterface* text = QAccessible::queryAccessibleInterface(&field)->textInterface();
    QStringList answers;
    const auto add = [&](const auto&... values) {
        QString answer;
        (QDebug(&answer) << ... << values);
        answers.append(answer);
    };
    int start = -1;
    int end = -1;
    text->selection(0, &start, &end);
    add(text->selectionCount(), start, end, text->cursorPosition(), text->characterCount());
    for (int offset = 0; offset < text->characterCount(); ++offset) {
        const QRect rect = text->characterRect(offset);
        add(rect, text->offsetAtPoint(rect.center()), text->text(offset, offset + 2),
            text->attributes(offset, &start, &end));
        add(text->textAtOffset(offset, QAccessible::WordBoundary, &start, &end), start, end);
        add(text->textBeforeOffset(offset, QAccessible::WordBoundary, &start, &end), start, end);
        add(text->textAfterOffset(offset, QAccessible::WordBoundary, &start, &end), start, end);
    }
    return answers;
}

} // namespace

// These take the place of Qt's, which ask the desktop: a program's own definitions come first.

bool QAccessible::isActive()
{
    return isListening;
}

void QAccessible::updateAccessibility(QAccessibleEvent* event)
{
    if (event->type() != QAccessible::DescriptionChanged)
        return;
    announcements().append(descriptionOf(qobject_cast<QWidget*>(event->object())));
    if (timeline)
        timeline->add(QStringLiteral("announced"));
}

/// What a screen reader learns of a field, and that nobody else notices.
class tst_LineEditAccessibility : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void editIsObservedAlike_data();
    void editIsObservedAlike();
    void leavesThePropertiesAlone();
    void saysThatTheInputIsInvalid();
    void fieldWithAKeypad();
    void keepsTheDescription_data();
    void keepsTheDescription();
    void announcesEachChange();
    void announcesNothingWhileNobodyListens();
    void tellsThePresentStateLater();
    void followsASlotThatEdits();

    void isALineEdit();
    void tellsTheTextAsALineEdit_data();
    void tellsTheTextAsALineEdit();
    void takesTextAsALineEdit();

    void applicationsFactoryWins_data();
    void applicationsFactoryWins();
    void addsToTheInterfaceOfTheBaseClass();
    void otherLineEditsAreLeftAlone();
    void interfaceGoesWithTheField();
    void interfaceIsMadeAgain();
    void nothingIsRememberedOfADeletedField();
};

void tst_LineEditAccessibility::initTestCase()
{
    QAccessible::installFactory(makeForNamed);
}

void tst_LineEditAccessibility::init()
{
    isListening = true;
    announcements().clear();
}

void tst_LineEditAccessibility::editIsObservedAlike_data()
{
    QTest::addColumn<bool>("listening");
    QTest::newRow("with a screen reader") << true;
    QTest::newRow("without") << false;
}

/// To the last event: the property, the polishing and the signal, and nothing between. What is
/// announced comes before, so that nobody but who listens can tell.
void tst_LineEditAccessibility::editIsObservedAlike()
{
    QFETCH(bool, listening);
    isListening = listening;
    NumberEdit field;
    test::FieldLog log(&field);
    LoggingStyle style(log);
    field.setStyle(&style);
    field.ensurePolished();
    log.take();

    const QScopedValueRollback<test::FieldLog*> noting(timeline, &log);
    QStringList first{"ShortcutOverride", "KeyPress"};
    if (listening)
        first.append(QStringLiteral("announced"));

    QTest::keyPress(&field, Qt::Key_1);
    QCOMPARE(log.take(),
             first
                 + QStringList({"DynamicPropertyChange inputValid=false", "polish",
                                "resultValidated(false)", "textEdited(1)", "textChanged(1)",
                                "cursorPositionChanged(-1, 1)"}));
    QTest::keyPress(&field, Qt::Key_2);
    QCOMPARE(log.take(),
             first
                 + QStringList({"DynamicPropertyChange inputValid=true", "polish",
                                "resultValidated(true)", "textEdited(12)", "textChanged(12)",
                                "cursorPositionChanged(1, 2)"}));
    field.setStyle(nullptr);
}

void tst_LineEditAccessibility::leavesThePropertiesAlone()
{
    NumberEdit field;
    field.setAccessibleDescription(QStringLiteral("Percent"));
    announcements().clear();
    type(field, Qt::Key_1);
    QCOMPARE(field.accessibleDescription(), QStringLiteral("Percent"));
    QCOMPARE(field.dynamicPropertyNames(), QList<QByteArray>{"inputValid"});
    QCOMPARE(announcements(), QStringList{"Invalid input. Percent"});
}

void tst_LineEditAccessibility::saysThatTheInputIsInvalid()
{
    NumberEdit field;
    QCOMPARE(descriptionOf(&field), QString());
    for (int iteration = 0; iteration < 2; ++iteration) {
        type(field, Qt::Key_1);
        QCOMPARE(descriptionOf(&field), QStringLiteral("Invalid input"));
        type(field, Qt::Key_2);
        QCOMPARE(descriptionOf(&field), QString());
        type(field, Qt::Key_Backspace);
        QCOMPARE(descriptionOf(&field), QStringLiteral("Invalid input"));
        type(field, Qt::Key_Backspace);
        QCOMPARE(descriptionOf(&field), QStringLiteral("Invalid input"));
    }
}

void tst_LineEditAccessibility::fieldWithAKeypad()
{
    ui::KeypadLineEdit field(nullptr, ui::keyboard::KeyboardType::Integer);
    field.setValidator(new QIntValidator(10, 99, &field));
    type(field, Qt::Key_1);
    QCOMPARE(descriptionOf(&field), QStringLiteral("Invalid input"));
}

void tst_LineEditAccessibility::keepsTheDescription_data()
{
    QTest::addColumn<QByteArray>("property");
    QTest::newRow("description") << QByteArray("accessibleDescription");
    QTest::newRow("tool tip") << QByteArray("toolTip");
    QTest::newRow("placeholder") << QByteArray("placeholderText");
}

void tst_LineEditAccessibility::keepsTheDescription()
{
    QFETCH(QByteArray, property);
    NumberEdit field;
    field.setProperty(property.constData(), QStringLiteral("10 to 99"));
    QCOMPARE(descriptionOf(&field), QStringLiteral("10 to 99"));
    type(field, Qt::Key_1);
    QCOMPARE(descriptionOf(&field), QStringLiteral("Invalid input. 10 to 99"));
    field.setProperty(property.constData(), QStringLiteral("Two digits"));
    QCOMPARE(descriptionOf(&field), QStringLiteral("Invalid input. Two digits"));
    type(field, Qt::Key_2);
    QCOMPARE(descriptionOf(&field), QStringLiteral("Two digits"));
}

void tst_LineEditAccessibility::announcesEachChange()
{
    NumberEdit field;
    type(field, Qt::Key_1);
    QCOMPARE(announcements(), QStringList{"Invalid input"});
    type(field, Qt::Key_Backspace); // invalid as before
    QCOMPARE(announcements(), QStringList{"Invalid input"});
    type(field, Qt::Key_1);
    type(field, Qt::Key_2);
    QCOMPARE(announcements(), (QStringList{"Invalid input", ""}));
    type(field, Qt::Key_Backspace);
    QCOMPARE(announcements(), (QStringList{"Invalid input", "", "Invalid input"}));
}

void tst_LineEditAccessibility::announcesNothingWhileNobodyListens()
{
    isListening = false;
    NumberEdit field;
    type(field, Qt::Key_1);
    type(field, Qt::Key_2);
    QCOMPARE(announcements(), QStringList());
}

void tst_LineEditAccessibility::tellsThePresentStateLater()
{
    isListening = false;
    NumberEdit known;
    NumberEdit unknown;
    QCOMPARE(descriptionOf(&known), QString());
    type(known, Qt::Key_1);
    type(unknown, Qt::Key_1);
    isListening = true;
    QCOMPARE(descriptionOf(&known), QStringLiteral("Invalid input"));
    QCOMPARE(descriptionOf(&unknown), QStringLiteral("Invalid input"));

    isListening = false;
    type(known, Qt::Key_2);
    type(unknown, Qt::Key_2);
    isListening = true;
    QCOMPARE(descriptionOf(&known), QString());
    QCOMPARE(descriptionOf(&unknown), QString());
}

/// The last result counts, which is that of the inner edit.
void tst_LineEditAccessibility::followsASlotThatEdits()
{
    NumberEdit field;
    connect(&field, &ui::LineEdit::resultValidated, &field, [&field](bool valid) {
        if (!valid)
            QTest::keyPress(&field, Qt::Key_2);
    });
    QTest::keyPress(&field, Qt::Key_1);
    QCOMPARE(field.property("inputValid"), QVariant(true));
    QCOMPARE(descriptionOf(&field), QString());
    QCOMPARE(announcements(), (QStringList{"Invalid input", ""}));
}

/// What a screen reader finds in Qt's own line edits it finds in these, even if they are invalid.
void tst_LineEditAccessibility::isALineEdit()
{
    QWidget form;
    auto* label = new QLabel(QStringLiteral("&Percent"), &form);
    auto* field = new NumberEdit;
    field->setParent(&form);
    field->setGeometry(20, 30, 200, 40);
    field->addAction(QIcon(), QLineEdit::TrailingPosition);
    label->setBuddy(field);
    field->setAccessibleDescription(QStringLiteral("10 to 99"));
    type(*field, Qt::Key_1);
    form.show();

    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(field);
    QVERIFY(interface->isValid());
    QCOMPARE(interface->object(), field);
    QCOMPARE(interface->role(), QAccessible::EditableText);
    QVERIFY(!interface->state().invalid); // which would say that there is no field any more
    QVERIFY(interface->state().editable);
    QCOMPARE(interface->text(QAccessible::Name), QStringLiteral("Percent"));
    QCOMPARE(interface->text(QAccessible::Value), QStringLiteral("1"));
    QCOMPARE(interface->rect(), QRect(field->mapToGlobal(QPoint()), field->size()));
    QCOMPARE(interface->window(), form.windowHandle());
    QCOMPARE(interface->foregroundColor(), field->palette().color(field->foregroundRole()));
    QCOMPARE(interface->backgroundColor(), field->palette().color(field->backgroundRole()));
    QVERIFY(interface->focusChild() == nullptr);
    QCOMPARE(interface->relations().size(), 1);

    QAccessibleInterface* parent = interface->parent();
    QCOMPARE(parent->object(), &form);
    QCOMPARE(parent->child(parent->indexOfChild(interface)), interface);
    QVERIFY(interface->childCount() > 0);
    QAccessibleInterface* button = interface->child(0);
    QCOMPARE(button->parent(), interface);
    QCOMPARE(interface->indexOfChild(button), 0);
    QCOMPARE(interface->childAt(button->rect().center().x(), button->rect().center().y()), button);

    interface->setText(QAccessible::Value, QStringLiteral("57"));
    QCOMPARE(field->text(), QStringLiteral("57"));
    interface->actionInterface()->doAction(QAccessibleActionInterface::setFocusAction());
    QCOMPARE(form.focusWidget(), field);
}

void tst_LineEditAccessibility::tellsTheTextAsALineEdit_data()
{
    QTest::addColumn<QLineEdit::EchoMode>("echo");
    QTest::newRow("normal") << QLineEdit::Normal;
    QTest::newRow("password") << QLineEdit::Password;
    QTest::newRow("nothing") << QLineEdit::NoEcho;
}

void tst_LineEditAccessibility::tellsTheTextAsALineEdit()
{
    QFETCH(QLineEdit::EchoMode, echo);
    QLineEdit plain;
    ui::LineEdit field;
    for (QLineEdit* edit : {&plain, static_cast<QLineEdit*>(&field)}) {
        edit->setEchoMode(echo);
        edit->setText(QStringLiteral("a secret, once"));
        edit->setSelection(2, 3);
        edit->resize(200, 40);
    }
    QVERIFY(!textOf(plain).isEmpty());
    QCOMPARE(textOf(field), textOf(plain));
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&field);
    QAccessibleInterface* reference = QAccessible::queryAccessibleInterface(&plain);
    QCOMPARE(interface->text(QAccessible::Value), reference->text(QAccessible::Value));
    QCOMPARE(bool(interface->state().passwordEdit), echo != QLineEdit::Normal);
}

void tst_LineEditAccessibility::takesTextAsALineEdit()
{
    ui::LineEdit field;
    field.setText(QStringLiteral("abc"));
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&field);
    QAccessibleEditableTextInterface* text = interface->editableTextInterface();
    QVERIFY(text);
    text->insertText(1, QStringLiteral("x"));
    QCOMPARE(field.text(), QStringLiteral("axbc"));
    interface->textInterface()->setSelection(0, 1, 3);
    QCOMPARE(field.selectedText(), QStringLiteral("xb"));
}

void tst_LineEditAccessibility::applicationsFactoryWins_data()
{
    QTest::addColumn<bool>("beforeTheFirstField");
    QTest::newRow("installed before") << true;
    QTest::newRow("installed after") << false;
}

void tst_LineEditAccessibility::applicationsFactoryWins()
{
    QFETCH(bool, beforeTheFirstField);
    std::unique_ptr<NumberEdit> field;
    if (!beforeTheFirstField)
        field = std::make_unique<NumberEdit>();
    const OwnFactory factory(makeOwn<ui::LineEdit>);
    if (beforeTheFirstField)
        field = std::make_unique<NumberEdit>();
    type(*field, Qt::Key_1);
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(field.get());
    QCOMPARE(interface->role(), QAccessible::Clock);
    QCOMPARE(interface->text(QAccessible::Description), QString());
}

/// Of which Qt's is the one that is always there.
void tst_LineEditAccessibility::addsToTheInterfaceOfTheBaseClass()
{
    {
        NumberEdit field;
        field.setObjectName(QStringLiteral("own"));
        field.setToolTip(QStringLiteral("10 to 99"));
        type(field, Qt::Key_1);
        QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(&field);
        QCOMPARE(interface->role(), QAccessible::Clock);
        QCOMPARE(interface->text(QAccessible::Description),
                 QStringLiteral("Invalid input. 10 to 99"));
        QCOMPARE(OwnInterface::count, 1);
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(interface));
        QCOMPARE(OwnInterface::count, 0);
        QCOMPARE(QAccessible::queryAccessibleInterface(&field)->role(), QAccessible::Clock);
        QCOMPARE(OwnInterface::count, 1);
    }
    QCOMPARE(OwnInterface::count, 0);
}

void tst_LineEditAccessibility::otherLineEditsAreLeftAlone()
{
    const NumberEdit field;
    QLineEdit plain;
    QIntValidator validator(10, 99);
    plain.setValidator(&validator);
    type(plain, Qt::Key_1);
    QCOMPARE(QAccessible::queryAccessibleInterface(&plain)->role(), QAccessible::EditableText);
    QCOMPARE(descriptionOf(&plain), QString());
}

void tst_LineEditAccessibility::interfaceGoesWithTheField()
{
    auto field = std::make_unique<NumberEdit>();
    QAccessibleInterface* interface = QAccessible::queryAccessibleInterface(field.get());
    const QAccessible::Id id = QAccessible::uniqueId(interface);
    QCOMPARE(QAccessible::accessibleInterface(id), interface);
    QCOMPARE(QAccessible::queryAccessibleInterface(field.get()), interface);
    field.reset();
    QVERIFY(!QAccessible::accessibleInterface(id));
}

void tst_LineEditAccessibility::interfaceIsMadeAgain()
{
    NumberEdit field;
    type(field, Qt::Key_1);
    for (int iteration = 0; iteration < 2; ++iteration) {
        QCOMPARE(descriptionOf(&field), QStringLiteral("Invalid input"));
        QAccessible::deleteAccessibleInterface(
            QAccessible::uniqueId(QAccessible::queryAccessibleInterface(&field)));
    }
}

void tst_LineEditAccessibility::nothingIsRememberedOfADeletedField()
{
    alignas(ui::LineEdit) char place[sizeof(ui::LineEdit)];
    for (int iteration = 0; iteration < 2; ++iteration) {
        auto* field = new (place) ui::LineEdit;
        QCOMPARE(descriptionOf(field), QString());
        field->setValidator(new QIntValidator(10, 99, field));
        type(*field, Qt::Key_1);
        QCOMPARE(descriptionOf(field), QStringLiteral("Invalid input"));
        field->~LineEdit();
    }
}

int main(int argc, char** argv)
{
    return test::run<tst_LineEditAccessibility>(argc, argv);
}

#include "tst_LineEditAccessibility.moc"
