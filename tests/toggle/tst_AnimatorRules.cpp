#include "Animator.h"
#include "ManualDriver.h"
#include "ReferenceAnimator.h"
#include "TestApplication.h"

#include <QColor>
#include <QRandomGenerator>

#include <utility>

namespace {

constexpr quint32 seeds = 20;
constexpr int commands = 200;

QStringList& messages()
{
    static QStringList instance;
    return instance;
}

void keepMessage(QtMsgType, const QMessageLogContext&, const QString& message)
{
    messages().append(message);
}

/// Logs what an animator does, as its target and by its signals.
template <typename AnyAnimator>
class Watched : public QObject
{
public:
    Watched()
    {
        const auto log = [this](const QString& what) { m_log.append(what); };
        connect(&animator, &AnyAnimator::stateChanged, this, [log](auto state, auto former) {
            log(QStringLiteral("state %1 after %2").arg(state).arg(former));
        });
        connect(&animator, &AnyAnimator::finished, this,
                [log] { log(QStringLiteral("finished")); });
        connect(&animator, &AnyAnimator::currentLoopChanged, this,
                [log](int loop) { log(QStringLiteral("loop %1").arg(loop)); });
        connect(&animator, &AnyAnimator::valueChanged, this,
                [log](const QVariant& value) { log(value.toString()); });
    }

    bool event(QEvent* event) override
    {
        if (event->type() == QEvent::StyleAnimationUpdate) {
            m_log.append(QStringLiteral("update, accepted %1, at %2 of state %3")
                             .arg(event->isAccepted())
                             .arg(animator.currentTime())
                             .arg(animator.state()));
        }
        return QObject::event(event);
    }

    QStringList takeLog()
    {
        QStringList log = std::exchange(m_log, {});
        log.append(QStringLiteral("state %1, time %2, loop %3, value %4")
                       .arg(animator.state())
                       .arg(animator.currentTime())
                       .arg(animator.currentLoop())
                       .arg(animator.currentValue().toString()));
        return log;
    }

private:
    QStringList m_log;

public:
    AnyAnimator animator{this, nullptr};
};

/// The same commands for an animator and for its rules.
class Pair
{
public:
    explicit Pair(quint32 seed)
        : m_random(seed)
    {
    }

    /// Returns where the two differed first, or nothing.
    QString play(test::ManualDriver& driver);

private:
    template <typename Command>
    void both(Command command);
    QVariant value();
    void command(test::ManualDriver& driver);

    QRandomGenerator m_random;
    Watched<Animator> m_actual;
    Watched<test::ReferenceAnimator> m_expected;
    QStringList m_actualMessages;
    QStringList m_expectedMessages;
};

template <typename Command>
void Pair::both(Command command)
{
    command(m_actual.animator, &m_actual);
    m_actualMessages += std::exchange(messages(), {});
    command(m_expected.animator, &m_expected);
    m_expectedMessages += std::exchange(messages(), {});
}

QVariant Pair::value()
{
    switch (m_random.bounded(6)) {
    case 0:
        return {};
    case 1:
        return QColor::fromRgba(m_random.generate());
    default:
        return m_random.bounded(-50, 50);
    }
}

void Pair::command(test::ManualDriver& driver)
{
    const int number = m_random.bounded(4);
    const int time = m_random.bounded(120);
    const QVariant start = value();
    const QVariant end = value();
    switch (m_random.bounded(14)) {
    case 0:
        return both([&](auto& animator, QObject*) {
            animator.setup(50 * number, QEasingCurve(QEasingCurve::Type(time % 40)));
        });
    case 1:
        return both([&](auto& animator, QObject*) { animator.setCurrentValue(start); });
    case 2:
        return both([&](auto& animator, QObject*) { animator.pause(); });
    case 3:
        return both([&](auto& animator, QObject*) { animator.resume(); });
    case 4:
        return both([&](auto& animator, QObject*) { animator.stop(); });
    case 5:
        return both([&](auto& animator, QObject*) { animator.setLoopCount(number - 1); });
    case 6:
        return both([&](auto& animator, QObject* target) {
            animator.setTargetObject(number > 0 ? target : nullptr);
        });
    case 7:
        return both([&](auto& animator, QObject*) { animator.setCurrentTime(time); });
    case 8:
        return both([&](auto& animator, QObject*) { animator.start(); });
    case 9:
    case 10:
        driver.pass(time);
        return messages().clear(); // from both
    default:
        both([&](auto& animator, QObject*) { animator.interpolate(start, end); });
    }
}

QString Pair::play(test::ManualDriver& driver)
{
    for (int i = 0; i < commands; ++i) {
        command(driver);
        const QStringList actual = m_actual.takeLog() + std::exchange(m_actualMessages, {});
        const QStringList expected = m_expected.takeLog() + std::exchange(m_expectedMessages, {});
        if (actual != expected) {
            return QStringLiteral("after %1 commands:\n%2\nexpected:\n%3")
                .arg(i + 1)
                .arg(actual.join(QLatin1Char('\n')), expected.join(QLatin1Char('\n')));
        }
    }
    return {};
}

} // namespace

/// Compares the animator with its rules, written down a second time, under random commands.
class tst_AnimatorRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void isAsItsRules_data();
    void isAsItsRules();
};

void tst_AnimatorRules::isAsItsRules_data()
{
    QTest::addColumn<quint32>("seed");
    for (quint32 seed = 1; seed <= seeds; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_AnimatorRules::isAsItsRules()
{
    QFETCH(quint32, seed);
    QString difference;
    const QtMessageHandler former = qInstallMessageHandler(keepMessage);
    {
        test::ManualDriver driver;
        Pair pair(seed);
        difference = pair.play(driver);
    }
    qInstallMessageHandler(former);
    messages().clear();
    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

const test::Registration<tst_AnimatorRules> registration;

#include "tst_AnimatorRules.moc"
