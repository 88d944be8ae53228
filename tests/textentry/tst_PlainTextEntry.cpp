#include "EditForm.h"
#include "FieldLog.h"
#include "KeypadKeys.h"
#include "PlainTextEntry.h"
#include "PlatformMessages.h"

#include <ui/KeypadLineEdit.h>
#include <ui/KeypadPopup.h>

#include <QCryptographicHash>
#include <QPushButton>
#include <QRandomGenerator>
#include <QValidator>
#include <QWindow>

#include <memory>

using ui::keyboard::KeyboardType;

namespace {

QString hashOf(QWidget& widget)
{
    const QImage image = widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
    const auto bits = QByteArray::fromRawData(reinterpret_cast<const char*>(image.constBits()),
                                              int(image.sizeInBytes()));
    const QByteArray hash = QCryptographicHash::hash(bits, QCryptographicHash::Md5);
    return QString::fromLatin1(hash.toHex().left(8));
}

/// What depends on when the window system or Qt gets round to it.
bool isIncidental(const QString& entry)
{
    static const QStringList names{QStringLiteral("Paint"), QStringLiteral("UpdateRequest"),
                                   QStringLiteral("UpdateLater"), QStringLiteral("Timer")};
    return names.contains(entry);
}

/// A form with two fields of one kind, which random commands play with; and what came of it.
template <typename Field>
class Play
{
public:
    explicit Play(quint32 seed)
        : m_form(KeyboardType::Integer)
        , m_second(new Field(&m_form, KeyboardType::Text))
        , m_values(seed)
    {
        m_form.resize(900, 700);
        m_second->setGeometry(560, 20, 200, 30);
        m_form.field->setText(QStringLiteral("15"));
        for (Field* field : {m_form.field, m_second})
            watch(field);
    }

    bool show()
    {
        m_form.move(100, 50);
        return m_form.showActive();
    }

    /// One command, and all that could be observed of it.
    QStringList step()
    {
        m_field = m_values.bounded(4) ? m_form.field : m_second;
        QStringList lines{command()};
        if (m_values.bounded(2))
            QCoreApplication::processEvents();
        for (Field* field : {m_form.field, m_second}) {
            if (field->keypad() && !m_watched.contains(field->keypad()))
                watch(field->keypad());
        }
        for (const auto& log : m_logs) {
            for (const QString& entry : log->take()) {
                if (!isIncidental(entry))
                    lines.append(log->objectName() + QLatin1Char(' ') + entry);
            }
        }
        lines.append(stateOf(m_form.field));
        lines.append(stateOf(m_second));
        return lines;
    }

private:
    void watch(QObject* object)
    {
        m_logs.push_back(std::make_unique<test::FieldLog>(object));
        m_logs.back()->setObjectName(QString::number(m_watched.size()));
        m_watched.append(object);
    }

    QString stateOf(Field* field)
    {
        QString text;
        QDebug debug(&text);
        debug << field->text() << field->cursorPosition() << field->selectionStart()
              << field->selectedText() << field->hasFocus() << field->maxLength()
              << field->property("inputValid") << hashOf(*field);
        auto* popup = field->keypad();
        if (popup)
            debug << popup->isVisible() << popup->geometry();
        if (popup && popup->isVisible())
            debug << hashOf(*popup);
        return text;
    }

    /// Where the window system sends keys.
    QWindow* keyboardWindow() const
    {
        QWidget* popup = QApplication::activePopupWidget();
        return popup ? popup->windowHandle() : m_form.windowHandle();
    }

    void tap(const QWidget* widget)
    {
        const QPoint position(m_values.bounded(widget->width()),
                              m_values.bounded(widget->height()));
        QTest::mouseClick(m_form.windowHandle(), Qt::LeftButton, {},
                          m_form.mapFromGlobal(widget->mapToGlobal(position)));
    }

    void tapKeypad()
    {
        static const char* const names[] = {"1", "4", "0", "Backspace", "OK", "Cancel"};
        const QString name = QString::fromLatin1(names[m_values.bounded(6)]);
        auto* popup = m_field->keypad();
        if (!popup || !popup->isVisible() || popup != QApplication::activePopupWidget())
            return;
        const QPushButton* key = test::findKeypadKey(*popup, name);
        if (!key || !key->isVisible())
            return;
        const QPoint center = key->mapToGlobal(key->rect().center());
        QTest::mouseClick(popup->windowHandle(), Qt::LeftButton, {}, popup->mapFromGlobal(center));
    }

    void setValidator()
    {
        delete m_field->validator();
        if (m_values.bounded(2))
            m_field->setValidator(new QIntValidator(10, 99, m_field));
    }

    void setText()
    {
        m_field->setText(QString::number(m_values.bounded(1000)));
    }

    void select()
    {
        if (!m_field->text().isEmpty())
            m_field->setSelection(m_values.bounded(m_field->text().size()), m_values.bounded(3));
    }

    void usePopup(int use)
    {
        auto* popup = m_field->keypad();
        if (!popup)
            return;
        if (use == 0)
            popup->setSubtitleLabel(QStringLiteral("<b>Port</b> & %1").arg(m_values.bounded(9)));
        else if (use == 1)
            popup->locatePopup();
        else
            popup->hide();
    }

    QString command()
    {
        const int number = int(m_values.bounded(26));
        switch (number) {
        case 0:
        case 1:
        case 2:
            tap(m_field);
            break;
        case 3:
            tap(m_form.other);
            break;
        case 4:
            QTest::mouseClick(m_form.windowHandle(), Qt::LeftButton, {}, QPoint(880, 680));
            break;
        case 5:
        case 6:
            QTest::keyClick(keyboardWindow(), "0159a"[m_values.bounded(5)]);
            break;
        case 7:
            QTest::keyClick(keyboardWindow(), Qt::Key_Return);
            break;
        case 8:
            QTest::keyClick(keyboardWindow(), Qt::Key_Escape);
            break;
        case 9:
            QTest::keyClick(keyboardWindow(), Qt::Key_Backspace);
            break;
        case 10:
        case 11:
        case 12:
            tapKeypad();
            break;
        case 13:
            setText();
            break;
        case 14:
            m_field->setMaxLength(int(m_values.bounded(6)));
            break;
        case 15:
            setValidator();
            break;
        case 16:
            m_field->showKeypad();
            break;
        case 17:
            m_field->hideKeypad();
            break;
        case 18:
            m_form.other->setFocus();
            break;
        case 19:
            m_field->setFocus();
            break;
        case 20:
            m_field->clearFocus();
            break;
        case 21:
            select();
            break;
        case 22:
            Q_EMIT m_field->signalOkKey();
            break;
        case 23:
            Q_EMIT m_field->signalCancelKey();
            break;
        default:
            usePopup(int(m_values.bounded(3)));
        }
        return QString::number(number);
    }

    test::EditForm<Field> m_form;
    Field* const m_second;
    Field* m_field = nullptr;
    QRandomGenerator m_values;
    QVector<QObject*> m_watched;
    std::vector<std::unique_ptr<test::FieldLog>> m_logs;
};

template <typename Field>
void play(quint32 seed, QVector<QStringList>& steps)
{
    constexpr int count = 150;
    Play<Field> play(seed);
    QVERIFY(play.show());
    for (int i = 0; i < count; ++i)
        steps.append(play.step());
}

} // namespace

/// The library's fields and the plain ones do and show the same, down to each event and pixel.
class tst_PlainTextEntry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        test::dropPlatformMessages();
    }
    void same_data();
    void same();
};

void tst_PlainTextEntry::same_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= 5; ++seed)
        QTest::addRow("%u", seed) << seed;
}

void tst_PlainTextEntry::same()
{
    QFETCH(quint32, seed);
    QVector<QStringList> expected;
    QVector<QStringList> actual;
    play<test::plain::KeypadLineEdit>(seed, expected);
    play<ui::KeypadLineEdit>(seed, actual);
    QCOMPARE(actual.size(), expected.size());
    for (int i = 0; i < actual.size(); ++i) {
        if (actual.at(i) != expected.at(i)) {
            qInfo().noquote() << "plain:\n"
                              << expected.at(i).join(QLatin1Char('\n')) << "\nlibrary:\n"
                              << actual.at(i).join(QLatin1Char('\n'));
        }
        QVERIFY2(actual.at(i) == expected.at(i), qPrintable(QStringLiteral("step %1").arg(i)));
    }
}

const test::Registration<tst_PlainTextEntry> registration;

#include "tst_PlainTextEntry.moc"
